#include "platform/LogFile.h"

#include <fcntl.h>

#include "platform/Files.h"
#include "platform/Utf8.h"
#include "platform/host/Host.h"
#include "platform/host/HostPath.h"

namespace folivant::platform {

struct LogFile::State {
  Descriptor File;
  std::wstring Path;
};

LogFile::LogFile(const std::wstring& path, LogStart start) : state_(std::make_unique<State>()) {
  state_->Path = AbsolutePath(path);
  const HostPath place = Locate(state_->Path);
  constexpr mode_t kForAll = 0666;
  state_->File =
      Descriptor(openat(place.Directory(), place.Name(),
                        O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | (start == LogStart::Anew ? O_TRUNC : 0), kForAll));
  if (!state_->File) {
    throw SystemError(FailedAction::CreateFile, state_->Path);
  }
}

LogFile::~LogFile() = default;

void LogFile::WriteLine(std::wstring_view line) {
  std::string bytes;
  AppendUtf8(line, bytes);
  if (!WriteAll(state_->File.Get(), bytes + "\r\n")) {
    throw SystemError(FailedAction::WriteFile, state_->Path);
  }
}

}  // namespace folivant::platform
