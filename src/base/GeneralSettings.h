// The general and printer settings as records. Their keys and defaults are rows of app/Settings.cpp.
#pragma once

#include <cstdint>
#include <string>

#include "base/Numbers.h"

namespace folivant {

/// Of lines in text listings, in characters: a name is padded to what the other columns leave, and each row would carry
/// that.
inline constexpr WholeRange kTextWidths{0, 9'999};
/// Numbers below 0 work like 0 and are kept as they are; no message names them.
inline constexpr WholeRange kReadableTextWidths{kRangeOf<std::int32_t>.Lowest, kTextWidths.Highest};

struct GeneralSettings {
  std::wstring TextViewer;
  std::int32_t TextWidth = 0;   ///< characters
  std::int32_t TextHeight = 0;  ///< lines
  std::int32_t DateFormat = 0;  ///< index of a date pattern, 0 to 5
  bool Inches = false;          ///< margins are inches, otherwise millimetres
  bool ExitWhenDone = false;
  bool FilesFirst = false;
  bool EmptyDirs = false;
  std::wstring Language;                                                   ///< file name in the program folder
  float MarginLeft = 0, MarginRight = 0, MarginTop = 0, MarginBottom = 0;  ///< in the unit that Inches tells
  bool Portrait = false;
  std::wstring FontName;
  std::int16_t FontSize = 0;  ///< points
  bool Font80HF = false;      ///< header and footer at four fifths of the listing font
  std::wstring FontNameHF;
  std::int32_t FontSizeHF = 0;  ///< points
  std::wstring Header;
  std::wstring Footer;
  bool FollowLinks = true;     ///< off: junctions and symbolic links are listed and not entered
  bool NaturalOrder = false;   ///< "file2" before "file10" in the orders by name
  bool RecordOwner = false;    ///< the fields of exact records that cost an open per file
  bool RecordLinks = false;    ///< the same
  bool RecordSha256 = false;   ///< the same
  bool CsvApostrophe = false;  ///< values of exact CSV that a spreadsheet would take for formulas begin with "'"
};

/// The stored name where no printer has been chosen, the same in every language. ShownPrinterName
/// (ui/PrinterControls.h) is what the user reads.
inline constexpr wchar_t kNoPrinter[] = L"(no printer)";

struct PrinterSettings {
  std::wstring PrinterName;  ///< kNoPrinter or, likewise, empty: the default printer
  std::int32_t PrinterCopies = 0;
  std::int32_t PrinterDuplex = 0;    ///< 1 simplex, 2 vertical, 3 horizontal
  std::int32_t PrinterQuality = 0;   ///< -1 draft to -4 high
  std::int32_t PrinterPaperBin = 0;  ///< 1 upper, 2 lower, 3 middle, 4 manual
};

}  // namespace folivant
