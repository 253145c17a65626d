#include "platform/OutputFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "platform/Text.h"
#include "platform/host/Host.h"

namespace folivant::platform {

struct OutputFile::State {
  int File = -1;
  std::wstring Path;
  std::string Bytes;  // converted, not yet written
};

namespace {

constexpr std::size_t kBlock = 256 * 1024;

bool WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) {
      return false;
    }
    bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace

OutputFile::OutputFile() : state_(std::make_unique<State>()) {}

OutputFile::~OutputFile() {
  if (IsOpen()) {
    close(state_->File);
  }
}

bool OutputFile::IsOpen() const {
  return state_->File >= 0;
}

void OutputFile::Open(const std::wstring& path) {
  if (IsOpen()) {
    close(state_->File);
  }
  state_->Path = path;
  state_->Bytes.clear();
  state_->Bytes.reserve(kBlock + kBlock / 4);
  state_->File = open(ToNativePath(path).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (!IsOpen()) {
    throw SystemError(FailedAction::CreateFile, path);
  }
}

void OutputFile::Write(std::wstring_view text) {
  AppendAnsi(text, state_->Bytes);
  if (state_->Bytes.size() >= kBlock) {
    if (!WriteAll(state_->File, state_->Bytes)) {
      throw SystemError(FailedAction::WriteFile, state_->Path);
    }
    state_->Bytes.clear();
  }
}

void OutputFile::Close() {
  if (!IsOpen()) {
    return;
  }
  const bool written = WriteAll(state_->File, state_->Bytes);
  RuntimeError writeError = SystemError(FailedAction::WriteFile, state_->Path);
  const bool closed = close(state_->File) == 0;
  state_->File = -1;
  state_->Bytes.clear();
  if (!written) {
    throw writeError;
  }
  if (!closed) {
    throw SystemError(FailedAction::WriteFile, state_->Path);
  }
}

}  // namespace folivant::platform
