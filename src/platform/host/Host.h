// What the host bodies share: the spelling of file names, and errors.
#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>

#include "platform/RuntimeError.h"
#include "platform/SystemReason.h"

namespace folivant::platform {

/// "/a/b" as "Z:\a\b".
std::wstring FromHostPath(std::string_view path);

/// Whether anybody may write the file; otherwise it is what Windows calls read-only.
bool IsWritable(const struct stat& status);

/// The error in `errno`; call it right after the failure.
RuntimeError SystemError(FailedAction action, const std::wstring& object);
SystemReason ReasonFor(int error);

/// False, with `errno`, when not everything could be written.
bool WriteAll(int descriptor, std::string_view bytes);

}  // namespace folivant::platform
