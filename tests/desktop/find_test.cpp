// Listings of open Find windows by the real program: the choice among them, every file kind, and windows that
// misbehave. FindStandIn plays the shell's Find window.
#include "desktop/Desktop.h"

#include <commctrl.h>

#include <memory>

#include "find/StandIn.h"
#include "res/Controls.h"

namespace folivant::desktop {
namespace {

using tests::StandIn;

const std::vector<std::string> kTwoRows = {
    "Report.txt\tC:\\Data\t12 KB\tText Document\t1/2/2001 3:04 PM",
    "Old stuff\tC:\\\t\tFile Folder\t2/3/2001 4:05 AM",
};

class FindListing : public DesktopTest {
 protected:
  /// A command-line run of style 5 that writes the given kind.
  std::unique_ptr<Program> Run(wchar_t letter) const {
    return std::make_unique<Program>(L"/f " + filter + L" /t " + letter + L" /o " + Output() + L" /g");
  }
  /// The main window with style 5, the screen as destination, and a viewer that ends at once.
  std::unique_ptr<Program> Open() {
    WriteStore(L"Settings", L"TextViewer", ProgramFolder() + L"\\FindStandIn.exe");
    auto program = std::make_unique<Program>(L"/f " + filter);
    Main = program->WaitForWindow(L"Folivant");
    Main.Click(optScreen);  // a machine without a printer has the file destination selected
    Main.Press(cmdOK);
    return program;
  }
  Window Main;  ///< of the program that was opened last
  std::wstring Output() const { return scratch / L"list.txt"; }

  static Window Dialog(const Program& program) { return program.WaitForWindow(Message(206)); }
  static Window Progress(const Program& program) { return program.WaitForWindow(Message(203)); }
  static int Rows(const Window& dialog) { return Ask(dialog, LB_GETCOUNT); }
  static int Selected(const Window& dialog) { return Ask(dialog, LB_GETCURSEL); }
  static int Ask(const Window& dialog, UINT message, int row = 0) {
    return static_cast<int>(SendMessageW(dialog.Control(lstFind).Handle(), message, static_cast<WPARAM>(row), 0));
  }
  static std::wstring Row(const Window& dialog, int row) {
    std::wstring text(300, L'\0');
    const LRESULT length = SendMessageW(dialog.Control(lstFind).Handle(), LB_GETTEXT, static_cast<WPARAM>(row),
                                        reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
  }
  static std::string ScreenFile() {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    const std::wstring file = std::wstring(folder) + L"~fv00001.tmp";
    return Exists(file) ? ReadBytes(file) : std::string();
  }

  Scratch scratch;
  std::wstring filter = scratch.FilterFile(L"five.fvf", {"Format=5", "OutputTo=2", "Header=Found"});
};

TEST_F(FindListing, TheOnlyWindowIsListedWithoutAQuestionAsCsv) {
  const StandIn window(L"Find: reports", kTwoRows);
  EXPECT_EQ(Run(L'c')->WaitForExit(), 0u);
  const std::string listing = ReadBytes(Output());
  EXPECT_TRUE(listing.starts_with("Found;\r\n\r\n\r\n")) << listing;
  EXPECT_NE(listing.find("\r\nFind: reports\r\n"), std::string::npos) << listing;
  EXPECT_TRUE(
      listing.ends_with("\r\nReport.txt;C:\\Data;12 KB;1/2/2001 3:04 PM;\r\n"
                        "Old stuff;C:\\;;2/3/2001 4:05 AM;\r\n"))
      << listing;
}

TEST_F(FindListing, TabsPartTheColumns) {
  const StandIn window(L"Find", kTwoRows);
  EXPECT_EQ(Run(L'a')->WaitForExit(), 0u);
  EXPECT_TRUE(
      ReadBytes(Output()).ends_with("\r\nReport.txt\tC:\\Data\t12 KB\t1/2/2001 3:04 PM\t\r\n"
                                    "Old stuff\tC:\\\t\t2/3/2001 4:05 AM\t\r\n"));
}

TEST_F(FindListing, TextHoldsOneLineForEachRow) {
  const StandIn window(L"Find", kTwoRows);
  EXPECT_EQ(Run(L't')->WaitForExit(), 0u);
  const std::string listing = ReadBytes(Output());
  EXPECT_NE(listing.find("\r\nReport.txt "), std::string::npos) << listing;
  EXPECT_NE(listing.find("\r\nOld stuff "), std::string::npos) << listing;
  EXPECT_NE(listing.find("12 KB  1/2/2001 3:04 PM"), std::string::npos) << listing;
}

TEST_F(FindListing, HtmlIsOneTableUnderTheWindowsTitle) {
  const StandIn window(L"Find: reports", kTwoRows);
  EXPECT_EQ(Run(L'h')->WaitForExit(), 0u);
  const std::string listing = ReadBytes(Output());
  EXPECT_NE(listing.find("<h4>Find: reports</h4>\r\n<table cellpadding=3><tr>\r\n"), std::string::npos) << listing;
  EXPECT_NE(listing.find("<tr><td>Report.txt\r\n<td>C:\\Data\r\n<td>12 KB\r\n<td>1/2/2001 3:04 PM</tr>\r\n"),
            std::string::npos)
      << listing;
  EXPECT_TRUE(listing.ends_with("</table>\r\n")) << listing;
}

TEST_F(FindListing, XmlHoldsOneFileForEachRow) {
  const StandIn window(L"Find", kTwoRows);
  EXPECT_EQ(Run(L'x')->WaitForExit(), 0u);
  const std::string listing = ReadBytes(Output());
  std::size_t files = 0;
  for (std::size_t at = listing.find("<file>"); at != listing.npos; at = listing.find("<file>", at + 1)) {
    ++files;
  }
  EXPECT_EQ(files, 2u) << listing;
  EXPECT_NE(listing.find("Report.txt"), std::string::npos);
  EXPECT_TRUE(listing.ends_with("</xml>\r\n")) << listing;
}

TEST_F(FindListing, AnEmptyResultListGivesTheHeadingAlone) {
  const StandIn window(L"Find: nothing", {});
  EXPECT_EQ(Run(L'c')->WaitForExit(), 0u);
  const std::string listing = ReadBytes(Output());
  const std::size_t title = listing.find("Find: nothing\r\n\r\n");
  ASSERT_NE(title, std::string::npos) << listing;
  EXPECT_TRUE(listing.ends_with(";\r\n\r\n")) << "captions and an empty line: " << listing;
}

TEST_F(FindListing, LongTextsAreCutTo259Characters) {
  const StandIn window(L"Find", {std::string(259, 'a') + "\t" + std::string(400, 'b') + "\t1 KB\tText\tnow"});
  EXPECT_EQ(Run(L'c')->WaitForExit(), 0u);
  const std::string listing = ReadBytes(Output());
  const std::size_t row = listing.find("\r\naaa") + 2;
  EXPECT_EQ(listing.substr(row, 260), std::string(259, 'a') + ";");
  const std::size_t folder = listing.find(';', row + 260) - (row + 260);
  EXPECT_TRUE(folder == 259 || folder == 260) << folder;  // Wine fills the last byte as well
}

TEST_F(FindListing, WithoutAFindWindowThereIsAMessage) {
  const auto program = Run(L't');
  const Window box = program->WaitForBox();
  EXPECT_EQ(box.BoxText(), Message(138));
  box.Answer(IDOK);
  EXPECT_TRUE(program->WaitForExit().has_value());
}

TEST_F(FindListing, SeveralWindowsAreOfferedTopmostFirst) {
  const StandIn one(L"Find: one", {}), two(L"Find: two", kTwoRows), three(L"Find: three", {});
  const auto program = Run(L'c');
  const Window dialog = Dialog(*program);
  EXPECT_EQ(dialog.TextOf(LABEL_OF(lstFind)), Message(136));
  EXPECT_EQ(dialog.TextOf(cmdOK), Message(13));
  EXPECT_EQ(dialog.TextOf(cmdCancel), Message(42));
  ASSERT_EQ(Rows(dialog), 3);
  EXPECT_EQ(Selected(dialog), 0);
  int wanted = 0;
  while (wanted < 3 && Row(dialog, wanted) != L"Find: two") {
    ++wanted;
  }
  ASSERT_LT(wanted, 3);
  Ask(dialog, LB_SETCURSEL, wanted);
  dialog.Press(cmdOK);
  EXPECT_EQ(program->WaitForExit(), 0u);
  const std::string listing = ReadBytes(Output());
  EXPECT_NE(listing.find("Find: two\r\n"), std::string::npos) << listing;
  EXPECT_NE(listing.find("Report.txt;"), std::string::npos) << listing;
}

TEST_F(FindListing, ADoubleClickChooses) {
  const StandIn one(L"Find: one", kTwoRows), two(L"Find: two", {});
  const auto program = Run(L'c');
  const Window dialog = Dialog(*program);
  const bool firstIsOne = Row(dialog, 0) == L"Find: one";
  const POINT second{20, Ask(dialog, LB_GETITEMHEIGHT) * 3 / 2 + 2};
  dialog.Control(lstFind).ClickInside(second, 2);
  EXPECT_EQ(program->WaitForExit(), 0u);
  EXPECT_NE(ReadBytes(Output()).find(firstIsOne ? "Find: two" : "Find: one"), std::string::npos);
}

TEST_F(FindListing, OkWithoutASelectionDoesNothing) {
  const StandIn one(L"Find: one", kTwoRows), two(L"Find: two", kTwoRows);
  const auto program = Run(L'c');
  const Window dialog = Dialog(*program);
  Ask(dialog, LB_SETCURSEL, -1);
  dialog.Click(cmdOK);
  EXPECT_TRUE(dialog.IsShown());
  EXPECT_TRUE(program->IsRunning());
  Ask(dialog, LB_SETCURSEL, 0);
  dialog.Press(cmdOK);
  EXPECT_EQ(program->WaitForExit(), 0u);
}

TEST_F(FindListing, CancelAndCloseBoxEndTheRunWithoutAListing) {
  const StandIn one(L"Find: one", kTwoRows), two(L"Find: two", kTwoRows);
  const std::function<void(const Window&)> ways[] = {
      [](const Window& dialog) { dialog.Press(cmdCancel); },
      [](const Window& dialog) { dialog.Close(); },
      [](const Window& dialog) {
        dialog.Activate();
        PressKey(VK_ESCAPE);
      },
  };
  for (const auto& leave : ways) {
    const auto program = Run(L'c');
    leave(Dialog(*program));
    EXPECT_TRUE(program->WaitForExit().has_value());
    EXPECT_EQ(ReadBytes(Output()).find("Report.txt"), std::string::npos);
  }
}

TEST_F(FindListing, ARunFromTheMainWindowListsToo) {
  const StandIn window(L"Find: from the window", kTwoRows);
  const auto program = Open();
  EXPECT_TRUE(WaitUntil([&] { return ScreenFile().find("Find: from the window") != std::string::npos; }));
  EXPECT_TRUE(WaitUntil([&] { return Main.IsEnabled(); }));
}

TEST_F(FindListing, WithoutInnerWindowsTheWaitGoesOnUntilTheRunIsCancelled) {
  const StandIn window(L"Find: odd", kTwoRows, L"without-list");
  const auto program = Open();
  const Window progress = Progress(*program);
  const auto bar = [&] { return SendMessageW(progress.Control(ProgressBar).Handle(), PBM_GETPOS, 0, 0); };
  EXPECT_EQ(bar(), 0);
  EXPECT_TRUE(WaitUntil([&] { return bar() >= 2; }, 4'000)) << "creeps while nothing is reported";
  ASSERT_TRUE(progress.IsShown()) << "no error, no end";
  progress.Press(cmdCancel);
  program->WaitForBox(progress).Answer(IDYES);
  EXPECT_TRUE(progress.WaitUntilGone());
  const Window main = program->WaitForWindow(L"Folivant");
  EXPECT_TRUE(main.IsEnabled());
  main.Close();
  EXPECT_EQ(program->WaitForExit(), 0u);
}

TEST_F(FindListing, WithoutInnerWindowsACommandLineRunFails) {
  const StandIn window(L"Find: odd", kTwoRows, L"without-view");
  const auto program = Run(L't');
  const Window box = program->WaitForBox();
  EXPECT_NE(box.BoxText().find(L"Find: odd"), std::wstring::npos);
  box.Answer(IDOK);
  EXPECT_EQ(program->WaitForExit(), 1u);
}

TEST_F(FindListing, AnOwnerThatDiesIsNamedAndTheProgramGoesOn) {
  const StandIn window(L"Find: mortal", std::vector<std::string>(300, "a\tb\tc\td\te"), L"dies-after 500");
  const auto program = Open();
  const Window box = program->WaitForWindow(L"Folivant", Main);
  EXPECT_NE(box.BoxText().find(L"Find: mortal"), std::wstring::npos) << "names the window";
  box.Answer(IDOK);
  EXPECT_TRUE(WaitUntil([&] { return Main.IsEnabled(); }));
}

TEST_F(FindListing, AnOwnerThatMayNotBeOpenedIsNamed) {
  const StandIn window(L"Find: locked", kTwoRows, L"locked");
  const auto program = Run(L't');
  const Window box = program->WaitForBox();
  EXPECT_NE(box.BoxText().find(L"Find: locked"), std::wstring::npos);
  EXPECT_NE(box.BoxText().find(L"(5)"), std::wstring::npos) << "access denied";
  box.Answer(IDOK);
  EXPECT_EQ(program->WaitForExit(), 1u);
}

TEST_F(FindListing, CancelStopsTheReading) {
  const StandIn window(L"Find: long", std::vector<std::string>(10'000, "name\tfolder\tsize\ttype\tdate"));
  const auto program = Open();
  const Window progress = Progress(*program);
  progress.Press(cmdCancel);
  program->WaitForBox(progress).Answer(IDYES);
  EXPECT_TRUE(progress.WaitUntilGone(3000));
  EXPECT_EQ(ScreenFile().find("folder"), std::string::npos);
  EXPECT_TRUE(program->WaitForWindow(L"Folivant").IsEnabled());
}

}  // namespace
}  // namespace folivant::desktop
