// Help: F1 and the Help button of every window open the manual of the language, or its help file where there is one.
#include <atomic>
#include <filesystem>
#include <thread>

#include "desktop/MainWindow.h"
#include "desktop/Manuals.h"
#include "find/StandIn.h"

namespace folivant::desktop {
namespace {

class Help : public MainWindowTest {
 protected:
  void SetUp() override {
    if (!MayReplaceTheBrowser()) {
      GTEST_SKIP() << "would open the user's browser";
    }
    browser.emplace(scratch.Path());
  }

  void ExpectOpened(const std::string& page) const { browser->ExpectOpened(page); }
  void ExpectHelpByKey(Window window) const {
    window.Activate();
    PressKey(VK_F1);
    ExpectOpened("english.html");
  }
  void ExpectHelpByButton(Window window) const {
    window.Press(cmdHelp);
    ExpectOpened("english.html");
  }

  std::optional<BrowserStandIn> browser;
};

TEST_F(Help, F1AndTheButtonOpenTheManualInEveryWindow) {
  ASSERT_TRUE(Exists(ProgramFolder() + L"\\help\\english.html")) << "the build puts the manual beside the program";
  const Program program(Argument());
  const Window main = Main(program);
  ExpectHelpByKey(main);
  ExpectHelpByButton(main);
  for (const auto& [button, title] : {std::pair(cmdFilter, 200), {cmdFormat, 201}, {cmdOptions, 204}}) {
    const Window dialog = Open(program, main, button, title);
    ExpectHelpByKey(dialog);
    ExpectHelpByButton(dialog);
    if (button == cmdFormat) {
      const Window columns = Open(program, dialog, Command1, 202);
      ExpectHelpByKey(columns);
      ExpectHelpByButton(columns);
      columns.Answer(cmdCancel);
    }
    dialog.Answer(cmdCancel);
  }
  Close(program, main);
}

TEST_F(Help, F1OpensTheManualInTheWindowsOfARun) {
  const tests::StandIn one(L"Find: one", {}), two(L"Find: two", {});
  const Program program(L"/f " + scratch.FilterFile(L"find.fvf", {"Format=5"}));
  const Window main = Main(program);
  main.Click(optScreen);
  main.Press(cmdOK);
  const Window choice = program.WaitForWindow(Message(206));
  ExpectHelpByKey(choice);
  ExpectHelpByKey(program.WaitForWindow(Message(203), main));
  choice.Press(cmdCancel);
  EXPECT_TRUE(WaitUntil([&] { return main.IsEnabled(); }));
  Close(program, main);
}

/// The window that the system's help call looks for, with a thread of its own; it keeps what it is sent.
class HelpViewerStandIn {
 public:
  HelpViewerStandIn() : thread_([this] { Run(); }) {
    EXPECT_TRUE(WaitUntil([this] { return window_ != nullptr; }));
  }
  ~HelpViewerStandIn() {
    PostMessageW(window_, WM_CLOSE, 0, 0);
    thread_.join();
  }
  HelpViewerStandIn(const HelpViewerStandIn&) = delete;
  HelpViewerStandIn& operator=(const HelpViewerStandIn&) = delete;

  /// Whether a request has come that names the file.
  bool IsAskedFor(const std::string& file) const { return asked_ && request_.find(file) != std::string::npos; }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<HelpViewerStandIn*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_COPYDATA) {
      const auto& data = *reinterpret_cast<const COPYDATASTRUCT*>(lParam);
      self->request_.assign(static_cast<const char*>(data.lpData), data.cbData);
      self->asked_ = true;
      return TRUE;
    }
    if (message == WM_CLOSE) {
      PostQuitMessage(0);
    }
    return DefWindowProcW(window, message, wParam, lParam);
  }
  void Run() {
    WNDCLASSW kind{};
    kind.lpfnWndProc = Procedure;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = L"MS_WINHELP";
    RegisterClassW(&kind);
    const HWND window = CreateWindowExW(0, kind.lpszClassName, L"Help", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                        kind.hInstance, nullptr);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    window_ = window;
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
      DispatchMessageW(&message);
    }
    DestroyWindow(window);
    UnregisterClassW(kind.lpszClassName, kind.hInstance);
  }

  std::string request_;
  std::atomic<bool> asked_ = false;
  std::atomic<HWND> window_ = nullptr;
  std::thread thread_;
};

TEST_F(Help, AHelpFileBesideTheProgramIsOpenedInsteadOfTheManual) {
  const std::wstring folder = scratch.Dir(L"Program");
  for (const wchar_t* name : {L"\\Folivant.exe", L"\\english.ini", L"\\help\\english.html"}) {
    std::filesystem::create_directories(folder + L"\\help");
    CopyFileW((ProgramFolder() + name).c_str(), (folder + name).c_str(), FALSE);
  }
  const HelpViewerStandIn viewer;
  const Program program(Argument(), {}, folder + L"\\Folivant.exe");
  const Window main = Main(program);
  ExpectHelpByButton(main);
  EXPECT_FALSE(viewer.IsAskedFor("hlp")) << "there is none yet";
  Close(program, main);

  scratch.File(L"Program\\english.hlp");
  const Program again(Argument(), {}, folder + L"\\Folivant.exe");
  const Window window = Main(again);
  window.Press(cmdHelp);
  EXPECT_TRUE(WaitUntil([&] { return viewer.IsAskedFor("\\Program\\english.hlp"); }));
  EXPECT_FALSE(WaitUntil([&] { return browser->HasOpened(); }, 2'000));
  Close(again, window);
}

TEST_F(Help, EachLanguageHasItsManual) {
  for (const char* language : {"dutch", "french", "german", "italian", "polish", "portuguese", "russian", "spanish"}) {
    const std::string name = language;
    WriteStore(L"Settings", L"Language", std::wstring(name.begin(), name.end()) + L".ini");
    const Program program(Argument());
    const Window main = Main(program);
    main.Press(cmdHelp);
    ExpectOpened(name + ".html");
    Close(program, main);
  }
}

TEST_F(Help, TheManualFollowsTheWindowsWhenTheLanguageIsChanged) {
  WriteStore(L"Settings", L"LastTab", L"5");
  {
    const Program program(Argument());
    const Window main = Main(program);
    const Window options = Open(program, main, cmdOptions, 204);
    const LRESULT english = SendMessageW(options.Control(cmbLang).Handle(), CB_GETCURSEL, 0, 0);
    options.Choose(cmbLang, english == 0 ? 1 : 0);
    options.Answer(cmdOK);
    main.Press(cmdHelp);
    ExpectOpened("english.html");
    Close(program, main);
  }
  const std::wstring chosen = ReadStore(L"Settings", L"Language").value_or(L"");
  ASSERT_TRUE(chosen.ends_with(L".ini") && chosen != L"english.ini");
  const Program program(Argument());
  const Window main = Main(program);
  main.Press(cmdHelp);
  ExpectOpened(std::string(chosen.begin(), chosen.end() - 4) + ".html");
  Close(program, main);
}

}  // namespace
}  // namespace folivant::desktop
