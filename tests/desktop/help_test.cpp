// Help: F1 and the Help button open the language's manual where there is no help file.
#include "desktop/MainWindow.h"

namespace folivant::desktop {
namespace {

/// Sets the default value of a machine-wide key, and puts the old one back.
class MachineDefault {
 public:
  MachineDefault(const wchar_t* key, const std::wstring& value) : key_(key) {
    wchar_t old[512];
    DWORD bytes = sizeof old;
    if (RegGetValueW(HKEY_LOCAL_MACHINE, key, nullptr, RRF_RT_ANY | RRF_NOEXPAND, nullptr, old, &bytes) ==
        ERROR_SUCCESS) {
      old_ = old;
    }
    Set(value);
  }
  ~MachineDefault() {
    if (old_) {
      Set(*old_);
    } else {
      RegDeleteTreeW(HKEY_LOCAL_MACHINE, key_);
    }
  }
  MachineDefault(const MachineDefault&) = delete;
  MachineDefault& operator=(const MachineDefault&) = delete;

 private:
  void Set(const std::wstring& value) const {
    EXPECT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key_, nullptr, REG_SZ, value.c_str(),
                              static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))),
              ERROR_SUCCESS);
  }

  const wchar_t* key_;
  std::optional<std::wstring> old_;
};

/// The program itself stands in for the browser: started with a file, it shows that it got one. Only under Wine, where
/// the test may say which program opens pages.
class Help : public MainWindowTest {
 protected:
  void SetUp() override {
    if (GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr) {
      GTEST_SKIP() << "would open the user's browser";
    }
    extension_.emplace(L"Software\\Classes\\.html", L"htmlfile");
    command_.emplace(L"Software\\Classes\\htmlfile\\shell\\open\\command", L"\"" + ProgramPath() + L"\" \"%1\"");
  }

  /// Waits for the window of another process than `program`, and closes it.
  void ExpectPageOpened(const Program& program) const {
    Window page;
    ASSERT_TRUE(WaitUntil([&] {
      for (HWND each = GetTopWindow(nullptr); each != nullptr; each = GetWindow(each, GW_HWNDNEXT)) {
        DWORD owner = 0;
        GetWindowThreadProcessId(each, &owner);
        if (owner != program.Id() && IsWindowVisible(each) != 0 && Window(each).Text() == L"Folivant") {
          page = Window(each);
        }
      }
      return static_cast<bool>(page);
    }));
    EXPECT_EQ(page.TextOf(lblFormat), Message(144));
    page.Close();
    EXPECT_TRUE(page.WaitUntilGone());
  }

 private:
  std::optional<MachineDefault> extension_;
  std::optional<MachineDefault> command_;
};

TEST_F(Help, F1AndTheButtonOpenTheManual) {
  ASSERT_TRUE(Exists(ProgramFolder() + L"\\help\\english.html")) << "the build puts the manual beside the program";
  const Program program(Argument());
  const Window main = Main(program);
  main.Activate();
  PressKey(VK_F1);
  ExpectPageOpened(program);
  main.Press(cmdHelp);
  ExpectPageOpened(program);
  const Window filter = Open(program, main, cmdFilter, 200);
  filter.Activate();
  PressKey(VK_F1);
  ExpectPageOpened(program);
  filter.Answer(cmdCancel);
  Close(program, main);
}

}  // namespace
}  // namespace folivant::desktop
