#include "app/Settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/mdlVars.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeSession.h"
#include "platform/RuntimeError.h"
#include "platform/Text.h"

namespace folivant {
namespace {

using fakes::Fake;
using fakes::Tree;
using mdlVars::Filter;
using mdlVars::Format;
using mdlVars::General;
using mdlVars::Printer;

constexpr wchar_t kFilterFile[] = L"C:\\sets\\a.fvf";

enum class Route { Ex, Store };

/// What is known of each setting, worked out by hand: where it lies, its default, whether it travels into filter files,
/// and another value that it can take.
struct Known {
  const wchar_t* Section;
  const wchar_t* Key;
  const wchar_t* Default;
  Route Way;
  const wchar_t* Other;
};
const Known kKnown[] = {
    {L"Settings", L"TextViewer", L"notepad.exe", Route::Store, L"my viewer.exe"},
    {L"Settings", L"TextWidth", L"80", Route::Store, L"132"},
    {L"Settings", L"TextHeight", L"26", Route::Store, L"66"},
    {L"Settings", L"DateFormat", L"5", Route::Store, L"0"},
    {L"Settings", L"Inches", L"False", Route::Store, L"True"},
    {L"Settings", L"ExitWhenDone", L"True", Route::Store, L"False"},
    {L"Settings", L"FilesFirst", L"True", Route::Store, L"False"},
    {L"Settings", L"EmptyDirs", L"False", Route::Store, L"True"},
    {L"Settings", L"Language", L"english.ini", Route::Store, L"dutch.ini"},
    {L"Settings", L"MarginLeft", L"20", Route::Ex, L"12.5"},
    {L"Settings", L"MarginRight", L"20", Route::Ex, L"0.7"},
    {L"Settings", L"MarginTop", L"15", Route::Ex, L"16"},
    {L"Settings", L"MarginBottom", L"20", Route::Ex, L"17"},
    {L"Settings", L"FontName", L"Courier New", Route::Ex, L"Arial"},
    {L"Settings", L"FontSize", L"10", Route::Ex, L"12"},
    {L"Settings", L"Font80HF", L"True", Route::Ex, L"False"},
    {L"Settings", L"FontNameHF", L"Courier New", Route::Ex, L"Verdana"},
    {L"Settings", L"FontSizeHF", L"8", Route::Ex, L"9"},
    {L"Settings", L"Header", L"Folivant - %d %t   %p (%g)", Route::Ex, L"%p"},
    {L"Settings", L"Footer", L"- %n -", Route::Ex, L""},
    {L"Settings", L"PrinterName", L"(no printer)", Route::Store, L"Laser"},
    {L"Settings", L"PrinterCopies", L"1", Route::Store, L"2"},
    {L"Settings", L"PrinterDuplex", L"1", Route::Store, L"3"},
    {L"Settings", L"PrinterQuality", L"-2", Route::Store, L"-4"},
    {L"Settings", L"PrinterPaperBin", L"1", Route::Store, L"4"},
    {L"Filter", L"Filter", L"1000", Route::Ex, L"0111"},
    {L"Filter", L"FilterName", L"*.*", Route::Ex, L"*.txt, -a*"},
    {L"Filter", L"FilterSizeMin", L"True", Route::Ex, L"False"},
    {L"Filter", L"FilterSize", L"0", Route::Ex, L"100"},
    {L"Filter", L"FilterDateMin", L"1980/01/01", Route::Ex, L"1999/09/25"},
    {L"Filter", L"FilterDateMax", L"2039/12/31", Route::Ex, L"2000/02/29"},
    {L"Filter", L"Attr", L"22002", Route::Ex, L"01210"},
    {L"Filter", L"OrderBy", L"1", Route::Ex, L"5"},
    {L"Filter", L"OrderAZ", L"True", Route::Ex, L"False"},
    {L"Settings", L"Format", L"1", Route::Ex, L"4"},
    {L"Format", L"SubLevel", L"0", Route::Ex, L"-3"},
    {L"Format", L"FShow", L"10110", Route::Ex, L"01001"},
    {L"Format", L"TShow", L"1111", Route::Ex, L"0101"},
    {L"Settings", L"OutputTo", L"0", Route::Ex, L"2"},
};
// Apart from these: "Path", whose default is the current directory, and "Port", which is read from "Portrait".

/// Flags that came later: all of them lie in section "Settings", travel into filter files, and are stored only while
/// they differ from their default.
struct LaterFlag {
  const wchar_t* Key;
  bool GeneralSettings::*Member;
  bool Default;
};
const LaterFlag kLaterFlags[] = {
    {L"FollowLinks", &GeneralSettings::FollowLinks, true},
    {L"NaturalOrder", &GeneralSettings::NaturalOrder, false},
    {L"RecordOwner", &GeneralSettings::RecordOwner, false},
    {L"RecordLinks", &GeneralSettings::RecordLinks, false},
    {L"RecordSha256", &GeneralSettings::RecordSha256, false},
    {L"CsvApostrophe", &GeneralSettings::CsvApostrophe, false},
};

std::wstring Word(bool flag) {
  return flag ? L"True" : L"False";
}

void FilterFile(const std::string& lines) {
  Tree().File(kFilterFile, "[Folivant 3.5]\r\n" + lines);
}

std::vector<BadSetting> LoadWith(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
  Fake().Store[{section, key}] = value;
  return LoadSettings();
}

std::string Narrow(const std::wstring& text) {
  return {text.begin(), text.end()};
}

TEST(Settings, FirstStartHasTheDefaults) {
  EXPECT_TRUE(LoadSettings().empty());
  EXPECT_EQ(General.TextViewer, L"notepad.exe");
  EXPECT_EQ(General.TextWidth, 80);
  EXPECT_EQ(General.TextHeight, 26);
  EXPECT_EQ(General.DateFormat, 5);
  EXPECT_FALSE(General.Inches);
  EXPECT_TRUE(General.ExitWhenDone);
  EXPECT_TRUE(General.FilesFirst);
  EXPECT_FALSE(General.EmptyDirs);
  EXPECT_EQ(General.Language, L"english.ini");
  EXPECT_EQ(General.MarginLeft, 20);
  EXPECT_EQ(General.MarginRight, 20);
  EXPECT_EQ(General.MarginTop, 15);
  EXPECT_EQ(General.MarginBottom, 20);
  EXPECT_TRUE(General.Portrait);
  EXPECT_EQ(General.FontName, L"Courier New");
  EXPECT_EQ(General.FontSize, 10);
  EXPECT_TRUE(General.Font80HF);
  EXPECT_EQ(General.FontNameHF, L"Courier New");
  EXPECT_EQ(General.FontSizeHF, 8);
  EXPECT_EQ(General.Header, L"Folivant - %d %t   %p (%g)");
  EXPECT_EQ(General.Footer, L"- %n -");
  EXPECT_EQ(Printer.PrinterName, L"(no printer)");
  EXPECT_EQ(Printer.PrinterQuality, -2);
  EXPECT_TRUE(Filter.NameOn);
  EXPECT_FALSE(Filter.SizeOn || Filter.DateOn || Filter.AttrOn);
  EXPECT_EQ(Filter.FilterName, L"*.*");
  EXPECT_EQ(Filter.DateMin, 29221);  // 1980-01-01
  EXPECT_EQ(Filter.DateMax, 51135);  // 2039-12-31
  EXPECT_THAT(Filter.Attributes,
              testing::ElementsAre(AttributeChoice::DoNotCare, AttributeChoice::DoNotCare, AttributeChoice::MustNotHave,
                                   AttributeChoice::MustNotHave, AttributeChoice::DoNotCare));
  EXPECT_EQ(Filter.OrderBy, OrderBy::Name);
  EXPECT_EQ(Format.ListingStyle, ListingStyle::IncludeSubdirectories);
  EXPECT_TRUE(Format.Files.Name && Format.Files.Size && Format.Files.Date);
  EXPECT_FALSE(Format.Files.DosName || Format.Files.Attributes);
  EXPECT_TRUE(Format.Directories.Files && Format.Directories.TotalSize);
  EXPECT_EQ(mdlVars::OutputTo, OutputTarget::Printer);
  EXPECT_EQ(mdlVars::Start.Shown, L"C:\\Work");
}

TEST(Settings, LoadingWritesNothing) {
  LoadSettings();
  EXPECT_TRUE(Fake().Store.empty());
}

TEST(Settings, DefaultsAreSavedUnderTheirKeys) {
  Tree().Dir(L"C:\\Work");
  LoadSettings();
  SaveSettings();
  for (const Known& known : kKnown) {
    EXPECT_EQ((Fake().Store[{known.Section, known.Key}]), known.Default) << Narrow(known.Key);
  }
  EXPECT_EQ((Fake().Store[{L"Settings", L"Port"}]), L"True");
  EXPECT_EQ((Fake().Store[{L"Settings", L"Path"}]), L"C:\\Work");
  EXPECT_EQ(Fake().Store.size(), std::size(kKnown) + 2);
}

TEST(Settings, EveryValueComesBackAsItWasStored) {
  Tree().Dir(L"C:\\Work");
  for (const Known& known : kKnown) {
    Fake().Store[{known.Section, known.Key}] = known.Other;
  }
  EXPECT_TRUE(LoadSettings().empty());
  Fake().Store.clear();
  SaveSettings();
  for (const Known& known : kKnown) {
    EXPECT_EQ((Fake().Store[{known.Section, known.Key}]), known.Other) << Narrow(known.Key);
  }
}

TEST(Settings, KeysLieInTheirOwnSectionAlone) {
  for (const Known& known : kKnown) {
    for (const wchar_t* section : {L"Settings", L"Filter", L"Format"}) {
      if (std::wstring(section) != known.Section) {
        Fake().Store[{section, known.Key}] = known.Other;
      }
    }
  }
  EXPECT_TRUE(LoadSettings().empty());
  Fake().Store.clear();
  SaveSettings();
  for (const Known& known : kKnown) {
    EXPECT_EQ((Fake().Store[{known.Section, known.Key}]), known.Default) << Narrow(known.Key);
  }
}

TEST(Settings, AFilterFileCarriesTheExSettingsAlone) {
  Tree().Dir(L"C:\\Work");
  Tree().Dir(L"C:\\sets");
  LoadSettings();
  SaveFilterFile(kFilterFile);
  const std::string content = Fake().Content(kFilterFile);
  EXPECT_TRUE(content.starts_with("[Folivant 3.5]\r\n")) << content;
  for (const Known& known : kKnown) {
    const bool carried = content.find("\n" + Narrow(known.Key) + "=" + Narrow(known.Default)) != content.npos;
    EXPECT_EQ(carried, known.Way == Route::Ex) << Narrow(known.Key);
  }
  EXPECT_NE(content.find("\nPort=True\r\n"), content.npos);
  EXPECT_NE(content.find("\nPath=C:\\Work\r\n"), content.npos);
  EXPECT_TRUE(Fake().Store.empty());
  EXPECT_FALSE(mdlVars::UseFilterFile);
}

TEST(Settings, LoadingAFilterFileLeavesMachineSettingsUntouched) {
  for (const Known& known : kKnown) {
    Fake().Store[{known.Section, known.Key}] = known.Other;
  }
  LoadSettings();
  std::string lines;
  for (const Known& known : kKnown) {
    lines += Narrow(known.Key) + "=" + Narrow(known.Default) + "\r\n";
  }
  FilterFile(lines);
  LoadFilterFile(kFilterFile);
  Fake().Store.clear();
  SaveSettings();
  for (const Known& known : kKnown) {
    const wchar_t* const expected = known.Way == Route::Ex ? known.Default : known.Other;
    EXPECT_EQ((Fake().Store[{known.Section, known.Key}]), expected) << Narrow(known.Key);
  }
  EXPECT_FALSE(mdlVars::UseFilterFile);
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST(Settings, ALaterFlagIsStoredOnlyWhileItIsChanged) {
  for (const LaterFlag& flag : kLaterFlags) {
    LoadWith(L"Settings", flag.Key, Word(!flag.Default));
    SaveSettings();
    EXPECT_EQ((Fake().Store[{L"Settings", flag.Key}]), Word(!flag.Default)) << Narrow(flag.Key);
    EXPECT_EQ(Fake().Store.size(), std::size(kKnown) + 2) << "\"Path\" is no directory here";
    LoadWith(L"Settings", flag.Key, Word(flag.Default));
    SaveSettings();
    EXPECT_EQ(Fake().Store.count({L"Settings", flag.Key}), 0U) << Narrow(flag.Key);
  }
}

TEST(Settings, ALaterFlagTravelsIntoAFilterFileOnlyWhileItIsChanged) {
  Tree().Dir(L"C:\\sets");
  LoadSettings();
  SaveFilterFile(kFilterFile);
  const std::string without = Fake().Content(kFilterFile);
  for (const LaterFlag& flag : kLaterFlags) {
    const std::string line = "\r\n" + Narrow(flag.Key) + "=";
    EXPECT_EQ(without.find(line), without.npos);
    FilterFile(Narrow(flag.Key) + "=" + Narrow(Word(!flag.Default)) + "\r\n");
    LoadFilterFile(kFilterFile);
    SaveFilterFile(kFilterFile);
    EXPECT_NE(Fake().Content(kFilterFile).find(line + Narrow(Word(!flag.Default)) + "\r\n"), without.npos);
    FilterFile(Narrow(flag.Key) + "=" + Narrow(Word(flag.Default)) + "\r\n");
    LoadFilterFile(kFilterFile);
    SaveFilterFile(kFilterFile);
    EXPECT_EQ(Fake().Content(kFilterFile).find(line), without.npos);
  }
}

TEST(Settings, EachLaterFlagIsOneOfItsOwn) {
  for (const LaterFlag& changed : kLaterFlags) {
    FilterFile(Narrow(changed.Key) + "=" + Narrow(Word(!changed.Default)) + "\r\n");
    LoadFilterFile(kFilterFile);
    for (const LaterFlag& flag : kLaterFlags) {
      EXPECT_EQ(General.*flag.Member, flag.Default != (flag.Key == changed.Key)) << Narrow(flag.Key);
    }
  }
}

TEST(Settings, AFilterFileWithoutAPathGivesTheCurrentDirectory) {
  mdlVars::Start.Shown = L"D:\\Before";
  FilterFile("Format=0\r\n");
  LoadFilterFile(kFilterFile);
  EXPECT_EQ(mdlVars::Start.Shown, L"C:\\Work");
  EXPECT_EQ(mdlVars::Start.OnDisk, L"C:\\Work");
}

TEST(Settings, AnEmptyPathCountsAsMissing) {
  for (const char* line : {"Path=\r\n", "Path=   \r\n", "Path=\"  \"\r\n"}) {
    mdlVars::Start.Shown = L"D:\\Before";
    FilterFile(line);
    LoadFilterFile(kFilterFile);
    EXPECT_EQ(mdlVars::Start.Shown, L"C:\\Work") << line;
    EXPECT_EQ(mdlVars::Start.OnDisk, L"C:\\Work");
  }
  EXPECT_TRUE(LoadWith(L"Settings", L"Path", L"").empty());
  EXPECT_EQ(mdlVars::Start.Shown, L"C:\\Work");
}

TEST(Settings, AMissingFilterFileGivesTheDefaultsOfWhatItCouldHold) {
  General.TextWidth = 132;
  Format.SubLevel = 7;
  LoadFilterFile(L"C:\\none.fvf");
  EXPECT_EQ(Format.SubLevel, 0);
  EXPECT_EQ(General.TextWidth, 132);
}

TEST(Settings, AMalformedFilterFileGivesTheDefaults) {
  const std::string files[] = {std::string("\0\xFF[[[\r\n=\r\n]=[\x1A", 14), "SubLevel=3\r\n",
                               "[Folivant 3.5\r\nSubLevel=3", "[Other]\r\nSubLevel=3\r\n",
                               std::string("\xFF\xFE\x5B", 3)};
  for (const std::string& content : files) {
    Tree().File(kFilterFile, content);
    Format.SubLevel = 7;
    LoadFilterFile(kFilterFile);
    EXPECT_EQ(Format.SubLevel, 0) << content;
  }
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST(Settings, AnUnreadableFilterFileIsAnErrorAndTheStoreIsInUseAgain) {
  FilterFile("");
  Fake().FailReads[kFilterFile] = fakes::AccessDenied();
  EXPECT_THROW(LoadFilterFile(kFilterFile), RuntimeError);
  EXPECT_FALSE(mdlVars::UseFilterFile);
}

TEST(Settings, SavingKeepsWhatElseAFilterFileHolds) {
  Tree().Dir(L"C:\\Work");
  Tree().File(kFilterFile, "; mine\r\n[Other]\r\nkey=1\r\n[folivant 3.5]\r\nsublevel=9\r\nNote=keep\r\n");
  LoadSettings();
  SaveFilterFile(kFilterFile);
  const std::string content = Fake().Content(kFilterFile);
  EXPECT_TRUE(content.starts_with("; mine\r\n[Other]\r\nkey=1\r\n[folivant 3.5]\r\nsublevel=0\r\nNote=keep\r\n"))
      << content;
}

TEST(Settings, AFailedSaveLeavesTheFilterFileAsItWas) {
  FilterFile("SubLevel=3\r\n");
  LoadSettings();
  Fake().FailReplaces[kFilterFile] = fakes::DiskFull();
  EXPECT_THROW(SaveFilterFile(kFilterFile), RuntimeError);
  EXPECT_EQ(Fake().Content(kFilterFile), "[Folivant 3.5]\r\nSubLevel=3\r\n");
  EXPECT_FALSE(mdlVars::UseFilterFile);
}

TEST(Settings, ANewFilterFileIsAnsiUntilAValueNeedsMore) {
  Tree().Dir(L"C:\\Work");
  Tree().Dir(L"C:\\sets");
  LoadSettings();
  General.Header = L"Caf\u00E9";
  SaveFilterFile(kFilterFile);
  EXPECT_NE(Fake().Content(kFilterFile).find("Header=Caf\xE9\r\n"), std::string::npos);
  General.Header = L"\u0416";
  SaveFilterFile(L"C:\\sets\\b.fvf");
  EXPECT_TRUE(Fake().Content(L"C:\\sets\\b.fvf").starts_with(std::string("\xFF\xFE[\0F\0", 6)));
  General.Header.clear();
  LoadFilterFile(L"C:\\sets\\b.fvf");
  EXPECT_EQ(General.Header, L"\u0416");
}

std::string BigEndian(const std::wstring& text) {
  std::string bytes = platform::ToUtf16(text);
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    std::swap(bytes[i], bytes[i + 1]);
  }
  return bytes;
}

/// A filter file of the given lines, in each encoding.
std::vector<std::string> InEveryEncoding(const std::wstring& lines) {
  const std::wstring text = L"[Folivant 3.5]\r\n" + lines;
  const std::string ascii = platform::ToAnsi(text);
  return {"; \xE9\r\n" + ascii, "; \xC3\xA9\r\n" + ascii, "\xEF\xBB\xBF" + ascii, "\xFF\xFE" + platform::ToUtf16(text),
          "\xFE\xFF" + BigEndian(text)};
}

TEST(Settings, AFilterFileIsReadInEveryEncoding) {
  for (const std::string& file : InEveryEncoding(L"SubLevel=3\r\n")) {
    Tree().File(kFilterFile, file);
    Format.SubLevel = 0;
    LoadFilterFile(kFilterFile);
    EXPECT_EQ(Format.SubLevel, 3) << file;
  }
}

TEST(Settings, ASavedPathComesBackWhateverItsLettersAre) {
  for (const wchar_t* path : {L"C:\\Work", L"C:\\Caf\u00E9", L"C:\\\u0416", L"C:\\\U0001F600", L"C:\\\u00C3\u00A9"}) {
    Tree().Dir(path);
    std::vector<std::string> before = InEveryEncoding(L"");
    before.emplace_back();  // a new file
    for (const std::string& file : before) {
      LoadSettings();
      Tree().File(kFilterFile, file);
      mdlVars::Start.Shown = path;
      SaveFilterFile(kFilterFile);
      EXPECT_EQ(Fake().Content(kFilterFile).find('?'), std::string::npos);
      mdlVars::Start.Shown.clear();
      LoadFilterFile(kFilterFile);
      EXPECT_EQ(mdlVars::Start.Shown, path) << Fake().Content(kFilterFile);
    }
  }
}

TEST(Settings, AFilterFileKeepsItsEncoding) {
  Tree().Dir(L"C:\\\u0416");
  LoadSettings();
  mdlVars::Start.Shown = L"C:\\\u0416";
  Tree().File(kFilterFile, "; Caf\xC3\xA9\r\n[Folivant 3.5]\r\n");
  SaveFilterFile(kFilterFile);
  EXPECT_TRUE(Fake().Content(kFilterFile).starts_with("; Caf\xC3\xA9\r\n[Folivant 3.5]\r\n"));
  EXPECT_NE(Fake().Content(kFilterFile).find("\r\nPath=C:\\\xD0\x96\r\n"), std::string::npos);
}

TEST(Settings, OuterBlanksSurviveAFilterFile) {
  Tree().Dir(L"C:\\Work");
  Tree().Dir(L"C:\\sets");
  LoadSettings();
  General.Footer = L"  - %n -  ";
  SaveFilterFile(kFilterFile);
  General.Footer.clear();
  LoadFilterFile(kFilterFile);
  EXPECT_EQ(General.Footer, L"  - %n -  ");
}

TEST(Settings, AValueOfAFilterFileEndsAfter259Characters) {
  FilterFile("Header=" + std::string(259, 'a') + "b\r\nFooter=" + std::string(259, 'c') + "\r\n");
  LoadFilterFile(kFilterFile);
  EXPECT_EQ(General.Header, std::wstring(259, L'a'));
  EXPECT_EQ(General.Footer, std::wstring(259, L'c'));
}

TEST(Settings, AValueOfTheStoreIsNotCut) {
  LoadWith(L"Settings", L"Header", std::wstring(1000, L'a'));
  EXPECT_EQ(General.Header.size(), 1000u);
}

TEST(Settings, LandscapeDoesNotComeBack) {
  LoadSettings();
  General.Portrait = false;
  SaveSettings();
  EXPECT_EQ((Fake().Store[{L"Settings", L"Port"}]), L"False");
  EXPECT_EQ(Fake().Store.count({L"Settings", L"Portrait"}), 0u);
  LoadSettings();
  EXPECT_TRUE(General.Portrait);
}

TEST(Settings, APortraitValueIsRead) {
  LoadWith(L"Settings", L"Portrait", L"False");
  EXPECT_FALSE(General.Portrait);
}

TEST(Settings, TheStyleOfASentFileIsNotRemembered) {
  Fake().Store[{L"Settings", L"Format"}] = L"3";
  LoadSettings();
  Format.ListingStyle = ListingStyle::PathListFile;
  SaveSettings();
  SaveListingStyle();
  EXPECT_EQ((Fake().Store[{L"Settings", L"Format"}]), L"3");
}

TEST(Settings, ADirectoryThatIsGoneIsNotRemembered) {
  Fake().Store[{L"Settings", L"Path"}] = L"C:\\Gone";
  LoadSettings();
  mdlVars::Start.Shown = L"C:\\Gone too";
  SaveSettings();
  EXPECT_EQ((Fake().Store[{L"Settings", L"Path"}]), L"C:\\Gone");
}

TEST(Settings, TheOlderKeyStandsInForColumnsAndAttributes) {
  LoadWith(L"Settings", L"Show", L"0101101210");
  EXPECT_FALSE(Format.Files.Name || Format.Files.Size);
  EXPECT_TRUE(Format.Files.DosName && Format.Files.Date && Format.Files.Attributes);
  EXPECT_THAT(Filter.Attributes,
              testing::ElementsAre(AttributeChoice::MustNotHave, AttributeChoice::MustHave, AttributeChoice::DoNotCare,
                                   AttributeChoice::MustHave, AttributeChoice::MustNotHave));
  SaveSettings();
  EXPECT_EQ((Fake().Store[{L"Settings", L"Show"}]), L"0101101210");
  EXPECT_EQ((Fake().Store[{L"Format", L"FShow"}]), L"01011");
}

TEST(Settings, TheOlderKeyIsLookedForInTheAskingSectionFirst) {
  Fake().Store[{L"Settings", L"Show"}] = L"0000000000";
  Fake().Store[{L"Format", L"Show"}] = L"11111";
  LoadSettings();
  EXPECT_TRUE(Format.Files.DosName);
  EXPECT_EQ(Filter.Attributes[kAttrArchive], AttributeChoice::MustNotHave);
}

TEST(Settings, TheNewerKeyGoesFirst) {
  Fake().Store[{L"Settings", L"Show"}] = L"0000000000";
  LoadWith(L"Format", L"FShow", L"10001");
  EXPECT_TRUE(Format.Files.Name && Format.Files.Attributes);
}

TEST(Settings, TheOlderKeyIsReadFromFilterFilesToo) {
  FilterFile("Show=1011122002\r\n");
  LoadFilterFile(kFilterFile);
  EXPECT_TRUE(Format.Files.Name && !Format.Files.DosName && Format.Files.Size && Format.Files.Date);
  EXPECT_TRUE(Format.Files.Attributes);
}

TEST(Settings, ABadValueIsToldAndTakesItsDefault) {
  const struct {
    const wchar_t* section;
    const wchar_t* key;
    const wchar_t* value;
  } rows[] = {
      {L"Settings", L"TextWidth", L"wide"},
      {L"Settings", L"TextWidth", L""},
      {L"Settings", L"TextWidth", L"12x"},
      {L"Settings", L"TextWidth", L"99999999999"},
      {L"Settings", L"FontSize", L"40000"},
      {L"Settings", L"Inches", L"perhaps"},
      {L"Settings", L"MarginLeft", L"1,2,3x"},
      {L"Settings", L"MarginLeft", L"nan"},
      {L"Settings", L"MarginLeft", L"inf"},
      {L"Filter", L"Filter", L"10"},
      {L"Filter", L"Filter", L"1a00"},
      {L"Filter", L"Filter", L"1/00"},  // the neighbours of the digits
      {L"Filter", L"Filter", L"1:00"},
      {L"Filter", L"Attr", L"22/02"},
      {L"Filter", L"Attr", L"22302"},
      {L"Filter", L"Attr", L""},
      {L"Filter", L"FilterDateMin", L"1999/13/01"},
      {L"Filter", L"FilterDateMin", L"1999/02/29"},
      {L"Filter", L"FilterDateMax", L"2000/04/31"},  // of a leap year
      {L"Filter", L"FilterDateMax", L"tomorrow"},
      {L"Filter", L"FilterDateMax", L"1999/09"},
      {L"Format", L"TShow", L"111"},
      {L"Settings", L"OutputTo", L"screen"},
      {L"Settings", L"Format", L"\u0663"},
  };
  for (const auto& row : rows) {
    Fake().Store.clear();
    const std::vector<BadSetting> bad = LoadWith(row.section, row.key, row.value);
    ASSERT_EQ(bad.size(), 1u) << Narrow(row.key);
    EXPECT_EQ(bad[0].Location, std::wstring(L"HKEY_CURRENT_USER\\Software\\Folivant 3.0\\") + row.section);
    EXPECT_EQ(bad[0].Key, row.key);
    EXPECT_EQ(bad[0].Value, row.value);
    EXPECT_EQ((Fake().Store[{row.section, row.key}]), row.value) << "reading must not repair";
    SaveSettings();
    for (const Known& known : kKnown) {
      if (std::wstring(known.Key) == row.key) {
        EXPECT_EQ((Fake().Store[{row.section, row.key}]), known.Default) << Narrow(row.key);
      }
    }
  }
}

TEST(Settings, ABadOlderKeyIsToldByItsOwnName) {
  const std::vector<BadSetting> bad = LoadWith(L"Settings", L"Show", L"101");
  ASSERT_EQ(bad.size(), 2u);  // columns and attributes
  EXPECT_EQ(bad[0].Key, L"Show");
  EXPECT_EQ(bad[1].Value, L"101");
  EXPECT_TRUE(Format.Files.Date);
}

TEST(Settings, ABadValueOfAFilterFileIsReportedWithTheFile) {
  mdlVars::Texts.Set(static_cast<std::size_t>(TextId::BadSetting), L"%1|%2|%3");
  FilterFile("SubLevel=deep\r\n");
  LoadFilterFile(kFilterFile);
  ASSERT_EQ(Fake().Messages.size(), 1u);
  EXPECT_EQ(Fake().Messages[0].Text, L"C:\\sets\\a.fvf|SubLevel|deep");
  EXPECT_EQ(Fake().Messages[0].Icon, platform::BoxIcon::Exclamation);
}

TEST(Settings, BadValuesAreReportedInOneList) {
  mdlVars::Texts.Set(static_cast<std::size_t>(TextId::BadSettings), L"Bad in %1:");
  FilterFile("SubLevel=deep\r\nOrderBy=" + std::string(61, 'x') + "\r\nFilter=\r\nFontSize=" + std::string(60, 'y') +
             "\r\n");
  LoadFilterFile(kFilterFile);
  ASSERT_EQ(Fake().Messages.size(), 1u);
  EXPECT_EQ(Fake().Messages[0].Text, L"Bad in C:\\sets\\a.fvf:\r\n\r\nFontSize=" + std::wstring(60, L'y') +
                                         L"\r\nFilter=\r\nOrderBy=" + std::wstring(60, L'x') + L"...\r\nSubLevel=deep");
  EXPECT_EQ(Fake().Messages[0].Icon, platform::BoxIcon::Exclamation);
  EXPECT_EQ(Fake().Messages[0].Buttons, platform::BoxButtons::Ok);
}

TEST(Settings, AVeryLongListOfBadValuesIsCut) {
  mdlVars::Texts.Set(static_cast<std::size_t>(TextId::BadSettings), L"Bad in %1:");
  mdlVars::Texts.Set(static_cast<std::size_t>(TextId::MoreBadSettings), L"and %1 more");
  const std::string ten =
      "MarginLeft=x\r\nMarginRight=x\r\nMarginTop=x\r\nMarginBottom=x\r\nPortrait=x\r\nFontSize=x\r\nFont80HF=x\r\n"
      "FontSizeHF=x\r\nFilter=x\r\nFilterSizeMin=x\r\n";
  FilterFile(ten);
  LoadFilterFile(kFilterFile);
  FilterFile(ten + "OrderBy=x\r\nSubLevel=x\r\n");
  LoadFilterFile(kFilterFile);
  ASSERT_EQ(Fake().Messages.size(), 2u);
  EXPECT_TRUE(Fake().Messages[0].Text.ends_with(L"\r\nFilter=x\r\nFilterSizeMin=x"));
  EXPECT_EQ(Fake().Messages[1].Text, Fake().Messages[0].Text + L"\r\nand 2 more");
}

TEST(Settings, BadValuesOfTheStoreAreListedBelowTheirPlaces) {
  mdlVars::Texts.Set(static_cast<std::size_t>(TextId::BadSettings), L"Bad in %1:");
  Fake().Store[{L"Settings", L"TextWidth"}] = L"wide";
  ReportBadSettings(LoadWith(L"Format", L"SubLevel", L"deep"));
  ASSERT_EQ(Fake().Messages.size(), 1u);
  EXPECT_EQ(Fake().Messages[0].Text,
            L"Bad in HKEY_CURRENT_USER\\Software\\Folivant 3.0\\Settings:\r\n\r\nTextWidth=wide\r\n\r\n"
            L"Bad in HKEY_CURRENT_USER\\Software\\Folivant 3.0\\Format:\r\n\r\nSubLevel=deep");
}

TEST(Settings, NothingIsReportedWhereNothingIsBad) {
  ReportBadSettings({});
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST(Settings, AFileWithoutSettingsIsLoadedOnlyIfTheUserWantsTheDefaults) {
  mdlVars::Texts.Set(static_cast<std::size_t>(TextId::LoadDefaults), L"Nothing in %1. Defaults?");
  for (const char* content : {"", "Just a letter.\r\n", "[Other]\r\nSubLevel=3\r\n", "SubLevel=3\r\n"}) {
    Tree().File(kFilterFile, content);
    Format.SubLevel = 7;
    mdlVars::FilterFile = L"C:\\before.fvf";
    Fake().Messages.clear();
    Fake().Answers = {platform::BoxAnswer::No};
    EXPECT_FALSE(LoadFilterFileIfWanted(kFilterFile)) << content;
    EXPECT_EQ(Format.SubLevel, 7);
    EXPECT_EQ(mdlVars::FilterFile, L"C:\\before.fvf");
    ASSERT_EQ(Fake().Messages.size(), 1u);
    EXPECT_EQ(Fake().Messages[0].Text, L"Nothing in C:\\sets\\a.fvf. Defaults?");
    EXPECT_EQ(Fake().Messages[0].Icon, platform::BoxIcon::Question);
    EXPECT_EQ(Fake().Messages[0].Buttons, platform::BoxButtons::YesNo);
    EXPECT_EQ(Fake().Messages[0].Preset, platform::BoxDefault::Second);
    Fake().Answers = {platform::BoxAnswer::Yes};
    EXPECT_TRUE(LoadFilterFileIfWanted(kFilterFile));
    EXPECT_EQ(Format.SubLevel, 0);
    EXPECT_EQ(mdlVars::FilterFile, kFilterFile);
  }
}

TEST(Settings, AFileWithSettingsIsLoadedWithoutAQuestion) {
  for (const char* content : {"[Folivant 3.5]\r\nSubLevel=3\r\n", "\xEF\xBB\xBF[folivant 3.5]\r\nSubLevel=3\r\n"}) {
    Tree().File(kFilterFile, content);
    Format.SubLevel = 7;
    EXPECT_TRUE(LoadFilterFileIfWanted(kFilterFile));
    EXPECT_EQ(Format.SubLevel, 3);
  }
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST(Settings, NumbersAndFlagsAreReadAsPeopleWriteThem) {
  LoadWith(L"Settings", L"TextWidth", L" +100 ");
  EXPECT_EQ(General.TextWidth, 100);
  LoadWith(L"Settings", L"Inches", L"TRUE");
  EXPECT_TRUE(General.Inches);
  LoadWith(L"Settings", L"Inches", L"0");
  EXPECT_FALSE(General.Inches);
  LoadWith(L"Settings", L"Inches", L"-1");
  EXPECT_TRUE(General.Inches);
  LoadWith(L"Settings", L"Inches", L"0.0");
  EXPECT_FALSE(General.Inches);
  Fake().Locale.DecimalSeparator = L",";
  LoadWith(L"Settings", L"Inches", L"0,5");
  EXPECT_TRUE(General.Inches);
}

TEST(Settings, AFractionOfAWholeNumberIsRounded) {
  const std::pair<const wchar_t*, int> rows[] = {{L"79.6", 80}, {L"80.5", 80}, {L"81.5", 82}, {L"-0.5", 0}};
  for (const auto& [text, width] : rows) {
    EXPECT_TRUE(LoadWith(L"Settings", L"TextWidth", text).empty());
    EXPECT_EQ(General.TextWidth, width) << Narrow(text);
  }
  EXPECT_EQ(LoadWith(L"Settings", L"FontSize", L"32767.5").size(), 1u) << "rounds to more than there is room for";
}

TEST(Settings, CodesTakeEveryNumberOfTheirWidth) {
  const std::tuple<const wchar_t*, const wchar_t*, const wchar_t*, bool> rows[] = {
      {L"Format", L"SubLevel", L"-2147483648", true}, {L"Format", L"SubLevel", L"-2147483649", false},
      {L"Format", L"SubLevel", L"2147483647", true},  {L"Format", L"SubLevel", L"2147483648", false},
      {L"Filter", L"OrderBy", L"-32768", true},       {L"Filter", L"OrderBy", L"-32769", false},
      {L"Filter", L"OrderBy", L"32767", true},        {L"Filter", L"OrderBy", L"32768", false},
  };
  for (const auto& [section, key, value, fits] : rows) {
    EXPECT_EQ(LoadWith(section, key, value).empty(), fits) << Narrow(value);
    if (fits) {
      SaveSettings();
      EXPECT_EQ((Fake().Store[{section, key}]), value);
    }
    Fake().Store.clear();
  }
}

TEST(Settings, DatesAreReadWithAnyCharacterBetweenTheNumbers) {
  for (const wchar_t* text : {L"1999/09/25", L"1999-9-25", L"1999.09.25", L" 1999 9 25 "}) {
    EXPECT_TRUE(LoadWith(L"Filter", L"FilterDateMin", text).empty());
    EXPECT_EQ(Filter.DateMin, 36428);  // 1999-09-25
    Filter.DateMin = 0;
  }
}

TEST(Settings, OnlyDaysOfTheCalendarAreDates) {
  const std::pair<const wchar_t*, bool> rows[] = {
      {L"99/12/31", false},   {L"100/01/01", false},     {L"1752/09/13", false}, {L"1752/09/14", true},
      {L"9999/12/31", true},  {L"10000/01/01", false},   {L"2001/00/15", false}, {L"2001/01/15", true},
      {L"2001/12/15", true},  {L"2001/13/15", false},    {L"2001/01/00", false}, {L"2001/01/01", true},
      {L"2001/01/31", true},  {L"2001/01/32", false},    {L"2001/04/30", true},  {L"2001/04/31", false},
      {L"2001/02/28", true},  {L"2001/02/29", false},    {L"2004/02/29", true},  {L"2004/02/30", false},
      {L"1900/02/29", false}, {L"2000/02/29", true},     {L"2000/01/30", true},  {L"2000/03/31", true},
      {L"2001/6/7", true},    {L"2001/06/07x", false},   {L"2001/06/", false},   {L"2001//07", false},
      {L"/06/07", false},     {L"2001/06/07/08", false},
  };
  for (const auto& [text, valid] : rows) {
    EXPECT_EQ(LoadWith(L"Filter", L"FilterDateMin", text).empty(), valid) << Narrow(text);
  }
  for (const wchar_t* last : {L"01/31", L"02/28", L"03/31", L"04/30", L"05/31", L"06/30", L"07/31", L"08/31", L"09/30",
                              L"10/31", L"11/30", L"12/31"}) {
    std::wstring day = L"2001/" + std::wstring(last);
    EXPECT_TRUE(LoadWith(L"Filter", L"FilterDateMin", day).empty()) << Narrow(day);
    ++day.back();
    EXPECT_FALSE(LoadWith(L"Filter", L"FilterDateMin", day).empty()) << Narrow(day);
  }
}

TEST(Settings, DatesAreWrittenWithSlashesWhateverTheLocale) {
  Fake().Locale.DateSeparator = L".";
  LoadSettings();
  Filter.DateMin = 36428.75;
  SaveFilterSettings();
  EXPECT_EQ((Fake().Store[{L"Filter", L"FilterDateMin"}]), L"1999/09/25");
}

TEST(Settings, MarginsAreWrittenInTheUsersNumberFormat) {
  for (const std::wstring separator : {L".", L",", L"\u066B", L"/"}) {  // English, German, Arabic, Persian
    Fake().Locale.DecimalSeparator = separator;
    LoadWith(L"Settings", L"MarginLeft", L"12" + separator + L"5");
    EXPECT_EQ(General.MarginLeft, 12.5F) << testing::PrintToString(separator);
    General.MarginLeft = 17.25F;
    SaveGeneralSettings();
    EXPECT_EQ((Fake().Store[{L"Settings", L"MarginLeft"}]), L"17" + separator + L"25");
  }
}

TEST(Settings, AMarginFromAnotherCountryIsReadAsItWasMeant) {
  Fake().Locale.DecimalSeparator = L",";
  FilterFile("MarginLeft=12.5\r\n");
  LoadFilterFile(kFilterFile);
  EXPECT_EQ(General.MarginLeft, 12.5F);
}

TEST(Settings, AMarginWithACommaIsReadAsItWasMeantWhereThePointIsUsual) {
  FilterFile("MarginLeft=12,5\r\nMarginTop=0,7\r\n");
  LoadFilterFile(kFilterFile);
  EXPECT_EQ(General.MarginLeft, 12.5F);
  EXPECT_EQ(General.MarginTop, 0.7F);
  EXPECT_TRUE(Fake().Messages.empty());
}

// A whole number is written plain, so nothing else that looks like one is taken for it.
TEST(Settings, AWholeNumberMeansTheSameWhateverTheLocale) {
  for (const auto& [thousands, decimals] : {std::pair(L",", L"."), {L".", L","}, {L"\u00A0", L","}, {L"-", L"-"}}) {
    Fake().Locale = {thousands, decimals, L"/"};
    Fake().Store.clear();
    EXPECT_TRUE(LoadWith(L"Settings", L"PrinterQuality", L"-4").empty());
    EXPECT_EQ(Printer.PrinterQuality, -4);
    EXPECT_TRUE(LoadWith(L"Filter", L"FilterSize", L"1204500").empty());
    EXPECT_EQ(Filter.FilterSize, 1204500);
    SaveFilterSettings();
    EXPECT_EQ((Fake().Store[{L"Filter", L"FilterSize"}]), L"1204500");
    for (const wchar_t* const text : {L"1.000", L"1,000"}) {
      EXPECT_EQ(LoadWith(L"Filter", L"FilterSize", text).size(), 1U) << "neither 1 nor 1000";
      EXPECT_EQ(Filter.FilterSize, 0) << "the default";
    }
  }
}

TEST(Settings, ANumberOutOfRangeIsToldWithItsRange) {
  const struct {
    const wchar_t* section;
    const wchar_t* key;
    const wchar_t* value;
    ValueLimits limits;
  } rows[] = {
      {L"Settings", L"TextWidth", L"10000", {L"0", L"9999"}},
      {L"Settings", L"TextWidth", L"99999999999", {L"0", L"9999"}},
      {L"Settings", L"TextHeight", L"2147483648", {L"-2147483648", L"2147483647"}},
      {L"Settings", L"FontSize", L"40000", {L"-32768", L"32767"}},
      {L"Settings", L"Format", L"-32769", {L"-32768", L"32767"}},
      {L"Settings", L"OutputTo", L"99999999999", {L"-2147483648", L"2147483647"}},
      {L"Settings", L"MarginLeft", L"1e39", {L"-3.4028235e+38", L"3.4028235e+38"}},
      {L"Filter", L"OrderBy", L"70000", {L"-32768", L"32767"}},
  };
  for (const auto& row : rows) {
    Fake().Store.clear();
    const std::vector<BadSetting> bad = LoadWith(row.section, row.key, row.value);
    ASSERT_EQ(bad.size(), 1U) << Narrow(row.key);
    EXPECT_EQ(bad[0].Limits, row.limits) << Narrow(row.key);
  }
  EXPECT_EQ(LoadWith(L"Settings", L"TextWidth", L"wide")[0].Limits, std::nullopt) << "no number";
}

TEST(Settings, ADayThatNoPickerShowsIsToldWithTheDaysThatThereAre) {
  const ValueLimits days{L"1752/09/14", L"9999/12/31"};
  const struct {
    const wchar_t* value;
    bool fits;
    std::optional<ValueLimits> limits;
  } rows[] = {
      {L"1752/09/14", true, {}},    {L"1752/09/13", false, days},  {L"1500/01/01", false, days},
      {L"1752/08/31", false, days}, {L"1753/01/01", true, {}},     {L"0001/01/01", false, days},
      {L"9999/12/31", true, {}},    {L"10000/01/01", false, days}, {L"1999/02/29", false, {}},
      {L"1500/13/01", false, {}},   {L"2000/02/29", true, {}},     {L"99999999999/1/1", false, {}},
  };
  for (const auto& row : rows) {
    Fake().Store.clear();
    const std::vector<BadSetting> bad = LoadWith(L"Filter", L"FilterDateMin", row.value);
    ASSERT_EQ(bad.size(), row.fits ? 0U : 1U) << Narrow(row.value);
    if (!row.fits) {
      EXPECT_EQ(bad[0].Limits, row.limits) << Narrow(row.value);
      EXPECT_EQ(Filter.DateMin, 29221) << "1980-01-01, the default";
    }
  }
}

TEST(Settings, ARangeStandsBelowTheMessageAboutItsSetting) {
  mdlVars::Texts.Set(static_cast<std::size_t>(TextId::BadSetting), L"%1|%2|%3");
  mdlVars::Texts.Set(static_cast<std::size_t>(TextId::ValidValues), L"from %1 to %2");
  ReportBadSettings(LoadWith(L"Settings", L"TextWidth", L"12000"));
  ASSERT_EQ(Fake().Messages.size(), 1U);
  EXPECT_EQ(Fake().Messages[0].Text,
            L"HKEY_CURRENT_USER\\Software\\Folivant 3.0\\Settings|TextWidth|12000\r\nfrom 0 to 9999");
  EXPECT_EQ(General.TextWidth, 80) << "the default";
}

TEST(Settings, AWidthUpToFourDigitsIsKept) {
  for (const std::int32_t width : {9999, 0, -3}) {
    EXPECT_TRUE(LoadWith(L"Settings", L"TextWidth", std::to_wstring(width)).empty());
    EXPECT_EQ(General.TextWidth, width);
  }
}

TEST(Settings, CodesWithoutAMeaningAreKept) {
  Fake().Store[{L"Filter", L"OrderBy"}] = L"9";
  EXPECT_TRUE(LoadSettings().empty());
  EXPECT_EQ(static_cast<int>(Filter.OrderBy), 9);
}

TEST(Settings, ADestinationWithoutAMeaningLeavesTheOneBefore) {
  for (const wchar_t* code : {L"3", L"-1", L"7"}) {
    mdlVars::OutputTo = OutputTarget::File;
    EXPECT_TRUE(LoadWith(L"Settings", L"OutputTo", code).empty());
    EXPECT_EQ(mdlVars::OutputTo, OutputTarget::File) << Narrow(code);
  }
  LoadWith(L"Settings", L"OutputTo", L"2");
  EXPECT_EQ(mdlVars::OutputTo, OutputTarget::Screen);
}

std::vector<std::wstring> KeysSavedBy(void (*save)()) {
  Fake().Store.clear();
  save();
  std::vector<std::wstring> keys;
  for (const auto& [place, value] : Fake().Store) {
    keys.push_back(place.first + L'.' + place.second);
  }
  return keys;
}

TEST(Settings, DialogsSaveTheirOwnGroupAlone) {
  using testing::ElementsAre;
  LoadSettings();
  // Sections and keys in the order of the alphabet.
  EXPECT_THAT(KeysSavedBy(SaveFilterSettings),
              ElementsAre(L"Filter.Attr", L"Filter.Filter", L"Filter.FilterDateMax", L"Filter.FilterDateMin",
                          L"Filter.FilterName", L"Filter.FilterSize", L"Filter.FilterSizeMin", L"Filter.OrderAZ",
                          L"Filter.OrderBy"));
  EXPECT_THAT(KeysSavedBy(SaveFormatSettings), ElementsAre(L"Format.FShow", L"Format.SubLevel", L"Format.TShow"));
  EXPECT_THAT(KeysSavedBy(SaveListingStyle), ElementsAre(L"Settings.Format"));
  EXPECT_THAT(KeysSavedBy(SavePrinterSettings),
              ElementsAre(L"Settings.PrinterCopies", L"Settings.PrinterDuplex", L"Settings.PrinterName",
                          L"Settings.PrinterPaperBin", L"Settings.PrinterQuality"));
  EXPECT_THAT(KeysSavedBy(SaveGeneralSettings),
              ElementsAre(L"Settings.DateFormat", L"Settings.EmptyDirs", L"Settings.ExitWhenDone",
                          L"Settings.FilesFirst", L"Settings.Font80HF", L"Settings.FontName", L"Settings.FontNameHF",
                          L"Settings.FontSize", L"Settings.FontSizeHF", L"Settings.Footer", L"Settings.Header",
                          L"Settings.Inches", L"Settings.Language", L"Settings.MarginBottom", L"Settings.MarginLeft",
                          L"Settings.MarginRight", L"Settings.MarginTop", L"Settings.Port", L"Settings.TextHeight",
                          L"Settings.TextViewer", L"Settings.TextWidth"));
}

TEST(Settings, AStoreThatCannotBeWrittenIsAnError) {
  LoadSettings();
  Fake().FailStoreWrites = fakes::AccessDenied();
  EXPECT_THROW(SaveSettings(), RuntimeError);
}

TEST(Settings, TheLastTabIsRemembered) {
  EXPECT_EQ(LoadLastTab(), 1);
  SaveLastTab(4);
  EXPECT_EQ((Fake().Store[{L"Settings", L"LastTab"}]), L"4");
  EXPECT_EQ(LoadLastTab(), 4);
  Fake().Store[{L"Settings", L"LastTab"}] = L"x";
  EXPECT_EQ(LoadLastTab(), 1);
}

TEST(Settings, LoadingAsksForNoPrinter) {
  fakes::Session().Printers = {L"Laser", L"Ink"};
  LoadSettings();
  EXPECT_EQ(fakes::Session().DefaultPrinterAsked, 0);
}

}  // namespace
}  // namespace folivant
