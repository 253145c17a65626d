// Writing to an open file, however little it takes at a time.
#pragma once

#include <string>
#include <string_view>

#include "platform/win32/Win32.h"

namespace folivant::platform {

/// Throws RuntimeError (WriteFile) that names `path`.
void WriteAll(HANDLE file, std::string_view bytes, const std::wstring& path);

}  // namespace folivant::platform
