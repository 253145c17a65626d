#include "platform/OutputFile.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include "platform/Files.h"
#include "platform/Text.h"
#include "platform/host/Host.h"
#include "platform/host/HostPath.h"

namespace folivant::platform {
namespace {

constexpr std::size_t kBlock = std::size_t{64} * 1024;  ///< bytes

}  // namespace

struct OutputFile::State {
  Descriptor File;
  std::wstring Path;
  std::string Bytes;

  void Flush() {
    if (!WriteAll(File.Get(), Bytes)) {
      throw SystemError(FailedAction::WriteFile, Path);
    }
    Bytes.clear();
  }
};

OutputFile::OutputFile() : state_(std::make_unique<State>()) {}
OutputFile::~OutputFile() = default;

void OutputFile::Open(const std::wstring& path) {
  state_ = std::make_unique<State>();
  const std::wstring full = AbsolutePath(path);
  const HostPath place = Locate(full);
  Descriptor file(openat(place.Directory(), place.Name(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
  if (!file) {
    throw SystemError(FailedAction::CreateFile, full);
  }
  state_->File = std::move(file);
  state_->Path = full;
  state_->Bytes.reserve(kBlock);
}

bool OutputFile::IsOpen() const {
  return static_cast<bool>(state_->File);
}

void OutputFile::Write(std::wstring_view text) {
  while (!text.empty()) {
    const std::size_t length = std::min(text.size(), kBlock - state_->Bytes.size());
    AppendAnsi(text.substr(0, length), state_->Bytes);
    text.remove_prefix(length);
    if (state_->Bytes.size() >= kBlock) {
      state_->Flush();
    }
  }
}

/// In whole blocks: a file system takes these faster than pieces that straddle them.
void OutputFile::WriteBytes(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = std::min(bytes.size(), kBlock - state_->Bytes.size());
    state_->Bytes += bytes.substr(0, length);
    bytes.remove_prefix(length);
    if (state_->Bytes.size() == kBlock) {
      state_->Flush();
    }
  }
}

void OutputFile::Close() {
  const std::unique_ptr<State> closing = std::exchange(state_, std::make_unique<State>());
  if (!closing->File) {
    return;
  }
  closing->Flush();
  if (close(closing->File.Release()) != 0) {
    throw SystemError(FailedAction::WriteFile, closing->Path);
  }
}

}  // namespace folivant::platform
