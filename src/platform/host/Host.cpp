#include "platform/host/Host.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "platform/Utf8.h"

namespace folivant::platform {

std::wstring FromHostPath(std::string_view path) {
  std::wstring text = L"Z:" + FromUtf8(path);
  std::replace(text.begin(), text.end(), L'/', L'\\');
  return text;
}

bool IsWritable(const struct stat& status) {
  return (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
}

RuntimeError SystemError(FailedAction action, const std::wstring& object) {
  const int code = errno;
  return {action, object, FromUtf8(std::generic_category().message(code)), static_cast<std::uint32_t>(code)};
}

SystemReason ReasonFor(int error) {
  return {static_cast<std::uint32_t>(error), FromUtf8(std::generic_category().message(error))};
}

bool WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) {
      return false;
    }
    bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace folivant::platform
