#include <gtest/gtest.h>

#include "app/mdlVars.h"
#include "fakes/FakeFindWindows.h"
#include "platform/RuntimeError.h"
#include "shell/mdlFind.h"

namespace folivant {
namespace {

using fakes::Fake;
using fakes::FindWindow;
using fakes::FindWindows;
using Rows = std::vector<std::vector<std::string>>;

/// Keeps the rows that a run hands over.
class RecordingWriter final : public ListingWriter {
 public:
  int FindLists = 0;
  std::vector<FoundItem> Rows;

  void BeginListing() override {}
  void ListDirectory(const DirectoryListing&) override {}
  void BeginTree(std::wstring_view) override {}
  void TreeEntry(const FileRecord&) override {}
  void DirectoryViewEntry(const DirNode&) override {}
  void FindList(std::span<const FoundItem> rows) override {
    ++FindLists;
    Rows.assign(rows.begin(), rows.end());
  }
  void EndListing() override {}
  void AbortListing() noexcept override {}
};

/// A watched run, cancelled after a number of looks at the events.
class WatchedRun final : public Progress {
 public:
  explicit WatchedRun(int cancelAfter = -1) : cancelAfter_(cancelAfter) {}
  std::int32_t Share = 0;

  void ShowDirectory(std::wstring_view) override {}
  void SetProgress(std::int32_t share) override { Share += share; }
  void LetEventsThrough() override { ++looks_; }
  bool Cancelled() const override { return cancelAfter_ >= 0 && looks_ >= cancelAfter_; }

 private:
  int cancelAfter_;
  int looks_ = 0;
};

Rows TwoRows() {
  return {{"Report.txt", "C:\\Data", "12 KB", "Text Document", "1/2/01 3:04 PM"},
          {" spaced ", "C:\\Data\\Old", "", "File Folder", "2/3/01 4:05 AM"}};
}

Rows ManyRows(int count) {
  Rows rows;
  for (int row = 0; row < count; ++row) {
    const std::string number = std::to_string(row);
    rows.push_back({"n" + number, "f" + number, "s" + number, "t" + number, "m" + number});
  }
  return rows;
}

/// The list view inside the only Find window.
fakes::FakeWindow& OnlyList() {
  return FindWindows().TopLevel.at(0).Children.at(0).Children.at(0);
}

std::string Capture(Progress& progress) {
  RecordingWriter writer;
  try {
    PrintFromFind(writer, progress);
  } catch (const RuntimeError& error) {
    EXPECT_EQ(FailedAction::ReadWindow, error.Action());
    EXPECT_EQ(0, writer.FindLists);
    return "error " + std::to_string(error.SystemCode());
  }
  return "lists " + std::to_string(writer.FindLists) + " rows " + std::to_string(writer.Rows.size());
}

TEST(PrintFromFind, ReadsTheOnlyFindWindowAtOnce) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: All Files", TwoRows())};
  RecordingWriter writer;
  WatchedRun run;
  PrintFromFind(writer, run);
  EXPECT_EQ(0, FindWindows().DialogsShown);
  EXPECT_EQ(0, FindWindows().DialogsOpen);
  ASSERT_EQ(1, writer.FindLists);
  ASSERT_EQ(2u, writer.Rows.size());
  EXPECT_EQ(L"Report.txt", writer.Rows[0].Name);
  EXPECT_EQ(L"C:\\Data", writer.Rows[0].InFolder);
  EXPECT_EQ(L"12 KB", writer.Rows[0].Size);
  EXPECT_EQ(L"1/2/01 3:04 PM", writer.Rows[0].Modified);
  EXPECT_EQ(L"spaced", writer.Rows[1].Name);
  EXPECT_EQ(L"", writer.Rows[1].Size);
  EXPECT_EQ(L"Find: All Files", mdlVars::Tree.FindWindowTitle);
  EXPECT_FALSE(mdlVars::Tree.Cancelled);
  EXPECT_EQ(100, run.Share);
}

TEST(PrintFromFind, SaysThatNoneIsOpenAndAborts) {
  mdlVars::Texts.Set(138, L"No Find window is open.");
  WatchedRun run;
  EXPECT_EQ("lists 0 rows 0", Capture(run));
  ASSERT_EQ(1u, Fake().Messages.size());
  EXPECT_EQ(L"No Find window is open.", Fake().Messages[0].Text);
  EXPECT_EQ(platform::BoxIcon::Exclamation, Fake().Messages[0].Icon);
  EXPECT_EQ(platform::BoxButtons::Ok, Fake().Messages[0].Buttons);
  EXPECT_TRUE(mdlVars::Tree.Cancelled);
  EXPECT_EQ(0, FindWindows().DialogsShown);
}

TEST(PrintFromFind, WaitsForTheUserAmongSeveral) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: one", {}), FindWindow(20, L"Find: two", TwoRows()),
                            FindWindow(30, L"Find: three", {})};
  FindWindows().User = {[](FindChoice&) {}, [](FindChoice&) {}, [](FindChoice& choice) { choice.Choose(1); }};
  WatchedRun run;
  EXPECT_EQ("lists 1 rows 2", Capture(run));
  EXPECT_EQ(1, FindWindows().DialogsShown);
  EXPECT_EQ(3, FindWindows().EventRounds);
  EXPECT_EQ(L"Find: two", mdlVars::Tree.FindWindowTitle);
}

TEST(PrintFromFind, AbortsWhenTheDialogIsCancelled) {
  mdlVars::Tree.FindWindowTitle = L"Find: before";
  FindWindows().TopLevel = {FindWindow(10, L"Find: one", TwoRows()), FindWindow(20, L"Find: two", TwoRows())};
  FindWindows().User = {[](FindChoice& choice) { choice.Cancel(); }};
  WatchedRun run;
  EXPECT_EQ("lists 0 rows 0", Capture(run));
  EXPECT_TRUE(mdlVars::Tree.Cancelled);
  EXPECT_EQ(0, FindWindows().Calls);
  EXPECT_EQ(L"Find: before", mdlVars::Tree.FindWindowTitle);  // keeps its last value
}

TEST(PrintFromFind, WaitsOnWithoutInnerWindowsUntilTheRunIsCancelled) {
  fakes::FakeWindow empty = FindWindow(10, L"Find: odd", {});
  empty.Children.clear();
  FindWindows().TopLevel = {empty};
  WatchedRun run(50);
  EXPECT_EQ("lists 0 rows 0", Capture(run));
  EXPECT_EQ(50, FindWindows().EventRounds);
  EXPECT_TRUE(mdlVars::Tree.Cancelled);
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST(PrintFromFind, FailsWithoutInnerWindowsWhenNobodyWatches) {
  fakes::FakeWindow empty = FindWindow(10, L"Find: odd", {});
  empty.Children.clear();
  FindWindows().TopLevel = {empty};
  NoProgress run;
  EXPECT_EQ("error 0", Capture(run));
}

TEST(PrintFromFind, TheUserMayStillChooseWhenNobodyWatches) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: one", {}), FindWindow(20, L"Find: two", TwoRows())};
  FindWindows().User = {[](FindChoice&) {}, [](FindChoice& choice) { choice.Choose(1); }};
  NoProgress run;
  EXPECT_EQ("lists 1 rows 2", Capture(run));
}

TEST(PrintFromFind, CancelOfTheRunEndsTheChoice) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: one", TwoRows()), FindWindow(20, L"Find: two", TwoRows())};
  WatchedRun run(5);
  EXPECT_EQ("lists 0 rows 0", Capture(run));
  EXPECT_TRUE(mdlVars::Tree.Cancelled);
  EXPECT_EQ(0, FindWindows().DialogsOpen);
}

TEST(PrintFromFind, ListsAnEmptyResultList) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: nothing", {})};
  WatchedRun run;
  EXPECT_EQ("lists 1 rows 0", Capture(run));
  EXPECT_EQ(0, mdlVars::Tree.FoundCount);
  EXPECT_EQ(0, FindWindows().Blocks);
}

TEST(PrintFromFind, AListThatClaimsLessThanNoRowsIsEmpty) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: confused", TwoRows())};
  OnlyList().ClaimedRows = -1;
  WatchedRun run;
  EXPECT_EQ("lists 1 rows 0", Capture(run));
  EXPECT_EQ(0, mdlVars::Tree.FoundCount);
}

TEST(PrintFromFind, ACellThatTheListLeavesAloneIsEmpty) {
  // Rows are read in blocks of sixty-four: row 64 takes the place that row 0 had before.
  FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(65))};
  OnlyList().SilentFrom = 64;
  RecordingWriter writer;
  WatchedRun run;
  PrintFromFind(writer, run);
  ASSERT_EQ(65u, writer.Rows.size());
  EXPECT_EQ(L"n63", writer.Rows[63].Name);
  for (const std::wstring& text :
       {writer.Rows[64].Name, writer.Rows[64].InFolder, writer.Rows[64].Size, writer.Rows[64].Modified}) {
    EXPECT_EQ(L"", text);
  }
}

TEST(PrintFromFind, StopsAfterTheRowInWhichTheRunIsCancelled) {
  FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(200))};
  WatchedRun run(70);  // the seventieth row; a block holds fewer
  EXPECT_EQ("lists 0 rows 0", Capture(run));
  EXPECT_EQ(70 * 4, FindWindows().GetItemMessages);
  EXPECT_TRUE(mdlVars::Tree.Cancelled);
  EXPECT_EQ(L"n69", mdlVars::Tree.FoundList[69].Name);
  EXPECT_EQ(L"", mdlVars::Tree.FoundList[70].Name);
}

TEST(PrintFromFind, ReadsEveryRowOnceInOrder) {
  FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(193))};
  RecordingWriter writer;
  WatchedRun run;
  PrintFromFind(writer, run);
  ASSERT_EQ(193u, writer.Rows.size());
  for (std::size_t row = 0; row < 193; ++row) {
    const std::wstring number = std::to_wstring(row);
    EXPECT_EQ(L"n" + number, writer.Rows[row].Name);
    EXPECT_EQ(L"f" + number, writer.Rows[row].InFolder);
    EXPECT_EQ(L"s" + number, writer.Rows[row].Size);
    EXPECT_EQ(L"m" + number, writer.Rows[row].Modified);
  }
  EXPECT_EQ(100, run.Share);
}

TEST(PrintFromFind, CrossesIntoTheOtherProgramAtMostFiveTimesARow) {
  FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(10'000))};
  WatchedRun run;
  EXPECT_EQ("lists 1 rows 10000", Capture(run));
  EXPECT_EQ(40'000, FindWindows().GetItemMessages);
  EXPECT_EQ(1, FindWindows().Blocks);
  EXPECT_LE(FindWindows().Calls, 50'000);
  // The number of rows, each cell's message, and two copies for each of the 157 blocks of up to 64 rows.
  EXPECT_EQ(1 + 40'000 + 2 * 157, FindWindows().Calls);
}

TEST(PrintFromFind, CutsCellsToWhatFitsIn260Bytes) {
  const std::string text259(259, 'a'), text260(260, 'b'), text400(400, 'c');
  FindWindows().TopLevel = {FindWindow(10, L"Find", {{text259, text260, text400, "type", "date"}})};
  RecordingWriter writer;
  WatchedRun run;
  PrintFromFind(writer, run);
  EXPECT_EQ(std::wstring(259, L'a'), writer.Rows[0].Name);
  EXPECT_EQ(std::wstring(259, L'b'), writer.Rows[0].InFolder);
  EXPECT_EQ(std::wstring(259, L'c'), writer.Rows[0].Size);
  EXPECT_EQ(L"date", writer.Rows[0].Modified);
}

TEST(PrintFromFind, Serves32BitOwners) {
  FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(100))};
  OnlyList().Layout = platform::RecordLayout::Bits32;
  RecordingWriter writer;
  WatchedRun run;
  PrintFromFind(writer, run);
  ASSERT_EQ(100u, writer.Rows.size());
  EXPECT_EQ(L"n99", writer.Rows[99].Name);
  EXPECT_EQ(L"m99", writer.Rows[99].Modified);
}

TEST(PrintFromFind, ReportsAnOwnerThatMayNotBeOpened) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: elevated", TwoRows())};
  OnlyList().Refuses = fakes::AccessDenied();
  WatchedRun run;
  EXPECT_EQ("error 5", Capture(run));
}

TEST(PrintFromFind, ReportsAnOwnerThatEndsBeforeOrWhileItIsRead) {
  for (const int call : {1, 2, 3, 150, 258}) {
    FindWindows().Calls = 0;
    FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(100))};
    OnlyList().DiesAtCall = call;
    WatchedRun run;
    EXPECT_EQ("error 1400", Capture(run)) << call;
    EXPECT_EQ(0, FindWindows().DialogsOpen);
  }
}

TEST(PrintFromFind, SharesRequestAndTextByName) {
  Fake().TemporaryDirectory = L"C:\\Temp";  // no backslash at its end
  FindWindows().TopLevel = {FindWindow(10, L"Find", TwoRows())};
  WatchedRun run;
  EXPECT_EQ("lists 1 rows 2", Capture(run));
  ASSERT_EQ(2u, FindWindows().Mappings.size());
  const fakes::FakeMapping& request = FindWindows().Mappings.at(L"FolivantMappingLVI");
  const fakes::FakeMapping& text = FindWindows().Mappings.at(L"FolivantMappingText");
  EXPECT_EQ(L"C:\\Temp\\~fv00002.tmp", request.File);
  EXPECT_EQ(L"C:\\Temp\\~fv00003.tmp", text.File);
  ASSERT_EQ(40u, request.Bytes.size());
  ASSERT_EQ(260u, text.Bytes.size());
  EXPECT_TRUE(request.Closed);
  EXPECT_TRUE(text.Closed);
  // The last request was for row 1, column 4, and what it brought is in the text's mapping.
  EXPECT_EQ(std::byte{1}, request.Bytes[4]);
  EXPECT_EQ(std::byte{4}, request.Bytes[8]);
  EXPECT_EQ(std::byte{0x20}, request.Bytes[23]);  // top byte of the text's address
  EXPECT_STREQ("2/3/01 4:05 AM", reinterpret_cast<const char*>(text.Bytes.data()));
}

TEST(PrintFromFind, SecondRunReadsTheListAsItIsThen) {
  FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(5))};
  WatchedRun run;
  EXPECT_EQ("lists 1 rows 5", Capture(run));
  FindWindows().TopLevel = {FindWindow(10, L"Find", TwoRows())};
  EXPECT_EQ("lists 1 rows 2", Capture(run));
  EXPECT_EQ(L"spaced", mdlVars::Tree.FoundList[1].Name);
}

}  // namespace
}  // namespace folivant
