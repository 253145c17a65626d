#include "desktop/Desktop.h"

#include <commctrl.h>
#include <shlobj.h>

#include <algorithm>
#include <cwchar>
#include <filesystem>

namespace folivant::desktop {
namespace {

constexpr DWORD kPollEvery = 15;
constexpr DWORD kStandsStill = 300;  // milliseconds without a change before a window counts as at rest
constexpr DWORD kStaysReady = 1000;  // and without being closed or disabled before it counts as staying open
const wchar_t* const kStore = L"Software\\Folivant 3.0";
const wchar_t* const kSavedStore = L"Software\\Folivant 3.0 (set aside by a test)";

void Send(const std::vector<INPUT>& inputs) {
  SendInput(static_cast<UINT>(inputs.size()), const_cast<INPUT*>(inputs.data()), sizeof(INPUT));
}

INPUT Key(WORD key, DWORD flags = 0) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  return input;
}

// Each event names its place, so that nothing that moves the pointer in between can take a click elsewhere.
INPUT Mouse(POINT screen, DWORD flags) {
  const auto share = [](LONG at, int size) { return static_cast<LONG>((at * LONGLONG{65'536} + size - 1) / size); };
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = share(screen.x, GetSystemMetrics(SM_CXSCREEN));
  input.mi.dy = share(screen.y, GetSystemMetrics(SM_CYSCREEN));
  input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | flags;
  return input;
}

bool IsMouseAt(POINT screen) {
  POINT now{};
  return GetCursorPos(&now) != 0 && now.x == screen.x && now.y == screen.y;
}

void CopyStore(const wchar_t* from, const wchar_t* to) {
  RegDeleteTreeW(HKEY_CURRENT_USER, to);
  HKEY source = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, from, 0, KEY_READ, &source) != ERROR_SUCCESS) {
    return;
  }
  const platform::OwnedKey ownedSource(source);
  HKEY target = nullptr;
  RegCreateKeyExW(HKEY_CURRENT_USER, to, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &target, nullptr);
  const platform::OwnedKey ownedTarget(target);
  RegCopyTreeW(source, nullptr, target);
}

}  // namespace

bool WaitUntil(const std::function<bool()>& done, DWORD milliseconds) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  while (!done()) {
    if (GetTickCount64() > end) {
      return false;
    }
    Sleep(kPollEvery);
  }
  return true;
}

Scratch::Scratch() {
  static int number = 0;
  wchar_t temporary[MAX_PATH + 1];
  GetTempPathW(MAX_PATH, temporary);
  wchar_t longer[MAX_PATH + 1];
  GetLongPathNameW(temporary, longer, MAX_PATH);
  path_ =
      std::wstring(longer) + L"Folivant" + std::to_wstring(GetCurrentProcessId()) + L"x" + std::to_wstring(++number);
  std::filesystem::create_directories(path_);
}

/// A viewer or a command that the test has started may be about to end, and holds its folder until then.
Scratch::~Scratch() {
  WaitUntil([this] {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
    return !Exists(path_);
  });
}

std::wstring Scratch::File(std::wstring_view name, std::string_view bytes, std::optional<SYSTEMTIME> written) const {
  const std::wstring path = *this / name;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  const platform::OwnedFile file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
  EXPECT_TRUE(file.IsOpen());
  DWORD count = 0;
  WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
  if (written) {
    FILETIME time;
    SystemTimeToFileTime(&*written, &time);
    SetFileTime(file.Get(), nullptr, nullptr, &time);
  }
  return path;
}

std::wstring Scratch::Dir(std::wstring_view name) const {
  const std::wstring path = *this / name;
  std::filesystem::create_directories(path);
  return path;
}

std::wstring Scratch::FilterFile(std::wstring_view name, const std::vector<std::string>& lines) const {
  std::string text = "[Folivant 3.5]\r\n";
  for (const std::string& line : lines) {
    text += line + "\r\n";
  }
  return File(name, text);
}

std::string ReadBytes(const std::wstring& path) {
  // Deleting is shared too: whoever has just renamed the file may still have it open for that.
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const platform::OwnedFile file(CreateFileW(path.c_str(), GENERIC_READ, kShared, nullptr, OPEN_EXISTING, 0, nullptr));
  EXPECT_TRUE(file.IsOpen());
  LARGE_INTEGER size{};
  GetFileSizeEx(file.Get(), &size);
  std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
  DWORD count = 0;
  ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
  bytes.resize(count);
  return bytes;
}

bool Exists(const std::wstring& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::wstring Window::Text() const {
  std::wstring text(static_cast<std::size_t>(SendMessageW(handle_, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
  text.resize(
      static_cast<std::size_t>(SendMessageW(handle_, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

std::wstring Window::ClassName() const {
  wchar_t name[256];
  return {name, static_cast<std::size_t>(GetClassNameW(handle_, name, 256))};
}

RECT Window::Rectangle() const {
  RECT rectangle{};
  GetWindowRect(handle_, &rectangle);
  return rectangle;
}

Window Window::Control(int id) const {
  if (const HWND own = GetDlgItem(handle_, id); own != nullptr) {
    return Window(own);
  }
  for (HWND page = GetWindow(handle_, GW_CHILD); page != nullptr; page = GetWindow(page, GW_HWNDNEXT)) {
    const bool isPage = Window(page).ClassName() == L"#32770";
    if (const HWND onPage = isPage ? GetDlgItem(page, id) : nullptr; onPage != nullptr) {
      return Window(onPage);
    }
  }
  return Window();
}

void Window::SetText(int id, std::wstring_view text) const {
  SendMessageW(Control(id).Handle(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(std::wstring(text).c_str()));
}

bool Window::IsChecked(int id) const {
  return SendMessageW(Control(id).Handle(), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void Window::Press(int id) const {
  PostMessageW(Control(id).Handle(), BM_CLICK, 0, 0);
}

void Window::Click(int id) const {
  SendMessageW(Control(id).Handle(), BM_CLICK, 0, 0);
}

void Window::Choose(int id, int index) const {
  SendMessageW(Control(id).Handle(), CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  for (const int notification : {CBN_SELENDOK, CBN_SELCHANGE}) {  // common dialogs listen to the first alone
    SendMessageW(handle_, WM_COMMAND, MAKEWPARAM(id, notification), reinterpret_cast<LPARAM>(Control(id).Handle()));
  }
}

std::vector<std::wstring> Window::ItemsOf(int id) const {
  const HWND list = Control(id).Handle();
  std::vector<std::wstring> items(static_cast<std::size_t>(SendMessageW(list, CB_GETCOUNT, 0, 0)));
  for (std::size_t row = 0; row < items.size(); ++row) {
    items[row].resize(static_cast<std::size_t>(SendMessageW(list, CB_GETLBTEXTLEN, row, 0)) + 1);
    const LRESULT length = SendMessageW(list, CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(items[row].data()));
    items[row].resize(static_cast<std::size_t>(length));
  }
  return items;
}

namespace {

/// A value in the memory of a window's process, for messages that the system does not carry over.
template <typename Value>
class RemoteValue {
 public:
  explicit RemoteValue(HWND window) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    process_ =
        platform::OwnedKernel(OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, owner));
    there_ = VirtualAllocEx(process_.Get(), nullptr, sizeof(Value), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    EXPECT_NE(there_, nullptr);
  }
  ~RemoteValue() { VirtualFreeEx(process_.Get(), there_, 0, MEM_RELEASE); }
  RemoteValue(const RemoteValue&) = delete;
  RemoteValue& operator=(const RemoteValue&) = delete;

  /// Its address in the other process.
  void* There() const { return there_; }
  Value Read() const {
    Value value{};
    EXPECT_NE(ReadProcessMemory(process_.Get(), there_, &value, sizeof value, nullptr), 0);
    return value;
  }
  void Write(const Value& value) const {
    EXPECT_NE(WriteProcessMemory(process_.Get(), there_, &value, sizeof value, nullptr), 0);
  }

 private:
  platform::OwnedKernel process_;
  void* there_ = nullptr;
};

SYSTEMTIME ReadDay(HWND picker) {
  const RemoteValue<SYSTEMTIME> day(picker);
  SendMessageW(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(day.There()));
  return day.Read();
}

}  // namespace

std::wstring Window::DayOf(int id) const {
  const SYSTEMTIME day = ReadDay(Control(id).Handle());
  wchar_t text[20];
  swprintf(text, 20, L"%04u/%02u/%02u", day.wYear, day.wMonth, day.wDay);
  return text;
}

void Window::SetDay(int id, WORD year, WORD month, WORD day, WORD hour) const {
  const HWND picker = Control(id).Handle();
  SYSTEMTIME time{};
  time.wYear = year;
  time.wMonth = month;
  time.wDay = day;
  time.wHour = hour;
  const RemoteValue<SYSTEMTIME> remote(picker);
  remote.Write(time);
  SendMessageW(picker, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(remote.There()));
}

std::wstring Window::SelectedBranch() const {
  HWND tree = nullptr;
  EnumChildWindows(
      handle_,
      [](HWND child, LPARAM found) {
        const bool isTree = Window(child).ClassName() == WC_TREEVIEWW;
        *reinterpret_cast<HWND*>(found) = isTree ? child : nullptr;
        return isTree ? FALSE : TRUE;
      },
      reinterpret_cast<LPARAM>(&tree));
  const LRESULT selected = SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CARET, 0);
  if (selected == 0) {
    return {};
  }
  struct Branch {
    TVITEMW item;
    wchar_t text[MAX_PATH];
  };
  const RemoteValue<Branch> remote(tree);
  Branch branch{};
  branch.item.mask = TVIF_TEXT;
  branch.item.hItem = reinterpret_cast<HTREEITEM>(selected);
  branch.item.pszText = static_cast<Branch*>(remote.There())->text;
  branch.item.cchTextMax = MAX_PATH;
  remote.Write(branch);
  SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(remote.There()));
  return remote.Read().text;
}

bool Window::WaitUntilGone(DWORD milliseconds) const {
  return WaitUntil([&] { return IsWindow(handle_) == 0; }, milliseconds);
}

bool Window::StaysReady() const {
  ULONGLONG busy = GetTickCount64();
  return WaitUntil([&] {
    if (!IsShown() || !IsEnabled()) {
      busy = GetTickCount64();
    }
    return GetTickCount64() - busy >= kStaysReady;
  });
}

void Window::Activate() const {
  SetForegroundWindow(handle_);
  WaitUntil([&] { return GetForegroundWindow() == handle_; }, 2'000);
}

/// Whether what lies at a point hands its clicks to `control`: a group box stands above the controls inside it and lets
/// the mouse through, but another process is told of the box.
static bool Hits(HWND found, HWND control) {
  const bool groupBox =
      Window(found).ClassName() == L"Button" && (GetWindowLongPtrW(found, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
  return found == control || (groupBox && GetParent(found) == GetParent(control));
}

// A window manager may still move, raise or activate what a program has just shown, and the system may move the pointer
// once more when the windows below it have changed.
std::optional<POINT> Window::BringMouseOver(std::optional<POINT> inside) const {
  const HWND top = GetAncestor(handle_, GA_ROOT);
  POINT target{};
  const auto stands = [&] {
    const RECT place = Rectangle();
    const POINT now = inside ? POINT{place.left + inside->x, place.top + inside->y}
                             : POINT{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    const bool moved = now.x != target.x || now.y != target.y;
    target = now;
    return !moved && GetForegroundWindow() == top && IsMouseAt(target) && Hits(WindowFromPoint(target), handle_);
  };
  ULONGLONG restless = GetTickCount64();
  const bool ready = WaitUntil([&] {
    if (!stands()) {
      restless = GetTickCount64();
      SetForegroundWindow(top);
      MoveMouse(target);
    }
    return GetTickCount64() - restless >= kStandsStill;
  });
  EXPECT_TRUE(ready) << "the mouse does not come to rest over the control";
  return ready ? std::optional(target) : std::nullopt;
}

void Window::ClickInside(std::optional<POINT> inside, int times) const {
  const std::optional<POINT> target = BringMouseOver(inside);
  std::vector<INPUT> inputs;
  for (int click = 0; target && click < times; ++click) {
    inputs.push_back(Mouse(*target, MOUSEEVENTF_LEFTDOWN));
    inputs.push_back(Mouse(*target, MOUSEEVENTF_LEFTUP));
  }
  Send(inputs);
}

int Window::DefaultButton() const {
  for (HWND child = GetWindow(handle_, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    const bool isButton = Window(child).ClassName() == L"Button";
    if (isButton && (GetWindowLongPtrW(child, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON) {
      return GetDlgCtrlID(child);
    }
  }
  return 0;
}

void Window::Answer(int id) const {
  Press(id);
  EXPECT_TRUE(WaitUntilGone());
}

void PressKey(WORD key, bool alt, bool shift, bool control) {
  std::vector<INPUT> inputs;
  const auto held = [&](bool wanted, WORD modifier, DWORD flags) {
    if (wanted) {
      inputs.push_back(Key(modifier, flags));
    }
  };
  held(control, VK_CONTROL, 0);
  held(shift, VK_SHIFT, 0);
  held(alt, VK_MENU, 0);
  inputs.push_back(Key(key));
  inputs.push_back(Key(key, KEYEVENTF_KEYUP));
  held(alt, VK_MENU, KEYEVENTF_KEYUP);
  held(shift, VK_SHIFT, KEYEVENTF_KEYUP);
  held(control, VK_CONTROL, KEYEVENTF_KEYUP);
  Send(inputs);
}

void TypeText(std::wstring_view text) {
  for (const wchar_t c : text) {
    INPUT down{};
    down.type = INPUT_KEYBOARD;
    down.ki.wScan = c;
    down.ki.dwFlags = KEYEVENTF_UNICODE;
    INPUT up = down;
    up.ki.dwFlags |= KEYEVENTF_KEYUP;
    Send({down, up});
  }
}

void MoveMouse(POINT screen, DWORD flags) {
  Send({Mouse(screen, flags)});
}

Program::Program(const std::wstring& arguments, const std::wstring& folder, const std::wstring& executable) {
  std::wstring line = L'"' + (executable.empty() ? ProgramPath() : executable) + L'"';
  if (!arguments.empty()) {
    line += L' ' + arguments;
  }
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started{};
  const BOOL done = CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                   folder.empty() ? nullptr : folder.c_str(), &startup, &started);
  EXPECT_NE(done, 0) << "the program does not start";
  if (done != 0) {
    CloseHandle(started.hThread);
    process_ = platform::OwnedKernel(started.hProcess);
    id_ = started.dwProcessId;
  }
}

Program::~Program() {
  if (IsRunning()) {
    TerminateProcess(process_.Get(), 99);
    WaitForSingleObject(process_.Get(), kPatience);
  }
}

bool Program::IsRunning() const {
  return process_.IsOpen() && WaitForSingleObject(process_.Get(), 0) == WAIT_TIMEOUT;
}

std::optional<DWORD> Program::WaitForExit(DWORD milliseconds) const {
  if (WaitForSingleObject(process_.Get(), milliseconds) != WAIT_OBJECT_0) {
    ADD_FAILURE() << "the program is still running";
    return std::nullopt;
  }
  DWORD status = 0;
  GetExitCodeProcess(process_.Get(), &status);
  return status;
}

std::vector<Window> Program::Windows() const {
  std::vector<Window> found;
  for (HWND window = GetTopWindow(nullptr); window != nullptr; window = GetWindow(window, GW_HWNDNEXT)) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == id_ && IsWindowVisible(window) != 0) {
      found.emplace_back(window);
    }
  }
  return found;
}

Window Program::WaitForWindow(std::wstring_view title, Window besides, DWORD milliseconds) const {
  Window found;
  const bool came = WaitUntil(
      [&] {
        for (const Window& window : Windows()) {
          if (window.Handle() != besides.Handle() && window.IsEnabled() && (title.empty() || window.Text() == title)) {
            found = window;
            return true;
          }
        }
        return !IsRunning();
      },
      milliseconds);
  EXPECT_TRUE(came && found) << "no such window";
  return found;
}

Window Program::WaitForBox(Window owner, DWORD milliseconds) const {
  Window found;
  const bool came = WaitUntil(
      [&] {
        for (const Window& window : Windows()) {
          if (window.ClassName() == L"#32770" && GetWindow(window.Handle(), GW_OWNER) == owner.Handle() &&
              window.Handle() != owner.Handle()) {
            found = window;
            return true;
          }
        }
        return !IsRunning();
      },
      milliseconds);
  EXPECT_TRUE(came && found) << "no such box";
  return found;
}

std::wstring ProgramPath() {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  return std::filesystem::path(path).parent_path() / L"Folivant.exe";
}

std::wstring ProgramFolder() {
  return std::filesystem::path(ProgramPath()).parent_path();
}

std::wstring Message(int number, const std::wstring& language) {
  const std::wstring file = ProgramFolder() + L'\\' + language;
  wchar_t text[300];
  GetPrivateProfileStringW(L"Messages", std::to_wstring(number).c_str(), L"", text, 300, file.c_str());
  return text;
}

std::vector<std::wstring> LanguageFiles() {
  std::vector<std::wstring> names;
  for (const auto& entry : std::filesystem::directory_iterator(ProgramFolder())) {
    if (entry.path().extension() == L".ini") {
      names.push_back(entry.path().filename());
    }
  }
  return names;
}

std::optional<std::wstring> ReadStore(const std::wstring& section, const std::wstring& key) {
  wchar_t value[1024];
  DWORD bytes = sizeof value;
  const std::wstring path = std::wstring(kStore) + L'\\' + section;
  if (RegGetValueW(HKEY_CURRENT_USER, path.c_str(), key.c_str(), RRF_RT_REG_SZ, nullptr, value, &bytes) !=
      ERROR_SUCCESS) {
    return std::nullopt;
  }
  return value;
}

void WriteStore(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
  const std::wstring path = std::wstring(kStore) + L'\\' + section;
  RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), key.c_str(), REG_SZ, value.c_str(),
                  static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

std::wstring SendToFolder() {
  wchar_t path[MAX_PATH] = L"";
  SHGetFolderPathW(nullptr, CSIDL_SENDTO, nullptr, SHGFP_TYPE_CURRENT, path);
  return path;
}

DesktopTest::DesktopTest() {
  SetProcessDPIAware();  // otherwise the system would convert what it says of the program's windows
  CopyStore(kStore, kSavedStore);
  RegDeleteTreeW(HKEY_CURRENT_USER, kStore);
}

DesktopTest::~DesktopTest() {
  CopyStore(kSavedStore, kStore);
  RegDeleteTreeW(HKEY_CURRENT_USER, kSavedStore);
}

}  // namespace folivant::desktop
