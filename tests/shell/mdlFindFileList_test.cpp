#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"
#include "fakes/RunRecords.h"
#include "platform/RuntimeError.h"
#include "scan/mdlScan.h"
#include "shell/mdlFind.h"

namespace folivant {
namespace {

using fakes::Fake;
using fakes::Tree;

/// Cancels once `rows` rows were read.
class CancelAfter final : public Progress {
 public:
  explicit CancelAfter(int rows) : left_(rows) {}
  void ShowDirectory(std::wstring_view) override {}
  void SetProgress(std::int32_t) override {}
  void LetEventsThrough() override { --left_; }
  bool Cancelled() const override { return left_ <= 0; }

 private:
  int left_;
};

/// Keeps the rows of the list that a run hands over.
class RowKeeper final : public ListingWriter {
 public:
  void BeginListing(ListingRun&) override {}
  void FindList(const FoundRows& rows) override {
    ++Lists;
    Items = rows.Items;
  }
  void EndListing() override {}
  void AbortListing() noexcept override {}

  int Lists = 0;
  std::vector<FoundItem> Items;
};

class PathList : public testing::Test, protected fakes::RunRecords {
 protected:
  PathList() {
    Tree().Dir(L"C:\\Data").File(L"README.TXT", 9999).File(L"Big.bin", 12345678).Dir(L"deep").File(L"b.doc", 10000);
    General.DateFormat = 5;
    Format.ListingStyle = ListingStyle::PathListFile;
    Start = {L"C:\\list.txt", L"C:\\list.txt"};
  }

  static void Lines(const std::string& bytes) { Tree().File(L"C:\\list.txt", bytes); }
  RowKeeper ListWith(Progress& progress) {
    RowKeeper rows;
    FindCapture capture(Context);
    ListingRun run = MakeRun(progress);
    RunListing(run, rows, capture);
    return rows;
  }
  RowKeeper Read(const std::string& bytes) {
    Lines(bytes);
    return ListWith(Nobody);
  }
  /// The error that listing ends with.
  std::optional<RuntimeError> Failure() {
    try {
      ListWith(Nobody);
    } catch (const RuntimeError& error) {
      return error;
    }
    return std::nullopt;
  }
  /// The path that the error names which reading such a list ends with.
  std::wstring ErrorOf(const std::string& bytes, FailedAction action = FailedAction::ReadFile) {
    Lines(bytes);
    const std::optional<RuntimeError> error = Failure();
    EXPECT_TRUE(error && error->Action() == action) << bytes;
    return error ? error->Object() : std::wstring();
  }
  std::vector<std::wstring> NamesOf(const std::string& bytes) {
    std::vector<std::wstring> names;
    for (const FoundItem& item : Read(bytes).Items) {
      names.push_back(item.Name);
    }
    return names;
  }
};
using Names = std::vector<std::wstring>;

TEST_F(PathList, ARowIsNameFolderSizeAndDate) {
  const std::vector<FoundItem> rows = Read("c:\\data\\DEEP\\B.DOC\r\n").Items;
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].Name, L"B.doc");
  EXPECT_EQ(rows[0].InFolder, L"C:\\Data\\Deep");
  EXPECT_EQ(rows[0].Size, L"9 kb");
  EXPECT_EQ(rows[0].Modified, L"2001/02/03 04:05");
}

TEST_F(PathList, SizesHaveFixedUnits) {
  Texts.Set(128, L"Octets");
  EXPECT_EQ(Read("C:\\Data\\README.TXT").Items[0].Size, L"9,999 b ");
  Tree().Dir(L"C:\\Data").File(L"Disk.img", 5'368'709'120);  // 5 x 1024 x 1024 x 1024
  EXPECT_EQ(Read("C:\\Data\\Disk.img").Items[0].Size, L"5,120 Mb");
}

TEST_F(PathList, DatesAreLocalAndFollowTheRunsPattern) {
  Fake().LocalOffsetMinutes = 120;
  General.DateFormat = 0;
  EXPECT_EQ(Read("C:\\Data\\README.TXT").Items[0].Modified, L"03/02/01 06:05");
}

TEST_F(PathList, EachListHasTheLocalOffsetOfItsTime) {
  const char* const list = "C:\\Data\\README.TXT";
  EXPECT_EQ(Read(list).Items[0].Modified, L"2001/02/03 04:05");
  Fake().LocalOffsetMinutes = -60;
  EXPECT_EQ(Read(list).Items[0].Modified, L"2001/02/03 03:05");
}

TEST_F(PathList, BlankLinesYieldNoRows) {
  EXPECT_EQ(NamesOf("\r\n   \r\nC:\\Data\\README.TXT\r\n\r\n\r\nC:\\Data\\Big.bin\r\n\r\n"),
            (Names{L"Readme.txt", L"Big.bin"}));
}

TEST_F(PathList, LinesThatAreNoFullPathYieldNoRows) {
  EXPECT_EQ(NamesOf("README.TXT\r\nC:README.TXT\r\n\\Data\r\nC:\r\nx\r\nC:\\Data\\Big.bin"), (Names{L"Big.bin"}));
}

TEST_F(PathList, ANetworkPathIsAFullPath) {
  EXPECT_EQ(ErrorOf("\\\\server\\share\\gone.txt"), L"\\\\server\\share\\gone.txt");
}

TEST_F(PathList, ASlashSeparatesLikeABackslash) {
  Tree().Dir(L"C:\\Data").Dir(L"deep").Dir(L"er").File(L"b.doc", 1);
  const std::vector<FoundItem> rows = Read("c:\\data/deep/er/b.doc\r\nC:/Data/deep\\b.doc").Items;
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].Name, L"B.doc");
  EXPECT_EQ(rows[0].InFolder, L"C:\\Data\\Deep\\Er");
  EXPECT_EQ(rows[1].InFolder, L"C:\\Data\\Deep");
  EXPECT_EQ(ErrorOf("C:/Data/gone.txt"), L"C:/Data/gone.txt");
}

TEST_F(PathList, AnEmptyFileStillStartsTheOutput) {
  const RowKeeper rows = Read("");
  EXPECT_EQ(rows.Lists, 1);
  EXPECT_TRUE(rows.Items.empty());
}

TEST_F(PathList, LinesMayEndInAnyWayAndHaveBlanksAround) {
  EXPECT_EQ(NamesOf("  C:\\Data\\Big.bin  \nC:\\Data\\Big.bin\rC:\\Data\\Big.bin\r\nC:\\Data\\Big.bin").size(), 4u);
}

TEST_F(PathList, AnsiUtf8AndUtf16FilesAreRead) {
  Tree().Dir(L"C:\\Data").File(L"Caf\u00E9.txt").File(L"\u0416.txt");
  EXPECT_EQ(NamesOf("C:\\Data\\Caf\xE9.txt"), (Names{L"Caf\u00E9.txt"}));
  EXPECT_EQ(NamesOf("\xEF\xBB\xBF"
                    "C:\\Data\\\xD0\x96.txt\r\nC:\\Data\\Caf\xC3\xA9.txt"),
            (Names{L"\u0416.txt", L"Caf\u00E9.txt"}));
  EXPECT_EQ(NamesOf(std::string("\xFF\xFE"
                                "C\0:\0\\\0D\0a\0t\0a\0\\\0\x16\x04.\0t\0x\0t\0\r\0\n\0",
                                30)),
            (Names{L"\u0416.txt"}));
}

TEST_F(PathList, Utf8WithoutAMarkAndBigEndianFilesAreRead) {
  Tree().Dir(L"C:\\Data").File(L"Caf\u00E9.txt").File(L"\u0416.txt");
  EXPECT_EQ(NamesOf("C:\\Data\\\xD0\x96.txt\nC:\\Data\\Caf\xC3\xA9.txt"), (Names{L"\u0416.txt", L"Caf\u00E9.txt"}));
  EXPECT_EQ(NamesOf(std::string("\xFE\xFF\0C\0:\0\\\0D\0a\0t\0a\0\\\x04\x16\0.\0t\0x\0t", 28)), (Names{L"\u0416.txt"}));
}

TEST_F(PathList, QuotedLinesAndTabsAroundThemAreRead) {
  EXPECT_EQ(NamesOf("\"C:\\Data\\Big.bin\"\r\n\tC:\\Data\\README.TXT\t\r\n \t\"C:/Data/deep/b.doc\" \t"),
            (Names{L"Big.bin", L"Readme.txt", L"B.doc"}));
}

TEST_F(PathList, LinesOfWhichNoneIsAFullPathAreAnErrorThatNamesTheList) {
  const std::string utf16WithoutMark("C\0:\0\\\0D\0a\0t\0a\0", 14);
  for (const std::string& lines : {std::string("README.TXT\r\nBig.bin"), std::string("\r\nx"), utf16WithoutMark}) {
    EXPECT_EQ(ErrorOf(lines, FailedAction::ListPaths), L"C:\\list.txt");
    EXPECT_EQ(Failure()->SystemCode(), 0U);
  }
}

TEST_F(PathList, ARunThatIsCancelledBeforeItsFirstRowIsNoError) {
  Lines("no path\r\nC:\\Data\\Big.bin\r\n");
  CancelAfter progress(2);  // at the start of the run, and after the first line
  EXPECT_EQ(ListWith(progress).Lists, 0);
}

TEST_F(PathList, ABlankListIsAnEmptyListing) {
  for (const char* lines : {"\r\n", "  \r\n\t\r\n", "\"\"\r\n\"  \"", "\xEF\xBB\xBF\r\n"}) {
    EXPECT_EQ(Read(lines).Lists, 1) << lines;
  }
}

TEST_F(PathList, ALineThatIsLongerThanAnyPathIsNamedByItsBeginning) {
  // With its three first letters the longest path has 32,767.
  EXPECT_EQ(ErrorOf("C:\\" + std::string(32'764, 'x')), L"C:\\" + std::wstring(32'764, L'x'));
  EXPECT_EQ(ErrorOf("C:\\" + std::string(32'765, 'x')), L"C:\\" + std::wstring(256, L'x') + L"...");
}

const std::string kUtf8Mark = "\xEF\xBB\xBF";

TEST_F(PathList, Utf8HoldsTheFirstAndLastCharacterOfEachLength) {
  const std::pair<std::string, std::wstring> rows[] = {
      {"\x7E", L"\x7E"},
      {"\xC2\x80", L"\x80"},
      {"\xDF\xBF", L"\x7FF"},
      {"\xE0\xA0\x80", L"\x800"},
      {"\xED\x9F\xBF", L"\xD7FF"},
      {"\xEE\x80\x80", L"\xE000"},
      {"\xEF\xBF\xBF", L"\xFFFF"},
      {"\xF0\x90\x80\x80", L"\U00010000"},
      {"\xF4\x8F\xBF\xBF", L"\U0010FFFF"},
  };
  for (const auto& [bytes, character] : rows) {
    const std::wstring name = L"X" + character + L"x" + character;
    Tree().Dir(L"C:\\Data").File(name);
    EXPECT_EQ(NamesOf(kUtf8Mark + "C:\\Data\\X" + bytes + "x" + bytes), Names{name});
  }
}

TEST_F(PathList, WhatIsNoUtf8BecomesTheReplacementCharacter) {
  const std::string rows[] = {"\x80",
                              "\xBF",
                              "\xC3",
                              "\xC0\x80",
                              "\xC1\xBF",
                              "\xE0\x9F\xBF",
                              "\xE2\x82",
                              "\xE2\x82\xC0",
                              "\xED\xA0\x80",
                              "\xED\xBF\xBF",
                              "\xF0\x8F\xBF\xBF",
                              "\xF0\x9F\x98",
                              "\xF4\x90\x80\x80",
                              "\xF5\x80\x80\x80",
                              "\xF8\x80\x80\x80",
                              "\xFF"};
  for (const std::string& bytes : rows) {
    const std::wstring named = ErrorOf(kUtf8Mark + "C:\\Data\\X" + bytes + "x.txt");
    ASSERT_TRUE(named.starts_with(L"C:\\Data\\X") && named.ends_with(L"x.txt")) << testing::PrintToString(named);
    const std::wstring between = named.substr(9, named.size() - 14);
    EXPECT_EQ(between, std::wstring(between.size(), L'\xFFFD')) << testing::PrintToString(bytes);
    EXPECT_FALSE(between.empty()) << testing::PrintToString(bytes);
  }
}

TEST_F(PathList, AFileOfAMarkAloneIsEmpty) {
  EXPECT_TRUE(NamesOf("\xFF\xFE").empty());
  EXPECT_TRUE(NamesOf("\xEF\xBB\xBF").empty());
}

TEST_F(PathList, AVeryLongLineIsReadWhole) {
  const std::wstring name = std::wstring(240, L'd');
  std::wstring folder = L"C:";
  std::string line = "C:";
  for (int i = 0; i < 200; ++i) {
    folder += L'\\' + name;
    line += '\\' + std::string(240, 'd');
  }
  Tree().Dir(folder).File(L"Last.txt", 1);
  EXPECT_EQ(NamesOf(line + "\\Last.txt\r\nC:\\Data\\Big.bin"), (Names{L"Last.txt", L"Big.bin"}));
}

TEST_F(PathList, AMissingFileIsAnErrorThatNamesItAndNothingIsListed) {
  Lines("C:\\Data\\Big.bin\r\nC:\\Data\\gone.txt\r\nC:\\Data\\README.TXT\r\n");
  RowKeeper rows;
  FindCapture capture(Context);
  ListingRun run = MakeRun();
  try {
    RunListing(run, rows, capture);
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Action(), FailedAction::ReadFile);
    EXPECT_EQ(error.Object(), L"C:\\Data\\gone.txt");
    EXPECT_EQ(error.SystemCode(), 0u) << "nothing but the path is told";
  }
  EXPECT_EQ(rows.Lists, 0);
}

TEST_F(PathList, TheListIsNotTakenForADirectory) {
  Lines("C:\\Data\\Big.bin");
  RowKeeper rows;
  FindCapture capture(Context);
  ListingRun run = MakeRun();
  RunListing(run, rows, capture);
  EXPECT_EQ(rows.Lists, 1);
  EXPECT_TRUE(run.Unread.empty());
}

TEST_F(PathList, AMissingListIsAnErrorThatNamesIt) {
  const std::optional<RuntimeError> error = Failure();
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Object(), L"C:\\list.txt");
  EXPECT_EQ(error->SystemCode(), 2u);
}

TEST_F(PathList, ARelativeListIsReadInTheCurrentDirectory) {
  Tree().File(L"C:\\Work\\mine.txt", "C:\\Data\\Big.bin");
  Start = {L"mine.txt", L"mine.txt"};
  EXPECT_EQ(ListWith(Nobody).Items.size(), 1u);
}

TEST_F(PathList, ACancelledRunRaisesNoList) {
  Lines("C:\\Data\\Big.bin\r\nC:\\Data\\README.TXT\r\nC:\\Data\\gone.txt\r\n");
  CancelAfter progress(3);  // at the start of the run, and after the second line: the missing file is not looked for
  EXPECT_EQ(ListWith(progress).Lists, 0);
}

}  // namespace
}  // namespace folivant
