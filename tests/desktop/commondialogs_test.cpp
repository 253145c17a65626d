// The system's own dialogs that the program opens: folder, file and font.
#include "desktop/MainWindow.h"

#include <commctrl.h>

namespace folivant::desktop {
namespace {

class CommonDialogs : public MainWindowTest {
 protected:
  CommonDialogs() : program(Argument()), main(Main(program)) {}

  Window Options() const { return Open(program, main, cmdOptions, 204); }
  /// Leaves the browser open at the folder "Data". Wine's browser compares the times of last access on its way there,
  /// and gives up where a folder has been read in between, as the neighbouring tests do with the folder for temporary
  /// files.
  void OpenFolderBrowser() {
    bool startsThere = false;
    for (int attempt = 0; !startsThere && attempt < 8; ++attempt) {
      if (attempt > 0) {
        EndFolderBrowser(IDCANCEL);
      }
      main.Press(cmdBrowse);
      browser = program.WaitForBox(main);
      browser.Activate();
      startsThere = WaitUntil([&] { return browser.SelectedBranch() == L"Data"; }, 1'500);
    }
    EXPECT_TRUE(startsThere) << testing::PrintToString(browser.SelectedBranch());
  }
  /// Opens the start folder and goes to its first child; the key does nothing while the system still fills the branch.
  void GoToSub() const {
    EXPECT_TRUE(WaitUntil([&] {
      PressKey(VK_RIGHT);
      return WaitUntil([&] { return browser.SelectedBranch() == L"Sub"; }, 300);
    }));
  }
  void EndFolderBrowser(int button) const {
    PostMessageW(browser.Handle(), WM_COMMAND, static_cast<WPARAM>(button), 0);
    EXPECT_TRUE(browser.WaitUntilGone());
    EXPECT_TRUE(WaitUntil([&] { return main.IsEnabled(); }));
  }
  /// Opens the font dialog and chooses another face and a size of 14 points.
  Window ChooseFont(Window options, int button) const {
    constexpr int kFaces = 1136, kSizes = 1138;  // cmb1 and cmb3 of the system's dialog
    options.Press(button);
    const Window dialog = program.WaitForBox(options);
    EXPECT_TRUE(WaitUntil([&] { return static_cast<bool>(dialog.Control(kFaces)); }));
    const HWND faces = dialog.Control(kFaces).Handle();
    const LRESULT current = SendMessageW(faces, CB_GETCURSEL, 0, 0);
    dialog.Choose(kFaces, current == 0 ? 1 : 0);
    const LRESULT fourteen = SendMessageW(dialog.Control(kSizes).Handle(), CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                          reinterpret_cast<LPARAM>(L"14"));
    EXPECT_GE(fourteen, 0);
    dialog.Choose(kSizes, static_cast<int>(fourteen));
    return dialog;
  }
  static void End(Window dialog, int button) {
    PostMessageW(dialog.Handle(), WM_COMMAND, static_cast<WPARAM>(button), 0);
    EXPECT_TRUE(dialog.WaitUntilGone());
  }

  Program program;
  Window main;
  Window browser;
};

TEST_F(CommonDialogs, TheFolderBrowserStartsOnTheCurrentFolder) {
  OpenFolderBrowser();
  EndFolderBrowser(IDOK);
  EXPECT_TRUE(main.TextOf(lblPath).ends_with(L"\\Data")) << testing::PrintToString(main.TextOf(lblPath));
  Close(program, main);
}

TEST_F(CommonDialogs, AnotherFolderIsTakenFromTheBrowser) {
  OpenFolderBrowser();
  GoToSub();
  EndFolderBrowser(IDOK);
  EXPECT_TRUE(main.TextOf(lblPath).ends_with(L"\\Data\\Sub")) << testing::PrintToString(main.TextOf(lblPath));
  Close(program, main);
}

TEST_F(CommonDialogs, ACancelledBrowserKeepsTheFolder) {
  OpenFolderBrowser();
  GoToSub();
  EndFolderBrowser(IDCANCEL);
  EXPECT_TRUE(main.TextOf(lblPath).ends_with(L"\\Data"));
  Close(program, main);
}

TEST_F(CommonDialogs, TheViewerIsFoundWithBrowse) {
  const std::wstring viewer = scratch.File(L"viewer.exe");
  const Window options = Options();
  options.Press(cmdBrowse);
  const Window open = program.WaitForBox(options);
  Confirm(open, viewer);
  EXPECT_TRUE(open.WaitUntilGone());
  EXPECT_TRUE(WaitUntil([&] { return options.TextOf(txtViewer) == viewer; }));
  options.Answer(cmdCancel);
  EXPECT_EQ(ReadStore(L"Settings", L"TextViewer"), std::nullopt) << "cancel stores nothing";
  Close(program, main);
}

TEST_F(CommonDialogs, AChosenFontIsShownAndStoredByOk) {
  Window options = Options();
  End(ChooseFont(options, cmdFont), IDOK);
  EXPECT_TRUE(WaitUntil([&] { return options.TextOf(lblFont).ends_with(L", 14"); }));
  const std::wstring shown = options.TextOf(lblFont);
  EXPECT_NE(shown, L"Courier New, 14");
  options.Answer(cmdOK);
  EXPECT_EQ(ReadStore(L"Settings", L"FontSize"), L"14");
  EXPECT_EQ(ReadStore(L"Settings", L"FontName").value_or(L"") + L", 14", shown);
  options = Options();
  EXPECT_EQ(options.TextOf(lblFont), shown);
  options.Answer(cmdCancel);
  Close(program, main);
}

TEST_F(CommonDialogs, ACancelledFontChangesNothing) {
  const Window options = Options();
  const std::wstring before = options.TextOf(lblFont);
  End(ChooseFont(options, cmdFont), IDCANCEL);
  EXPECT_EQ(options.TextOf(lblFont), before);
  options.Answer(cmdCancel);
  Close(program, main);
}

TEST_F(CommonDialogs, HeaderAndFooterHaveAFontOfTheirOwn) {
  const Window options = Options();
  options.Click(chkFontHF);
  const std::wstring listing = options.TextOf(lblFont);
  End(ChooseFont(options, cmdFontHF), IDOK);
  EXPECT_TRUE(WaitUntil([&] { return options.TextOf(lblFontHF).ends_with(L", 14"); }));
  EXPECT_EQ(options.TextOf(lblFont), listing);
  options.Answer(cmdOK);
  EXPECT_EQ(ReadStore(L"Settings", L"FontSizeHF"), L"14");
  EXPECT_EQ(ReadStore(L"Settings", L"Font80HF"), L"False");
  Close(program, main);
}

TEST_F(CommonDialogs, ControlAndTabTurnThePagesOfTheOptions) {
  const Window options = Options();
  options.Activate();
  const auto page = [&] { return SendMessageW(options.Control(TabStrip).Handle(), TCM_GETCURSEL, 0, 0); };
  ASSERT_EQ(page(), 0);
  PressKey(VK_TAB, false, false, true);
  EXPECT_TRUE(WaitUntil([&] { return page() == 1; }));
  EXPECT_TRUE(options.Control(txtLeft).IsShown());
  PressKey(VK_TAB, false, true, true);
  PressKey(VK_TAB, false, true, true);
  EXPECT_TRUE(WaitUntil([&] { return page() == 5; })) << "from the first page back to the last";
  PressKey(VK_NEXT, false, false, true);
  EXPECT_TRUE(WaitUntil([&] { return page() == 0; }));
  options.Answer(cmdCancel);
  Close(program, main);
}

TEST_F(CommonDialogs, AChosenLanguageShowsAtTheNextStart) {
  for (int row = 0; ReadStore(L"Settings", L"Language") != L"german.ini"; ++row) {
    ASSERT_LT(row, 9) << "German is not offered";
    const Window options = Options();
    options.Choose(cmbLang, row);
    options.Answer(cmdOK);
  }
  EXPECT_EQ(main.TextOf(cmdBrowse), Message(4)) << "not before the next start";
  Close(program, main);
  const Program next(Argument());
  const Window restarted = Main(next);
  EXPECT_EQ(restarted.TextOf(cmdBrowse), Message(4, L"german.ini"));
  Close(next, restarted);
}

}  // namespace
}  // namespace folivant::desktop
