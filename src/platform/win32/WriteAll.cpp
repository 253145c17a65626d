#include "platform/win32/WriteAll.h"

#include <algorithm>

#include "platform/win32/SystemError.h"

namespace folivant::platform {

void WriteAll(HANDLE file, std::string_view bytes, const std::wstring& path) {
  while (!bytes.empty()) {
    const DWORD wanted = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 20));
    DWORD written = 0;
    const BOOL done = ::WriteFile(file, bytes.data(), wanted, &written, nullptr);
    if (done == FALSE || written == 0) {  // a device that takes nothing would hold the run for ever
      throw SystemError(FailedAction::WriteFile, path, done == FALSE ? GetLastError() : ERROR_WRITE_FAULT);
    }
    bytes.remove_prefix(written);
  }
}

}  // namespace folivant::platform
