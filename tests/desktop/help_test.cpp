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

/// A command that notes the page stands in for the browser. Only under Wine, where the test may say what opens pages.
class Help : public MainWindowTest {
 protected:
  void SetUp() override {
    if (GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr) {
      GTEST_SKIP() << "would open the user's browser";
    }
    extension_.emplace(L"Software\\Classes\\.html", L"htmlfile");
    // Renamed when it is complete, so that the test never reads half a line.
    command_.emplace(
        L"Software\\Classes\\htmlfile\\shell\\open\\command",
        L"cmd.exe /c echo %1>\"" + scratch / L"opening" + L"\"&ren \"" + scratch / L"opening" + L"\" opened");
  }

  /// Waits until a page is opened: that of the language.
  void ExpectOpened(const std::string& page) const {
    const std::wstring note = scratch / L"opened";
    ASSERT_TRUE(WaitUntil([&] { return Exists(note); }));
    EXPECT_NE(ReadBytes(note).find("\\help\\" + page), std::string::npos) << ReadBytes(note);
    EXPECT_NE(DeleteFileW(note.c_str()), 0);
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
  ExpectOpened("english.html");
  main.Press(cmdHelp);
  ExpectOpened("english.html");
  const Window filter = Open(program, main, cmdFilter, 200);
  filter.Activate();
  PressKey(VK_F1);
  ExpectOpened("english.html");
  filter.Answer(cmdCancel);
  Close(program, main);
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
