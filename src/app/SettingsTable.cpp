// One row for each setting: who saves it, whether it travels, where it lies, its default and its member.
#include "app/SettingsTable.h"

#include <vector>

#include "app/mdlVars.h"

namespace folivant {
namespace {

constexpr wchar_t kFilter[] = L"Filter";
constexpr wchar_t kFormat[] = L"Format";

}  // namespace

std::span<const Setting> Settings() {
  using enum SettingRoute;
  using enum SettingWritten;
  using G = SettingGroup;
  GeneralSettings& general = mdlVars::General;
  PrinterSettings& printer = mdlVars::Printer;
  FilterSettings& filter = mdlVars::Filter;
  ListingFormat& format = mdlVars::Format;
  static const std::vector<Setting> settings = {
      {G::General, Store, kSettingsSection, L"TextViewer", L"notepad.exe", &general.TextViewer},
      {G::General, Store, kSettingsSection, L"TextWidth", L"80",
       RangedMember{&general.TextWidth, kReadableTextWidths, kTextWidths}},
      {G::General, Store, kSettingsSection, L"TextHeight", L"26", &general.TextHeight},
      {G::General, Store, kSettingsSection, L"DateFormat", L"5", &general.DateFormat},
      {G::General, Store, kSettingsSection, L"Inches", L"False", &general.Inches},
      {G::General, Store, kSettingsSection, L"ExitWhenDone", L"True", &general.ExitWhenDone},
      {G::General, Store, kSettingsSection, L"FilesFirst", L"True", &general.FilesFirst},
      {G::General, Store, kSettingsSection, L"EmptyDirs", L"False", &general.EmptyDirs},
      {G::General, Store, kSettingsSection, L"Language", L"english.ini", &general.Language},
      {G::General, Ex, kSettingsSection, L"MarginLeft", L"20", &general.MarginLeft},
      {G::General, Ex, kSettingsSection, L"MarginRight", L"20", &general.MarginRight},
      {G::General, Ex, kSettingsSection, L"MarginTop", L"15", &general.MarginTop},
      {G::General, Ex, kSettingsSection, L"MarginBottom", L"20", &general.MarginBottom},
      // Written under one key and read from another, on purpose: every start opens in portrait.
      {G::General, Ex, kSettingsSection, L"Port", L"True", &general.Portrait, L"Portrait"},
      {G::General, Ex, kSettingsSection, L"FontName", L"Courier New", &general.FontName},
      {G::General, Ex, kSettingsSection, L"FontSize", L"10", &general.FontSize},
      {G::General, Ex, kSettingsSection, L"Font80HF", L"True", &general.Font80HF},
      {G::General, Ex, kSettingsSection, L"FontNameHF", L"Courier New", &general.FontNameHF},
      {G::General, Ex, kSettingsSection, L"FontSizeHF", L"8", &general.FontSizeHF},
      {G::General, Ex, kSettingsSection, L"Header", L"Folivant - %d %t   %p (%g)", &general.Header},
      {G::General, Ex, kSettingsSection, L"Footer", L"- %n -", &general.Footer},
      {G::General, Ex, kSettingsSection, L"FollowLinks", L"True", &general.FollowLinks, nullptr, {}, WhenChanged},
      {G::General, Ex, kSettingsSection, L"NaturalOrder", L"False", &general.NaturalOrder, nullptr, {}, WhenChanged},
      {G::General, Ex, kSettingsSection, L"RecordOwner", L"False", &general.RecordOwner, nullptr, {}, WhenChanged},
      {G::General, Ex, kSettingsSection, L"RecordLinks", L"False", &general.RecordLinks, nullptr, {}, WhenChanged},
      {G::General, Ex, kSettingsSection, L"RecordSha256", L"False", &general.RecordSha256, nullptr, {}, WhenChanged},
      {G::General, Ex, kSettingsSection, L"CsvApostrophe", L"False", &general.CsvApostrophe, nullptr, {}, WhenChanged},

      {G::Printer, Store, kSettingsSection, L"PrinterName", kNoPrinter, &printer.PrinterName},
      {G::Printer, Store, kSettingsSection, L"PrinterCopies", L"1", &printer.PrinterCopies},
      {G::Printer, Store, kSettingsSection, L"PrinterDuplex", L"1", &printer.PrinterDuplex},
      {G::Printer, Store, kSettingsSection, L"PrinterQuality", L"-2", &printer.PrinterQuality},
      {G::Printer, Store, kSettingsSection, L"PrinterPaperBin", L"1", &printer.PrinterPaperBin},

      {G::Filter, Ex, kFilter, L"Filter", L"1000",
       SwitchGroup{{&filter.NameOn, &filter.SizeOn, &filter.DateOn, &filter.AttrOn}}},
      {G::Filter, Ex, kFilter, L"FilterName", L"*.*", &filter.FilterName},
      {G::Filter, Ex, kFilter, L"FilterSizeMin", L"True", &filter.SizeMin},
      {G::Filter, Ex, kFilter, L"FilterSize", L"0", &filter.FilterSize},
      {G::Filter, Ex, kFilter, L"FilterDateMin", L"1980/01/01", DayMember{&filter.DateMin}},
      {G::Filter, Ex, kFilter, L"FilterDateMax", L"2039/12/31", DayMember{&filter.DateMax}},
      {G::Filter, Ex, kFilter, L"Attr", L"22002", &filter.Attributes, nullptr, OldKey{5, 5}},
      {G::Filter, Ex, kFilter, L"OrderBy", L"1", &filter.OrderBy},
      {G::Filter, Ex, kFilter, L"OrderAZ", L"True", &filter.OrderAZ},

      {G::Style, Ex, kSettingsSection, L"Format", L"1", &format.ListingStyle},

      {G::Columns, Ex, kFormat, L"SubLevel", L"0", &format.SubLevel},
      {G::Columns, Ex, kFormat, L"FShow", L"10110",
       SwitchGroup{{&format.Files.Name, &format.Files.DosName, &format.Files.Size, &format.Files.Date,
                    &format.Files.Attributes}},
       nullptr, OldKey{0, 5}},
      {G::Columns, Ex, kFormat, L"TShow", L"1111",
       SwitchGroup{{&format.Directories.Files, &format.Directories.Size, &format.Directories.TotalFiles,
                    &format.Directories.TotalSize}}},

      {G::Path, Ex, kSettingsSection, L"Path", nullptr, &mdlVars::Start.Shown},
      {G::Destination, Ex, kSettingsSection, L"OutputTo", L"0", &mdlVars::OutputTo},
  };
  return settings;
}

}  // namespace folivant
