#include <gtest/gtest.h>

#include "fakes/FakeFindWindows.h"
#include "fakes/RunRecords.h"
#include "platform/RuntimeError.h"
#include "shell/mdlFind.h"

namespace folivant {
namespace {

using fakes::Fake;
using fakes::FindWindow;
using fakes::FindWindows;
using Rows = std::vector<std::vector<std::string>>;

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

class PrintFromFind : public testing::Test, protected fakes::RunRecords {
 protected:
  FoundRows Read(Progress& progress) {
    ListingRun run = MakeRun(progress);
    FoundRows rows = Capture.PrintFromFind(run);
    Cancelled = run.Cancelled;
    return rows;
  }
  /// What reading comes to: the number of rows, the system's number of an error, or "cancelled".
  std::string ResultOf(Progress& progress) {
    try {
      const FoundRows rows = Read(progress);
      return Cancelled ? "cancelled" : std::to_string(rows.Items.size()) + " rows";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(FailedAction::ReadWindow, error.Action());
      return "error " + std::to_string(error.SystemCode());
    }
  }

  FindCapture Capture{Context};
  bool Cancelled = false;  ///< the last run
};

TEST_F(PrintFromFind, ReadsTheOnlyFindWindowAtOnce) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: All Files", TwoRows())};
  WatchedRun run;
  const FoundRows found = Read(run);
  EXPECT_EQ(0, FindWindows().DialogsShown);
  EXPECT_EQ(0, FindWindows().DialogsOpen);
  ASSERT_EQ(2u, found.Items.size());
  EXPECT_EQ(L"Report.txt", found.Items[0].Name);
  EXPECT_EQ(L"C:\\Data", found.Items[0].InFolder);
  EXPECT_EQ(L"12 KB", found.Items[0].Size);
  EXPECT_EQ(L"1/2/01 3:04 PM", found.Items[0].Modified);
  EXPECT_EQ(L"spaced", found.Items[1].Name);
  EXPECT_EQ(L"", found.Items[1].Size);
  EXPECT_EQ(L"Find: All Files", found.Title);
  EXPECT_FALSE(Cancelled);
  EXPECT_EQ(100, run.Share);
}

TEST_F(PrintFromFind, SaysThatNoneIsOpenAndAborts) {
  Texts.Set(138, L"No Find window is open.");
  WatchedRun run;
  EXPECT_EQ("cancelled", ResultOf(run));
  ASSERT_EQ(1u, Fake().Messages.size());
  EXPECT_EQ(L"No Find window is open.", Fake().Messages[0].Text);
  EXPECT_EQ(platform::BoxIcon::Exclamation, Fake().Messages[0].Icon);
  EXPECT_EQ(platform::BoxButtons::Ok, Fake().Messages[0].Buttons);
  EXPECT_EQ(0, FindWindows().DialogsShown);
}

TEST_F(PrintFromFind, WaitsForTheUserAmongSeveral) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: one", {}), FindWindow(20, L"Find: two", TwoRows()),
                            FindWindow(30, L"Find: three", {})};
  FindWindows().User = {[](FindChoice&) {}, [](FindChoice&) {}, [](FindChoice& choice) { choice.Choose(1); }};
  WatchedRun run;
  const FoundRows found = Read(run);
  EXPECT_EQ(2u, found.Items.size());
  EXPECT_EQ(1, FindWindows().DialogsShown);
  EXPECT_EQ(3, FindWindows().EventRounds);
  EXPECT_EQ(L"Find: two", found.Title);
}

TEST_F(PrintFromFind, AsksNobodyWhoCannotAnswer) {
  Texts.Set(190, L"Several are open.");
  FindWindows().TopLevel = {FindWindow(10, L"Find: one", TwoRows()), FindWindow(20, L"Find: two", TwoRows())};
  class Unattended final : public NoProgress {
    bool CanAsk() const override { return false; }
  } run;
  EXPECT_EQ("cancelled", ResultOf(run));
  EXPECT_EQ(0, FindWindows().DialogsShown);
  ASSERT_EQ(1U, Fake().Messages.size());
  EXPECT_EQ(L"Several are open.", Fake().Messages[0].Text);
  FindWindows().TopLevel.pop_back();
  EXPECT_EQ("2 rows", ResultOf(run)) << "nothing is to be asked";
}

TEST_F(PrintFromFind, AbortsWhenTheDialogIsCancelled) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: one", TwoRows()), FindWindow(20, L"Find: two", TwoRows())};
  FindWindows().User = {[](FindChoice& choice) { choice.Cancel(); }};
  WatchedRun run;
  EXPECT_EQ("cancelled", ResultOf(run));
  EXPECT_EQ(0, FindWindows().Calls);
}

TEST_F(PrintFromFind, TheWindowThatWasListedLastHeadsThePathListsThatFollow) {
  fakes::Tree().File(L"C:\\list.txt", "");
  Start = {L"C:\\list.txt", L"C:\\list.txt"};
  ListingRun list = MakeRun();
  EXPECT_EQ(L"", Capture.PrintFromFileList(list).Title) << "before the first";
  FindWindows().TopLevel = {FindWindow(10, L"Find: before", TwoRows())};
  WatchedRun run;
  EXPECT_EQ("2 rows", ResultOf(run));
  FindWindows().TopLevel = {FindWindow(10, L"Find: one", TwoRows()), FindWindow(20, L"Find: two", TwoRows())};
  FindWindows().User = {[](FindChoice& choice) { choice.Cancel(); }};
  EXPECT_EQ("cancelled", ResultOf(run));
  EXPECT_EQ(L"Find: before", Capture.PrintFromFileList(list).Title) << "a cancelled choice changes nothing";
}

TEST_F(PrintFromFind, WaitsOnWithoutInnerWindowsUntilTheRunIsCancelled) {
  fakes::FakeWindow empty = FindWindow(10, L"Find: odd", {});
  empty.Children.clear();
  FindWindows().TopLevel = {empty};
  WatchedRun run(50);
  EXPECT_EQ("cancelled", ResultOf(run));
  EXPECT_EQ(50, FindWindows().EventRounds);
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST_F(PrintFromFind, FailsWithoutInnerWindowsWhenNobodyWatches) {
  fakes::FakeWindow empty = FindWindow(10, L"Find: odd", {});
  empty.Children.clear();
  FindWindows().TopLevel = {empty};
  NoProgress run;
  EXPECT_EQ("error 0", ResultOf(run));
}

TEST_F(PrintFromFind, TheUserMayStillChooseWhenNobodyWatches) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: one", {}), FindWindow(20, L"Find: two", TwoRows())};
  FindWindows().User = {[](FindChoice&) {}, [](FindChoice& choice) { choice.Choose(1); }};
  NoProgress run;
  EXPECT_EQ("2 rows", ResultOf(run));
}

TEST_F(PrintFromFind, CancelOfTheRunEndsTheChoice) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: one", TwoRows()), FindWindow(20, L"Find: two", TwoRows())};
  WatchedRun run(5);
  EXPECT_EQ("cancelled", ResultOf(run));
  EXPECT_EQ(0, FindWindows().DialogsOpen);
}

TEST_F(PrintFromFind, ListsAnEmptyResultList) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: nothing", {})};
  WatchedRun run;
  EXPECT_EQ("0 rows", ResultOf(run));
  EXPECT_EQ(0, FindWindows().Blocks);
}

TEST_F(PrintFromFind, AListThatClaimsLessThanNoRowsIsEmpty) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: confused", TwoRows())};
  OnlyList().ClaimedRows = -1;
  WatchedRun run;
  EXPECT_EQ("0 rows", ResultOf(run));
}

TEST_F(PrintFromFind, ACellThatTheListLeavesAloneIsEmpty) {
  // Rows are read in blocks of sixty-four: row 64 takes the place that row 0 had before.
  FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(65))};
  OnlyList().SilentFrom = 64;
  WatchedRun run;
  const FoundRows found = Read(run);
  ASSERT_EQ(65u, found.Items.size());
  EXPECT_EQ(L"n63", found.Items[63].Name);
  for (const std::wstring& text :
       {found.Items[64].Name, found.Items[64].InFolder, found.Items[64].Size, found.Items[64].Modified}) {
    EXPECT_EQ(L"", text);
  }
}

TEST_F(PrintFromFind, StopsAfterTheRowInWhichTheRunIsCancelled) {
  FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(200))};
  WatchedRun run(70);  // the seventieth row; a block holds fewer
  const FoundRows found = Read(run);
  EXPECT_TRUE(Cancelled);
  EXPECT_EQ(70 * 4, FindWindows().GetItemMessages);
  // The number of rows, each cell's message, and two copies for each of the two blocks that were begun.
  EXPECT_EQ(1 + 70 * 4 + 2 * 2, FindWindows().Calls);
  EXPECT_EQ(L"n69", found.Items[69].Name);
  EXPECT_EQ(L"", found.Items[70].Name);
}

TEST_F(PrintFromFind, ReadsEveryRowOnceInOrder) {
  FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(193))};
  WatchedRun run;
  const FoundRows found = Read(run);
  ASSERT_EQ(193u, found.Items.size());
  for (std::size_t row = 0; row < 193; ++row) {
    const std::wstring number = std::to_wstring(row);
    EXPECT_EQ(L"n" + number, found.Items[row].Name);
    EXPECT_EQ(L"f" + number, found.Items[row].InFolder);
    EXPECT_EQ(L"s" + number, found.Items[row].Size);
    EXPECT_EQ(L"m" + number, found.Items[row].Modified);
  }
  EXPECT_EQ(100, run.Share);
}

TEST_F(PrintFromFind, CrossesIntoTheOtherProgramAtMostFiveTimesARow) {
  FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(10'000))};
  WatchedRun run;
  EXPECT_EQ("10000 rows", ResultOf(run));
  EXPECT_EQ(40'000, FindWindows().GetItemMessages);
  EXPECT_EQ(1, FindWindows().Blocks);
  EXPECT_LE(FindWindows().Calls, 50'000);
  // The number of rows, each cell's message, and two copies for each of the 157 blocks of up to 64 rows.
  EXPECT_EQ(1 + 40'000 + 2 * 157, FindWindows().Calls);
}

TEST_F(PrintFromFind, CutsCellsToWhatFitsIn260Bytes) {
  const std::string text259(259, 'a'), text260(260, 'b'), text400(400, 'c');
  FindWindows().TopLevel = {FindWindow(10, L"Find", {{text259, text260, text400, "type", "date"}})};
  WatchedRun run;
  const FoundRows found = Read(run);
  EXPECT_EQ(std::wstring(259, L'a'), found.Items[0].Name);
  EXPECT_EQ(std::wstring(259, L'b'), found.Items[0].InFolder);
  EXPECT_EQ(std::wstring(259, L'c'), found.Items[0].Size);
  EXPECT_EQ(L"date", found.Items[0].Modified);
}

TEST_F(PrintFromFind, Serves32BitOwners) {
  FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(100))};
  OnlyList().Layout = platform::RecordLayout::Bits32;
  WatchedRun run;
  const FoundRows found = Read(run);
  ASSERT_EQ(100u, found.Items.size());
  EXPECT_EQ(L"n99", found.Items[99].Name);
  EXPECT_EQ(L"m99", found.Items[99].Modified);
}

TEST_F(PrintFromFind, ReportsAnOwnerThatMayNotBeOpened) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: elevated", TwoRows())};
  OnlyList().Refuses = fakes::AccessDenied();
  WatchedRun run;
  EXPECT_EQ("error 5", ResultOf(run));
}

TEST_F(PrintFromFind, ReportsAnOwnerThatEndsBeforeOrWhileItIsRead) {
  for (const int call : {1, 2, 3, 150, 258}) {
    FindWindows().Calls = 0;
    FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(100))};
    OnlyList().DiesAtCall = call;
    WatchedRun run;
    EXPECT_EQ("error 1400", ResultOf(run)) << call;
    EXPECT_EQ(0, FindWindows().DialogsOpen);
  }
}

TEST_F(PrintFromFind, SharesRequestAndTextByName) {
  Fake().TemporaryDirectory = L"C:\\Temp";  // no backslash at its end
  FindWindows().TopLevel = {FindWindow(10, L"Find", TwoRows())};
  WatchedRun run;
  EXPECT_EQ("2 rows", ResultOf(run));
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

TEST_F(PrintFromFind, SecondRunReadsTheListAsItIsThen) {
  FindWindows().TopLevel = {FindWindow(10, L"Find", ManyRows(5))};
  WatchedRun run;
  EXPECT_EQ("5 rows", ResultOf(run));
  FindWindows().TopLevel = {FindWindow(10, L"Find", TwoRows())};
  const FoundRows found = Read(run);
  ASSERT_EQ(2u, found.Items.size());
  EXPECT_EQ(L"spaced", found.Items[1].Name);
}

}  // namespace
}  // namespace folivant
