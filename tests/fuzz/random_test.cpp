// Texts from outside (filter files, language files, path lists, command lines) with random damage. Each seed gives the
// same inputs on every machine. What is asserted are truths that hold for every input.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <random>

#include "app/CommandLine.h"
#include "app/Settings.h"
#include "app/StartUp.h"
#include "app/mdlVars.h"
#include "base/Numbers.h"
#include "base/mdlFileRoutines.h"
#include "fakes/FakePlatform.h"
#include "platform/ProfileText.h"
#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "scan/ListingTest.h"
#include "shell/PathListLines.h"
#include "shell/mdlFind.h"
#include "ui/Language.h"

namespace folivant {
namespace {

using platform::ProfileText;

/// Strings made of pieces that matter to the reader under test, and of any bytes.
class Source {
 public:
  explicit Source(unsigned seed) : random_(seed) {}

  std::size_t Below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_); }
  std::string Bytes(const std::vector<std::string>& pieces, std::size_t count) {
    std::string bytes;
    for (std::size_t i = Below(count); i > 0; --i) {
      bytes += Below(6) == 0 ? std::string(1, static_cast<char>(Below(256))) : pieces[Below(pieces.size())];
    }
    return bytes;
  }
  std::wstring Text(const std::vector<std::string>& pieces, std::size_t count) {
    return platform::FromAnsi(Bytes(pieces, count));
  }

 private:
  std::mt19937 random_;
};

const std::vector<std::string> kProfile = {
    "[", "]",   "=",   ";",         "\r\n", "\n",    "\r",   " ",        "\t",       "\"",           "'",       "a",
    "B", "key", "Key", "[section]", "[s]",  "x=1\n", "\xE9", "\xFF\xFE", "\xFE\xFF", "\xEF\xBB\xBF", "\xC3\xA9"};
const std::vector<std::string> kPaths = {"C:\\",
                                         "Data",
                                         "\\",
                                         "\\\\",
                                         "\r\n",
                                         "\n",
                                         "\r",
                                         " ",
                                         ".",
                                         "..",
                                         "*",
                                         "?",
                                         "a",
                                         "\xFF\xFE",
                                         "\xEF\xBB\xBF",
                                         "\xD0\x96",
                                         "\xF0\x9F\x98\x80",
                                         "\xED\xA0\x80",
                                         "C:\\Data\\a",
                                         "C:\\Data\\A.A",
                                         std::string(1, '\0')};
const std::vector<std::string> kSwitches = {
    "/f",   "/d", "/t", "/o", "/g", "/", " ", "\"", "C:\\sets\\a.fvf", "C:\\Data", ".", "p", "t", "x", "/deletesendto",
    "list", "\\"};

const platform::UserLocale kLocales[] = {
    {L",", L".", L"/"}, {L".", L",", L"."}, {L"\u202F", L",", L"/"}, {L"\u2019", L".", L"."}, {L"", L"/", L"-"}};

TEST(RandomNumbers, AMarginComesBackAsItWasWrittenInEveryLocale) {
  std::mt19937 random(7);
  for (int i = 0; i < 20'000; ++i) {
    const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
    if (!std::isfinite(number) || std::fpclassify(number) == FP_SUBNORMAL) {
      continue;
    }
    fakes::Fake().Locale = kLocales[static_cast<std::size_t>(i) % std::size(kLocales)];
    const std::wstring text = SingleText(number);
    EXPECT_EQ(ReadFraction<float>(text, NumberSource::Stored).Value, number) << testing::PrintToString(text);
    EXPECT_EQ(ReadFraction<float>(text, NumberSource::Typed).Value, number) << testing::PrintToString(text);
  }
}

// What a text box takes for a whole number of thousands is never taken for a fraction, and the other way round.
TEST(RandomNumbers, AGroupedNumberIsReadInItsOwnLocale) {
  Source source(8);
  for (int i = 0; i < 20'000; ++i) {
    fakes::Fake().Locale = kLocales[source.Below(4)];
    const auto number = static_cast<std::int32_t>(source.Below(2'000'000'000)) - 1'000'000'000;
    const std::wstring text = FormatGrouped(number);
    EXPECT_EQ(ReadWhole(text, NumberSource::Typed).Value, number) << testing::PrintToString(text);
    EXPECT_EQ(ReadLeadingWhole(text + L" x").Value, number) << testing::PrintToString(text);
    EXPECT_EQ(ReadWhole(text, NumberSource::Stored).Value.has_value(), number > -1000 && number < 1000)
        << testing::PrintToString(text);
  }
}

TEST(RandomNumbers, AnyTextIsReadToAnEnd) {
  Source source(9);
  for (int i = 0; i < 50'000; ++i) {
    fakes::Fake().Locale = kLocales[source.Below(std::size(kLocales))];
    const std::wstring text =
        source.Text({"1", "20", "345", "0", ".", ",", " ", "-", "+", "e", "'", "/", "\xA0", "9999999999"}, 12);
    for (const NumberSource origin : {NumberSource::Stored, NumberSource::Typed}) {
      const auto whole = ReadWhole(text, origin);
      const auto fraction = ReadFraction<double>(text, origin);
      EXPECT_FALSE(whole.Value && whole.OutOfRange);
      if (whole.Value) {
        ASSERT_TRUE(fraction.Value) << testing::PrintToString(text);
        EXPECT_EQ(*whole.Value, std::nearbyint(*fraction.Value)) << testing::PrintToString(text);
      }
    }
    if (const auto whole = ReadWhole(text, NumberSource::Typed).Value) {
      EXPECT_EQ(ReadLeadingWhole(text).Value, whole) << testing::PrintToString(text);
    }
  }
}

TEST(RandomProfileText, ReadsBackWhatItWroteAndKeepsTheRest) {
  Source source(1);
  for (int i = 0; i < 2000; ++i) {
    const std::string bytes = source.Bytes(kProfile, 40);
    ProfileText text(bytes);
    const auto before = text.Read(L"s", L"x");
    std::wstring value = source.Text({"a", " ", "\"", "'", "=", ";", "[", "]", "\xE9", "\xC3\xA9"}, 12);
    std::erase_if(value, [](wchar_t c) { return c < L' '; });
    text.Write(L"section", L"key", value);
    EXPECT_EQ(text.Read(L"SECTION", L"KEY"), value) << bytes;
    EXPECT_EQ(text.Read(L"s", L"x"), before) << bytes;
    EXPECT_EQ(ProfileText(text.Bytes()).Read(L"section", L"key"), value) << bytes;
  }
}

TEST(RandomPathLists, LinesHoldNoEndsAndAreNotBlank) {
  Source source(2);
  NoProgress progress;
  for (int i = 0; i < 2000; ++i) {
    fakes::Tree().File(L"C:\\list", source.Bytes(kPaths, 40));
    PathListLines lines(L"C:\\list", progress);
    while (const std::optional<std::wstring> line = lines.Next()) {
      EXPECT_EQ(line->find_first_of(std::wstring(L"\r\n\0", 3)), line->npos);
      EXPECT_NE(line->find_first_not_of(L" \t"), line->npos);
    }
  }
}

/// What a run that lists a path list told: rows, all of files that are there, or an error.
class ListedPaths final : public RecordingWriter {
 public:
  std::size_t Rows = 0;
  void FindList(const FoundRows& rows) override {
    RecordingWriter::FindList(rows);
    Rows = rows.Items.size();
    for (const FoundItem& row : rows.Items) {
      EXPECT_NE(fakes::Tree().Find(row.InFolder + L'\\' + row.Name), nullptr) << testing::PrintToString(row.Name);
    }
  }
};

TEST(RandomPathLists, EveryListIsListedOrIsOneError) {
  Source source(3);
  fakes::Tree().Dir(L"C:\\Data").File(L"a").Dir(L"a.a");
  fakes::RunRecords records;
  records.Format.ListingStyle = ListingStyle::PathListFile;
  records.Start = {L"C:\\list", L"C:\\list"};
  FindCapture rows(records.Context);
  int withRows = 0;
  int withErrors = 0;
  int withoutPaths = 0;
  for (int i = 0; i < 3000; ++i) {
    const std::string bytes = source.Bytes(kPaths, 10);
    fakes::Tree().File(L"C:\\list", bytes);
    ListedPaths listed;
    ListingRun run = records.MakeRun();
    try {
      RunListing(run, listed, rows);
      EXPECT_THAT(listed.Events, testing::ElementsAre(L"begin", testing::StartsWith(L"find "), L"end")) << bytes;
      withRows += listed.Rows > 0 ? 1 : 0;
    } catch (const RuntimeError& error) {
      EXPECT_THAT(listed.Events, testing::ElementsAre(L"begin", L"abort")) << bytes;
      if (error.Action() == FailedAction::ListPaths) {
        EXPECT_EQ(error.Object(), L"C:\\list");
        ++withoutPaths;
      } else {
        EXPECT_EQ(error.Action(), FailedAction::ReadFile);
        EXPECT_NE(error.Object(), L"");
        ++withErrors;
      }
    }
  }
  EXPECT_GE(withoutPaths, 50) << "too few lists of lines that are no paths";
  EXPECT_GE(withRows, 50) << "too few lists of files that are there";
  EXPECT_GE(withErrors, 50) << "too few lists of files that are not";
}

std::vector<BadSetting> LoadFrom(const std::wstring& filterFile) {
  mdlVars::FilterFile = filterFile;
  mdlVars::UseFilterFile = true;
  std::vector<BadSetting> bad = LoadSettings();
  mdlVars::UseFilterFile = false;
  return bad;
}

TEST(RandomFilterFiles, EveryBadValueIsReportedAndTheRestHasDefaultsOrValues) {
  Source source(4);
  const std::vector<std::string> lines = {"[Folivant 3.5]\r\n",
                                          "SubLevel=",
                                          "Filter=",
                                          "Attr=",
                                          "FilterDateMin=",
                                          "MarginLeft=",
                                          "FShow=",
                                          "Show=",
                                          "OutputTo=",
                                          "1",
                                          "0",
                                          "2",
                                          "/",
                                          ".",
                                          "-",
                                          "True",
                                          "\r\n",
                                          "[x]\r\n"};
  int reported = 0;
  for (int i = 0; i < 2000; ++i) {
    const std::string bytes = source.Bytes(lines, 60);
    fakes::Tree().File(L"C:\\a.fvf", bytes);
    mdlVars::Format.SubLevel = 77;
    mdlVars::Filter.NameOn = false;
    const std::vector<BadSetting> bad = LoadFrom(L"C:\\a.fvf");
    EXPECT_NE(mdlVars::Format.SubLevel, 77);
    EXPECT_LE(fakes::Fake().Messages.size(), 1u) << "one for all that is bad";
    for (const AttributeChoice choice : mdlVars::Filter.Attributes) {
      EXPECT_LE(static_cast<int>(choice), 2);
    }
    // One key, followed from the bytes to the member: four digits, and where there is none the default.
    const std::wstring value = Trim(ProfileText(bytes).Read(L"Folivant 3.5", L"Filter").value_or(L"1000"));
    const bool good = std::min(value.find_first_not_of(L"0123456789"), value.size()) >= 4;
    const auto isFilter = [](const BadSetting& setting) { return setting.Key == L"Filter"; };
    EXPECT_EQ(std::ranges::count_if(bad, isFilter), good ? 0 : 1) << bytes;
    EXPECT_EQ(mdlVars::Filter.NameOn, !good || value.front() != L'0') << bytes;
    reported += good ? 0 : 1;
  }
  EXPECT_GE(reported, 50) << "too few bad values";
}

TEST(RandomLanguageFiles, EveryTextIsThereAndShort) {
  Source source(5);
  const std::vector<std::string> lines = {
      "[Messages]\r\n", "0=", "1=", "300=", "301=", "Language=", "text", "**", "\\n", "\r\n", "\"", " "};
  for (int i = 0; i < 300; ++i) {
    fakes::Tree().File(L"C:\\p\\english.ini", source.Bytes(lines, 60));
    Messages texts;
    std::wstring language = L"english.ini";
    LoadLanguage(L"C:\\p", language, texts);
    for (std::size_t number = 0; number < Messages::kCount; ++number) {
      EXPECT_LE(texts[number].size(), 299u);
      EXPECT_NE(texts[number], L"**");
    }
    ListLanguages(L"C:\\p");
  }
}

TEST(RandomCommandLines, ArgumentsHoldNoSlashAndEveryLineEnds) {
  Source source(6);
  fakes::Tree().Dir(L"C:\\Data").File(L"a.txt");
  for (int i = 0; i < 400; ++i) {
    fakes::Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nPath=C:\\Data\r\nOutputTo=1\r\n");
    const std::wstring line = source.Text(kSwitches, 12);
    const CommandLine command = ReadCommandLine(line);
    EXPECT_EQ(command.HasSwitches, line.find(L'/') != line.npos);
    for (const auto& argument : {command.FilterFile, command.Directory, command.OutputFile}) {
      EXPECT_EQ(argument.value_or(L"").find(L'/'), std::wstring::npos);
    }
    fakes::Fake().Messages.clear();
    mdlVars::OutputFile.clear();
    mdlVars::OutputKind = OutputKind::Text;
    const int status = Start(line);
    EXPECT_TRUE(status == kExitDone || status == kExitFailed) << status;
    EXPECT_LE(fakes::Fake().Messages.size(), 1u);
    EXPECT_EQ(fakes::Fake().OpenOutputFiles, 0);
    EXPECT_TRUE(fakes::Fake().Store.empty());
  }
}

}  // namespace
}  // namespace folivant
