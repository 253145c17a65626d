// What help opens, without a browser or a help viewer.
#pragma once

#include <optional>
#include <string>

#include "desktop/Desktop.h"

namespace folivant::desktop {

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

/// Whether a test may say what opens pages; elsewhere it would open the user's browser.
inline bool MayReplaceTheBrowser() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

/// A command that notes the page in `folder` stands in for the browser.
class BrowserStandIn {
 public:
  explicit BrowserStandIn(const std::wstring& folder)
      : note_(folder + L"\\opened"),
        extension_(L"Software\\Classes\\.html", L"htmlfile"),
        // Renamed when it is complete, so that the test never reads half a line.
        command_(L"Software\\Classes\\htmlfile\\shell\\open\\command",
                 L"cmd.exe /c echo %1>\"" + folder + L"\\opening\"&ren \"" + folder + L"\\opening\" opened") {}

  /// Waits until a page is opened: that of the language.
  void ExpectOpened(const std::string& page) const {
    ASSERT_TRUE(WaitUntil([&] { return Exists(note_); }));
    EXPECT_NE(ReadBytes(note_).find("\\help\\" + page), std::string::npos) << ReadBytes(note_);
    EXPECT_NE(DeleteFileW(note_.c_str()), 0);
  }
  bool HasOpened() const { return Exists(note_); }

 private:
  std::wstring note_;
  MachineDefault extension_;
  MachineDefault command_;
};

}  // namespace folivant::desktop
