// What the native bodies share: paths between their Windows and their native spelling, and errors.
#pragma once

#include <string>
#include <string_view>

#include "platform/RuntimeError.h"

namespace folivant::platform {

std::string ToUtf8(std::wstring_view text);
/// Invalid bytes become U+FFFD.
std::wstring FromUtf8(std::string_view bytes);
/// The same into a buffer of at least `bytes.size()` characters; returns how many were written.
std::size_t FromUtf8Into(std::string_view bytes, wchar_t* out);

/// "Z:\a\b" as "/a/b". A name that does not exist as it is spelled is looked for in other letter case, as Windows would
/// find it; when nothing fits the path comes back as spelled.
std::string ToNativePath(std::wstring_view path);
std::wstring FromNativePath(std::string_view path);

/// The error in `errno`; call it right after the failure.
RuntimeError SystemError(FailedAction action, const std::wstring& object);

}  // namespace folivant::platform
