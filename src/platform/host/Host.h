// What the native bodies share: UTF-8, the spelling of file names and messages here, and errors.
#pragma once

#include <string>
#include <string_view>

#include "platform/RuntimeError.h"

namespace folivant::platform {

std::string ToUtf8(std::wstring_view text);
/// Broken sequences become U+FFFD, as many as Wine shows in such names.
std::wstring FromUtf8(std::string_view bytes);
/// The same into a buffer of at least `bytes.size()` characters; returns how many were written.
std::size_t FromUtf8Into(std::string_view bytes, wchar_t* out);

/// "/a/b" as "Z:\a\b".
std::wstring FromNativePath(std::string_view path);

/// The error in `errno`; call it right after the failure.
RuntimeError SystemError(FailedAction action, const std::wstring& object);

/// False, with `errno`, when not everything could be written.
bool WriteAll(int descriptor, std::string_view bytes);

}  // namespace folivant::platform
