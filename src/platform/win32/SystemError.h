// System error numbers as errors that a user can read.
#pragma once

#include <string>

#include "platform/RuntimeError.h"
#include "platform/win32/Win32.h"

namespace folivant::platform {

/// The system's words for an error number, without a line end.
std::wstring SystemText(DWORD code);
/// `code` is GetLastError, read on the line after the failure.
RuntimeError SystemError(FailedAction action, const std::wstring& object, DWORD code);

}  // namespace folivant::platform
