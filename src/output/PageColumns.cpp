#include "output/PageColumns.h"

#include <string>

namespace folivant {
namespace {

constexpr std::wstring_view kTwoBlanks = L"  ";

}  // namespace

EntryPositions PlaceEntryColumns(const FileColumns& shown, double usableWidth, const TextMeasure& measure) {
  EntryPositions at;
  at.Attributes = usableWidth - (shown.Attributes ? measure.WidthOf(L"darsh") : 0);
  at.Date = at.Attributes - (shown.Date ? measure.WidthOf(L"00/00/0000 00:00  ") : 0);
  at.SizeEnd = at.Date - (shown.Size ? measure.WidthOf(kTwoBlanks) : 0);
  std::wstring dosNameAndSize;
  if (shown.DosName) {
    dosNameAndSize += L"XXXXXXXX.XXX  ";
  }
  if (shown.Size) {
    dosNameAndSize += L"0.000 kb";
  }
  at.DosName = at.SizeEnd - measure.WidthOf(dosNameAndSize);
  at.NameWidth = at.DosName - measure.WidthOf(kTwoBlanks);
  return at;
}

DirectoryPositions PlaceDirectoryColumns(const DirectoryColumns& shown, double usableWidth,
                                         const TextMeasure& measure) {
  const double count = measure.WidthOf(L"  000.000");
  const double size = measure.WidthOf(L"  0.000 kb");
  DirectoryPositions at;
  at.Ends[3] = usableWidth;
  at.Ends[2] = at.Ends[3] - (shown.TotalSize ? size : 0);
  at.Ends[1] = at.Ends[2] - (shown.TotalFiles ? count : 0);
  at.Ends[0] = at.Ends[1] - (shown.Size ? size : 0);
  at.NameWidth = at.Ends[0] - (shown.Files ? count : 0);
  return at;
}

FoundPositions PlaceFoundColumns(double lineOrigin, double usableWidth, const TextMeasure& measure) {
  FoundPositions at;
  at.Date = usableWidth - measure.WidthOf(L"00/00/0000 00:00");
  at.SizeEnd = at.Date - measure.WidthOf(kTwoBlanks);
  const double sizeBegin = at.SizeEnd - measure.WidthOf(L"    00.000 kb");
  at.NameWidth = (sizeBegin - lineOrigin) / 3;
  at.Folder = measure.WidthOf(kTwoBlanks) + lineOrigin + at.NameWidth;
  at.FolderWidth = 2 * at.NameWidth;
  return at;
}

}  // namespace folivant
