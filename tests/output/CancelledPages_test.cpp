// Whole runs to the printer that the user cancels while pages are drawn.
#include "fakes/RecordingSurface.h"
#include "output/mdlPrint.h"
#include "scan/ListingTest.h"
#include "shell/mdlFind.h"

namespace folivant {
namespace {

class CancelledPages : public ListingTest {
 protected:
  CancelledPages() {
    printer.Reset();
    General.FontName = L"Courier New";
    General.FontSize = 10;
    General.Font80HF = true;
    Format.Files = {true, false, false, false, false};
    // Some hundred lines in each style, and directories that come after them.
    fakes::FakeDir data = Tree().Dir(L"C:\\Data");
    for (int i = 0; i < kMany; ++i) {
      data.File(L"f" + std::to_wstring(i));
    }
    for (int i = 0; i < kMany; ++i) {
      Tree().Dir(L"C:\\Data\\d" + std::to_wstring(i)).File(L"g");
    }
    std::string paths;
    for (int i = 0; i < kMany; ++i) {
      paths += "C:\\Data\\f" + std::to_string(i) + "\r\n";
    }
    Tree().Dir(L"C:\\Lists").FileWith(L"paths.txt", paths);
  }

  void Print(ListingStyle style) {
    Print(style, style == ListingStyle::PathListFile ? L"C:\\Lists\\paths.txt" : L"C:\\Data");
  }
  void Print(ListingStyle style, const std::wstring& path) {
    printer.Reset();
    Format.ListingStyle = style;
    Start = {path, path};
    OutputDriver driver;
    driver.Choose(OutputKind::Printer);
    FindCapture fileLists(Context);
    RunListing(Run, driver, fileLists);
  }

  static constexpr int kMany = 300;
  fakes::RecordingPrinter& printer = fakes::Printer();
};

constexpr ListingStyle kStyles[] = {kFlat, kDeep, kTree, kView, kFull, ListingStyle::PathListFile};

TEST_F(CancelledPages, TheRunEndsAtThePageOnWhichTheUserCancels) {
  for (const int page : {2, 3}) {
    Watcher.OnPump = [this, page] { Watcher.CancelNow = Watcher.CancelNow || printer.Pages == page; };
    for (const ListingStyle style : kStyles) {
      SCOPED_TRACE(static_cast<int>(style));
      Watcher.CancelNow = false;
      Print(style);
      EXPECT_EQ(printer.Pages, page);
      EXPECT_TRUE(Run.Cancelled);
      EXPECT_EQ(printer.Ended, 0) << "nothing is printed";
      EXPECT_EQ(printer.Aborted, 1);
    }
  }
}

TEST_F(CancelledPages, NothingIsDrawnOnceTheRunIsCancelled) {
  std::size_t drawn = 0;
  Watcher.OnPump = [this, &drawn] {
    if (!Watcher.CancelNow && printer.Pages == 2) {
      Watcher.CancelNow = true;
      drawn = printer.Drawn.size();
    }
  };
  for (const ListingStyle style : kStyles) {
    SCOPED_TRACE(static_cast<int>(style));
    Watcher.CancelNow = false;
    Print(style);
    EXPECT_EQ(printer.Drawn.size(), drawn);
  }
}

TEST_F(CancelledPages, WhoeverDoesNotCancelGetsEveryPage) {
  for (const ListingStyle style : kStyles) {
    SCOPED_TRACE(static_cast<int>(style));
    Print(style);
    EXPECT_GT(printer.Pages, 3);
    EXPECT_EQ(printer.Ended, 1);
    EXPECT_FALSE(Run.Cancelled);
  }
}

TEST_F(CancelledPages, ARunThatIsCompleteCannotBeCancelledAnyMore) {
  // Whichever line of a page the listing ends on, its closing lines may begin the next one.
  fakes::FakeDir folder = Tree().Dir(L"D:\\Data");
  for (int files = 1; files < 80; ++files) {
    folder.File(L"f" + std::to_wstring(files));
    bool eventsAfterTheEnd = false;
    Watcher.OnPump = [this, &eventsAfterTheEnd] {
      for (const fakes::DrawnText& drawn : printer.Drawn) {
        eventsAfterTheEnd = eventsAfterTheEnd || drawn.Text.find(L", 0 b") != drawn.Text.npos;  // the summary
      }
    };
    Print(kDeep, L"D:\\Data");
    EXPECT_EQ(printer.Ended, 1);
    EXPECT_FALSE(eventsAfterTheEnd) << files << " files";
  }
}

}  // namespace
}  // namespace folivant
