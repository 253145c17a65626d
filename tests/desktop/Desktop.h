// Drives the real program from outside, as assistive software would: windows by class and title, controls by id,
// messages, real keys and a real mouse. Runs on a Windows desktop and under Wine. One test at a time may use the
// desktop.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32/Owned.h"

namespace folivant::desktop {

/// Milliseconds that a window, a box or an exit may take on a busy machine before a test fails.
inline constexpr DWORD kPatience = 20'000;

/// Polls until `done` says so or the time is over; false then.
bool WaitUntil(const std::function<bool()>& done, DWORD milliseconds = kPatience);

/// A folder of the test's own, removed with everything in it.
class Scratch {
 public:
  Scratch();
  ~Scratch();
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  const std::wstring& Path() const { return path_; }
  std::wstring operator/(std::wstring_view name) const { return path_ + L'\\' + std::wstring(name); }
  /// Makes a file below the folder, and the folders on the way; returns its full path. `written` is UTC.
  std::wstring File(std::wstring_view name, std::string_view bytes = {}, std::optional<SYSTEMTIME> written = {}) const;
  std::wstring Dir(std::wstring_view name) const;
  /// A filter file with the given "key=value" lines.
  std::wstring FilterFile(std::wstring_view name, const std::vector<std::string>& lines) const;

 private:
  std::wstring path_;
};

/// The bytes of a file; fails the test when it cannot be read.
std::string ReadBytes(const std::wstring& path);
bool Exists(const std::wstring& path);

/// A window, or a control of one. Cheap to copy; owns nothing.
class Window {
 public:
  explicit Window(HWND handle = nullptr) : handle_(handle) {}
  HWND Handle() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr && IsWindow(handle_) != 0; }

  std::wstring Text() const;
  std::wstring ClassName() const;
  bool IsEnabled() const { return IsWindowEnabled(handle_) != 0; }
  bool IsShown() const { return IsWindowVisible(handle_) != 0; }
  RECT Rectangle() const;  ///< in screen coordinates

  /// A control of the window or of one of its pages.
  Window Control(int id) const;
  std::wstring TextOf(int id) const { return Control(id).Text(); }
  void SetText(int id, std::wstring_view text) const;
  bool IsChecked(int id) const;
  /// Presses a button without waiting for what it opens.
  void Press(int id) const;
  /// Presses a button and waits until its handler has returned. Not for buttons that open a modal window.
  void Click(int id) const;
  /// Chooses an item of a combo box, with the notification that a user's choice sends.
  void Choose(int id, int index) const;
  /// The items of a combo box, from above.
  std::vector<std::wstring> ItemsOf(int id) const;
  /// The day of a date picker as "yyyy/mm/dd".
  std::wstring DayOf(int id) const;
  /// Sets the day, with a time of that day that the picker does not show.
  void SetDay(int id, WORD year, WORD month, WORD day, WORD hour = 0) const;
  /// The text of the selected item in the tree of this window; empty while none is selected.
  std::wstring SelectedBranch() const;
  void Close() const { PostMessageW(handle_, WM_CLOSE, 0, 0); }
  /// Whether the window is gone within the time.
  bool WaitUntilGone(DWORD milliseconds = kPatience) const;
  /// Whether the window comes to be open and ready for input, and stays so for a while.
  bool StaysReady() const;
  /// Brings the window to the front and gives it the focus.
  void Activate() const;
  /// Brings the top-level window to the front and the mouse over this very control, `inside` it from its upper left
  /// corner or in its middle, and waits until all of that has stood still for a while. Returns where the mouse is;
  /// fails the test and returns nothing when that does not come about.
  std::optional<POINT> BringMouseOver(std::optional<POINT> inside = {}) const;
  /// A real click there, or with `times` 2 a double click.
  void ClickInside(std::optional<POINT> inside = {}, int times = 1) const;

  // A message box:
  std::wstring BoxText() const { return TextOf(0xFFFF); }
  bool HasButton(int id) const { return static_cast<bool>(Control(id)); }
  int DefaultButton() const;
  void Answer(int id) const;  ///< presses the button and waits until the box is gone

 private:
  HWND handle_;
};

/// Real input to whatever window is in front. `key` is a virtual-key code.
void PressKey(WORD key, bool alt = false, bool shift = false, bool control = false);
void TypeText(std::wstring_view text);
/// Moves the mouse, as a hand would; `flags` (MOUSEEVENTF_LEFTDOWN and the like) are what its buttons do there.
void MoveMouse(POINT screen, DWORD flags = 0);

/// The program, or another one, running. Ended when it is still running at the end of the test.
class Program {
 public:
  /// `arguments` is everything after the program's name; `folder` its current directory.
  explicit Program(const std::wstring& arguments, const std::wstring& folder = {}, const std::wstring& executable = {});
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  DWORD Id() const { return id_; }
  HANDLE Process() const { return process_.Get(); }
  bool IsRunning() const;
  /// The exit status; fails the test and returns nothing when the program is still running after the time.
  std::optional<DWORD> WaitForExit(DWORD milliseconds = kPatience) const;
  /// The visible top-level windows of the program, in front first.
  std::vector<Window> Windows() const;
  /// Waits for a visible window with this title (empty: any) that is ready for input; fails the test when none comes.
  /// `besides` is passed over: the owner, when a box of the same title is awaited.
  Window WaitForWindow(std::wstring_view title, Window besides = Window(), DWORD milliseconds = kPatience) const;
  /// Waits for a message box (or another dialog) that `owner` owns; an empty owner: one that nobody owns.
  Window WaitForBox(Window owner = Window(), DWORD milliseconds = kPatience) const;

 private:
  platform::OwnedKernel process_;
  DWORD id_ = 0;
};

/// Full path of the program under test.
std::wstring ProgramPath();
std::wstring ProgramFolder();
/// A text of a language file, read by the system's own means, "\n" as it stands there.
std::wstring Message(int number, const std::wstring& language = L"english.ini");
/// The names of all language files of the program.
std::vector<std::wstring> LanguageFiles();
/// The program's per-user store as the test sees it.
std::optional<std::wstring> ReadStore(const std::wstring& section, const std::wstring& key);
void WriteStore(const std::wstring& section, const std::wstring& key, const std::wstring& value);
/// The current user's Send To folder.
std::wstring SendToFolder();

/// Gives each test an empty store, and the user's own back afterwards.
class DesktopTest : public ::testing::Test {
 protected:
  DesktopTest();
  ~DesktopTest() override;
};

}  // namespace folivant::desktop
