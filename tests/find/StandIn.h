// Starts and ends the stand-in for a Find window, for tests that read real windows of another process.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/win32/Win32.h"

namespace folivant::tests {

/// One running FindStandIn, ended with the object. FindStandIn.exe lies beside the test program.
class StandIn {
 public:
  /// `rows` are UTF-8 lines with a TAB between columns; `misbehaviour` as FindStandIn takes it.
  StandIn(std::wstring title, const std::vector<std::string>& rows, const std::wstring& misbehaviour = {});
  ~StandIn();
  StandIn(const StandIn&) = delete;
  StandIn& operator=(const StandIn&) = delete;

  HWND Window() const { return window_; }

 private:
  std::filesystem::path rowsFile_;
  HANDLE process_ = nullptr;
  HWND window_ = nullptr;
};

}  // namespace folivant::tests
