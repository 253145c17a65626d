// Other programs' windows, their memory, and the mappings that Folivant shares by name.
#include "platform/FindWindows.h"

#include <array>

#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "platform/win32/Owned.h"
#include "platform/win32/SystemError.h"

namespace folivant::platform {
namespace {

constexpr UINT kPatience = 10'000;  // milliseconds
// Windows move while the list is walked; a chain this long has come back to its own beginning.
constexpr std::size_t kMostWindows = 65'536;

HWND Raw(WindowHandle window) {
  return reinterpret_cast<HWND>(static_cast<LONG_PTR>(window));  // sign-extended, as the system does
}

WindowHandle Handle(HWND window) {
  return static_cast<WindowHandle>(reinterpret_cast<LONG_PTR>(window));
}

std::vector<WindowHandle> Siblings(HWND first) {
  std::vector<WindowHandle> windows;
  for (HWND window = first; window != nullptr && windows.size() < kMostWindows;
       window = GetWindow(window, GW_HWNDNEXT)) {
    windows.push_back(Handle(window));
  }
  return windows;
}

}  // namespace

std::vector<WindowHandle> TopLevelWindows() {
  const HWND any = GetTopWindow(nullptr);
  return any == nullptr ? std::vector<WindowHandle>{} : Siblings(GetWindow(any, GW_HWNDFIRST));
}

std::vector<WindowHandle> ChildWindows(WindowHandle parent) {
  return Siblings(GetWindow(Raw(parent), GW_CHILD));
}

std::wstring WindowClass(WindowHandle window) {
  std::array<wchar_t, 255> name;
  const int length = GetClassNameW(Raw(window), name.data(), static_cast<int>(name.size()));
  return {name.data(), static_cast<std::size_t>(length)};
}

std::uint32_t WindowStyle(WindowHandle window) {
  return static_cast<std::uint32_t>(GetWindowLongW(Raw(window), GWL_STYLE));
}

std::wstring WindowTitle(WindowHandle window) {
  std::array<char, 255> title;
  const int length = GetWindowTextA(Raw(window), title.data(), static_cast<int>(title.size()));
  return FromAnsi({title.data(), static_cast<std::size_t>(length)});
}

struct ForeignWindow::State {
  HWND Window;
  std::wstring Title;
  OwnedKernel Process;
  RecordLayout Layout = RecordLayout::Bits64;
  OwnedForeignMemory Block = OwnedForeignMemory();  // after the process, which it needs at its end

  char* Address() const { return static_cast<char*>(Block.Get().Address); }

  [[noreturn]] void Fail(DWORD code) const { throw SystemError(FailedAction::ReadWindow, Title, code); }

  void Open() {
    DWORD owner = 0;
    if (GetWindowThreadProcessId(Window, &owner) == 0) {
      Fail(GetLastError());
    }
    constexpr DWORD kRights =
        PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE | PROCESS_QUERY_LIMITED_INFORMATION;
    Process = OwnedKernel(OpenProcess(kRights, FALSE, owner));
    if (!Process.IsOpen()) {
      Fail(GetLastError());
    }
    BOOL is32Bit = FALSE;
    if (!IsWow64Process(Process.Get(), &is32Bit)) {
      Fail(GetLastError());
    }
    Layout = is32Bit ? RecordLayout::Bits32 : RecordLayout::Bits64;
  }
};

ForeignWindow::ForeignWindow(WindowHandle window, std::wstring title)
    : state_(std::make_unique<State>(State{Raw(window), std::move(title), OwnedKernel()})) {
  state_->Open();
}

ForeignWindow::~ForeignWindow() = default;

RecordLayout ForeignWindow::Layout() const {
  return state_->Layout;
}

std::uint64_t ForeignWindow::Reserve(std::size_t size) {
  // In a 32-bit program the system takes an address below four gigabytes by itself.
  void* const block = VirtualAllocEx(state_->Process.Get(), nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
  if (block == nullptr) {
    state_->Fail(GetLastError());
  }
  state_->Block = OwnedForeignMemory({state_->Process.Get(), block});
  return reinterpret_cast<std::uint64_t>(block);
}

void ForeignWindow::Write(std::size_t offset, std::span<const std::byte> bytes) {
  if (!WriteProcessMemory(state_->Process.Get(), state_->Address() + offset, bytes.data(), bytes.size(), nullptr)) {
    state_->Fail(GetLastError());
  }
}

void ForeignWindow::Read(std::size_t offset, std::span<std::byte> bytes) {
  if (!ReadProcessMemory(state_->Process.Get(), state_->Address() + offset, bytes.data(), bytes.size(), nullptr)) {
    state_->Fail(GetLastError());
  }
}

std::int64_t ForeignWindow::Send(std::uint32_t message, std::uint64_t wParam, std::uint64_t lParam) {
  DWORD_PTR answer = 0;
  SetLastError(ERROR_SUCCESS);
  if (SendMessageTimeoutA(state_->Window, message, static_cast<WPARAM>(wParam), static_cast<LPARAM>(lParam),
                          SMTO_ABORTIFHUNG, kPatience, &answer) == 0) {
    const DWORD code = GetLastError();
    state_->Fail(code == ERROR_SUCCESS ? ERROR_TIMEOUT : code);  // a time-out leaves no number on some systems
  }
  return static_cast<std::int64_t>(answer);
}

struct SharedMapping::State {
  OwnedFile File;
  OwnedKernel Mapping;
  std::byte* View = nullptr;
  std::size_t Size = 0;
  std::vector<std::byte> Private;  // stands in where the system refused

  void MapBelowFourGigabytes() {
    for (std::uintptr_t address = 0x2000'0000; View == nullptr && address < 0x7000'0000; address += 0x0100'0000) {
      View = static_cast<std::byte*>(
          MapViewOfFileEx(Mapping.Get(), FILE_MAP_WRITE, 0, 0, 0, reinterpret_cast<void*>(address)));
    }
  }
};

SharedMapping::SharedMapping(const std::wstring& name, const std::wstring& file, std::size_t size)
    : state_(std::make_unique<State>()) {
  state_->Size = size;
  state_->File = OwnedFile(
      CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (state_->File.IsOpen()) {
    state_->Mapping = OwnedKernel(
        CreateFileMappingW(state_->File.Get(), nullptr, PAGE_READWRITE, 0, static_cast<DWORD>(size), name.c_str()));
  }
  if (state_->Mapping.IsOpen()) {
    state_->MapBelowFourGigabytes();
    if (state_->View == nullptr) {
      state_->View = static_cast<std::byte*>(MapViewOfFile(state_->Mapping.Get(), FILE_MAP_WRITE, 0, 0, 0));
    }
  }
  // Another program's mapping of that name may be smaller.
  MEMORY_BASIC_INFORMATION region{};
  if (state_->View != nullptr &&
      (VirtualQuery(state_->View, &region, sizeof region) == 0 || region.RegionSize < size)) {
    state_->View = nullptr;
  }
  if (state_->View == nullptr) {
    state_->Private.resize(size);
  }
}

SharedMapping::~SharedMapping() {
  if (state_->View != nullptr) {
    FlushViewOfFile(state_->View, state_->Size);
  }
}

std::span<std::byte> SharedMapping::Bytes() const {
  return state_->View != nullptr ? std::span(state_->View, state_->Size) : std::span(state_->Private);
}

std::uint64_t SharedMapping::Address() const {
  return reinterpret_cast<std::uint64_t>(Bytes().data());
}

}  // namespace folivant::platform
