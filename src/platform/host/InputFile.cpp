#include "platform/InputFile.h"

#include <cerrno>

#include "platform/Files.h"
#include "platform/host/Host.h"
#include "platform/host/HostPath.h"

namespace folivant::platform {

struct InputFile::State {
  Descriptor File;
  std::wstring Path;
};

InputFile::InputFile(const std::wstring& path) : state_(std::make_unique<State>()) {
  state_->Path = AbsolutePath(path);
  const HostPath place = Locate(state_->Path);
  state_->File = Descriptor(openat(place.Directory(), place.Name(), O_RDONLY | O_CLOEXEC));
  if (!state_->File) {
    throw SystemError(FailedAction::ReadFile, state_->Path);
  }
}

InputFile::~InputFile() = default;

const std::wstring& InputFile::Path() const {
  return state_->Path;
}

std::size_t InputFile::Read(std::span<char> room) {
  ssize_t got = 0;
  do {
    got = read(state_->File.Get(), room.data(), room.size());
  } while (got < 0 && errno == EINTR);
  if (got < 0) {
    throw SystemError(FailedAction::ReadFile, state_->Path);
  }
  return static_cast<std::size_t>(got);
}

void InputFile::Rewind() {
  if (lseek(state_->File.Get(), 0, SEEK_SET) != 0) {
    throw SystemError(FailedAction::ReadFile, state_->Path);
  }
}

}  // namespace folivant::platform
