#include "app/CopyListing.h"

#include <gtest/gtest.h>

#include "app/Settings.h"
#include "app/mdlVars.h"
#include "fakes/FakePlatform.h"
#include "platform/RuntimeError.h"
#include "scan/mdlScan.h"
#include "shell/mdlFind.h"

namespace folivant {
namespace {

using fakes::Fake;
using fakes::Tree;

const std::wstring kFile = L"C:\\Out\\list.txt";

/// A watcher that cancels after so many entries.
class Impatient final : public Progress {
 public:
  explicit Impatient(int patience) : patience_(patience) {}
  void ShowDirectory(std::wstring_view) override {}
  void SetProgress(std::int32_t) override {}
  void LetEventsThrough() override { --patience_; }
  bool Cancelled() const override { return patience_ < 0; }

 private:
  int patience_;
};

class CopyListingTest : public testing::Test {
 protected:
  CopyListingTest() {
    Tree().Dir(L"C:\\Data").File(L"A.txt", 5).File(L"B.doc", 4096);
    Tree().Dir(L"C:\\Data\\Sub").File(L"C.txt", 70'000);
    Tree().Dir(L"C:\\Out");
    Tree().File(L"C:\\paths.lst", "C:\\Data\\A.txt\r\nC:\\Data\\Sub\\C.txt\r\n");
    LoadSettings();
    mdlVars::Start = {L"C:\\Data", L"C:\\Data"};
    mdlVars::OutputFile = kFile;
    mdlVars::OutputKind = OutputKind::Html;
    mdlVars::OutputTo = OutputTarget::Printer;
  }

  void Copy() { CopyListing(output_, rows_, nobody_); }
  void List(OutputKind kind) {
    output_.Choose(kind);
    ListingRun run = mdlVars::MakeRun(nobody_);
    RunListing(run, output_, rows_);
  }

  OutputDriver output_;
  FindCapture rows_{mdlVars::MakeDialogContext()};
  NoProgress nobody_;
};

TEST_F(CopyListingTest, ANameBeyondTheCodePageStaysWhatItIs) {
  Tree().Dir(L"C:\\Few").File(L"\u03A9 \u65E5\u672C.txt").File(L"half \xD800.txt");
  mdlVars::Start = {L"C:\\Few", L"C:\\Few"};
  mdlVars::Format.ListingStyle = ListingStyle::FullPathList;
  Copy();
  EXPECT_EQ(Fake().Clipboard, L"C:\\Few\\Half \xD800.txt\r\nC:\\Few\\\u03A9 \u65E5\u672C.txt\r\n");
}

TEST_F(CopyListingTest, HasTheLinesOfATextFileInEveryStyle) {
  using enum ListingStyle;
  for (const ListingStyle style :
       {NoSubdirectories, IncludeSubdirectories, TreeStyle, DirectoryView, FullPathList, PathListFile}) {
    if (style == PathListFile) {
      mdlVars::Start = {L"C:\\paths.lst", L"C:\\paths.lst"};
    }
    mdlVars::Format.ListingStyle = style;
    List(OutputKind::Text);
    const std::string file = Fake().Content(kFile);
    EXPECT_GT(file.size(), 40U);
    Copy();
    EXPECT_EQ(Fake().Clipboard, std::wstring(file.begin(), file.end())) << static_cast<int>(style);
  }
}

TEST_F(CopyListingTest, WritesNoFileAndChangesNothingThatIsStoredOrChosen) {
  const auto store = Fake().Store;
  Copy();
  ASSERT_TRUE(Fake().Clipboard);
  EXPECT_NE(Fake().Clipboard->find(L"A.txt"), std::wstring::npos);
  EXPECT_EQ(Tree().Find(kFile), nullptr);
  EXPECT_EQ(Fake().OpenOutputFiles, 0);
  EXPECT_EQ(Fake().Store, store);
  EXPECT_EQ(mdlVars::OutputKind, OutputKind::Html);
  EXPECT_EQ(mdlVars::OutputFile, kFile);
  EXPECT_EQ(mdlVars::OutputTo, OutputTarget::Printer);
}

TEST_F(CopyListingTest, TheNextRunGoesToItsFile) {
  Copy();
  const auto copied = Fake().Clipboard;
  List(OutputKind::Text);
  EXPECT_NE(Fake().Content(kFile).find("A.txt"), std::string::npos);
  EXPECT_EQ(Fake().Clipboard, copied);
}

TEST_F(CopyListingTest, OneThatIsCancelledLeavesTheClipboardAsItIs) {
  Fake().Clipboard = L"before";
  for (const int entries : {0, 1, 2, 3}) {
    Impatient watcher(entries);
    CopyListing(output_, rows_, watcher);
    EXPECT_EQ(Fake().Clipboard, L"before") << entries;
  }
}

TEST_F(CopyListingTest, OneThatFailsLeavesTheClipboardAsItIs) {
  Fake().Clipboard = L"before";
  mdlVars::Format.ListingStyle = ListingStyle::PathListFile;
  mdlVars::Start = {L"C:\\gone.lst", L"C:\\gone.lst"};
  EXPECT_THROW(Copy(), RuntimeError);
  EXPECT_EQ(Fake().Clipboard, L"before");
}

TEST_F(CopyListingTest, AClipboardThatAnotherProgramHoldsIsAFailureOfTheClipboard) {
  Fake().FailClipboard = fakes::AccessDenied();
  try {
    Copy();
    FAIL() << "copied";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Action(), FailedAction::UseClipboard);
    EXPECT_EQ(error.SystemCode(), 5U);
  }
}

}  // namespace
}  // namespace folivant
