#include "find/StandIn.h"

#include <array>
#include <fstream>
#include <stdexcept>

namespace folivant::tests {
namespace {

constexpr int kPatience = 300;  // times 100 ms

std::filesystem::path OwnFolder() {
  std::array<wchar_t, 1024> path{};
  GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  return std::filesystem::path(path.data()).parent_path();
}

struct Wanted {
  DWORD Process;
  HWND Window;
};

BOOL CALLBACK TakeWindowOfProcess(HWND window, LPARAM parameter) {
  auto* const wanted = reinterpret_cast<Wanted*>(parameter);
  DWORD owner = 0;
  GetWindowThreadProcessId(window, &owner);
  std::array<wchar_t, 16> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  if (owner != wanted->Process || !IsWindowVisible(window) || std::wstring(name.data()) != L"#32770") {
    return TRUE;
  }
  wanted->Window = window;
  return FALSE;
}

}  // namespace

StandIn::StandIn(std::wstring title, const std::vector<std::string>& rows, const std::wstring& misbehaviour) {
  static int serial = 0;
  rowsFile_ = std::filesystem::temp_directory_path() /
              ("rows-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++serial) + ".txt");
  std::ofstream file(rowsFile_, std::ios::binary);
  for (const std::string& row : rows) {
    file << row << '\n';
  }
  file.close();
  std::wstring line = L"\"" + (OwnFolder() / L"FindStandIn.exe").wstring() + L"\" \"" + title + L"\" \"" +
                      rowsFile_.wstring() + L"\" " + misbehaviour;
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION started{};
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &started)) {
    throw std::runtime_error("FindStandIn does not start");
  }
  CloseHandle(started.hThread);
  process_ = started.hProcess;
  Wanted wanted{started.dwProcessId, nullptr};
  for (int round = 0; wanted.Window == nullptr && round < kPatience; ++round) {
    Sleep(100);
    EnumWindows(TakeWindowOfProcess, reinterpret_cast<LPARAM>(&wanted));
  }
  window_ = wanted.Window;
  if (window_ == nullptr) {
    throw std::runtime_error("FindStandIn shows no window");
  }
}

StandIn::~StandIn() {
  // By its handle, which this process has had from the start: a locked or hanging one ends as well.
  TerminateProcess(process_, 0);
  WaitForSingleObject(process_, 5000);
  CloseHandle(process_);
  std::error_code ignored;
  std::filesystem::remove(rowsFile_, ignored);
}

}  // namespace folivant::tests
