// Where the columns of a printed line stand. All values are twips; positions and ends are offsets from the line origin,
// the point at which lines begin. Columns are laid out from the right edge towards the left, in the widths of fixed
// templates; a column that is switched off takes no room.
#pragma once

#include <array>

#include "scan/ListingFormat.h"
#include "scan/NameRules.h"

namespace folivant {

/// Entry lines. The name begins at the line origin; sizes end at SizeEnd, the others begin at their position.
struct EntryPositions {
  double NameWidth = 0;
  double DosName = 0;
  double SizeEnd = 0;
  double Date = 0;
  double Attributes = 0;
};
EntryPositions PlaceEntryColumns(const FileColumns& shown, double usableWidth, const TextMeasure& measure);

/// Lines of the directory view: every number ends at its end. The ends are in the order of DirectoryColumns.
struct DirectoryPositions {
  double NameWidth = 0;
  std::array<double, 4> Ends{};
};
DirectoryPositions PlaceDirectoryColumns(const DirectoryColumns& shown, double usableWidth, const TextMeasure& measure);

/// Lines of the file lists. Folder contains `lineOrigin` once already: like every position it is drawn at the line
/// origin plus Folder, so a left margin counts twice there, as on every page printed so far.
struct FoundPositions {
  double NameWidth = 0;
  double Folder = 0;
  double FolderWidth = 0;
  double SizeEnd = 0;
  double Date = 0;
};
FoundPositions PlaceFoundColumns(double lineOrigin, double usableWidth, const TextMeasure& measure);

}  // namespace folivant
