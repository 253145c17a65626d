// Errors of the system, and paths as its calls want them.
#pragma once

#include <string>
#include <string_view>

#include "platform/RuntimeError.h"
#include "platform/win32/Win32.h"

namespace folivant::platform {

/// The system's words for an error number, without a line end.
std::wstring SystemText(DWORD code);
/// `code` is GetLastError, read on the line after the failure.
RuntimeError SystemError(FailedAction action, const std::wstring& object, DWORD code);

/// `path` with the prefix that lifts the 260-character limit where it is long enough to need it. Must be absolute then.
std::wstring LongSpelling(std::wstring_view path);

}  // namespace folivant::platform
