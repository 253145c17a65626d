// The file that a listing is written to: converted to the code page in blocks. Closing it may fail like writing.
#include "platform/OutputFile.h"

#include <algorithm>

#include "platform/Files.h"
#include "platform/Text.h"
#include "platform/win32/LongPathForm.h"
#include "platform/win32/Owned.h"
#include "platform/win32/SystemError.h"
#include "platform/win32/WriteAll.h"

namespace folivant::platform {
namespace {

constexpr std::size_t kBlock = std::size_t{64} * 1024;  ///< characters, or bytes

OwnedFile Create(const std::wstring& path) {
  const std::wstring native = LongPathForm(path);
  const auto create = [&](DWORD disposition) {
    return OwnedFile(CreateFileW(native.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, disposition,
                                 FILE_ATTRIBUTE_NORMAL | FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  };
  OwnedFile file = create(CREATE_ALWAYS);
  const DWORD error = GetLastError();
  if (!file.IsOpen() && error == ERROR_ACCESS_DENIED) {
    file = create(TRUNCATE_EXISTING);  // an existing hidden or system file
  }
  if (!file.IsOpen()) {
    throw SystemError(FailedAction::CreateFile, path, error);
  }
  return file;
}

}  // namespace

struct OutputFile::State {
  OwnedFile File;
  std::wstring Path;
  std::wstring Text;  ///< waits for the end of its block
  std::string Bytes;

  /// Converts and writes what waits. The first half of a surrogate pair stays until its other half has come.
  void Flush(bool last) {
    const bool split = !last && !Text.empty() && IS_HIGH_SURROGATE(Text.back());
    const std::size_t length = Text.size() - (split ? 1 : 0);
    AppendAnsi(std::wstring_view(Text).substr(0, length), Bytes);
    Text.erase(0, length);
    WriteAll(File.Get(), Bytes, Path);
    Bytes.clear();
  }
};

OutputFile::OutputFile() : state_(std::make_unique<State>()) {}
OutputFile::~OutputFile() = default;

void OutputFile::Open(const std::wstring& path) {
  state_ = std::make_unique<State>();
  state_->Path = AbsolutePath(path);
  state_->File = Create(state_->Path);
  state_->Text.reserve(kBlock);
}

bool OutputFile::IsOpen() const {
  return state_->File.IsOpen();
}

void OutputFile::Write(std::wstring_view text) {
  while (!text.empty()) {
    const std::size_t length = std::min(text.size(), kBlock - state_->Text.size());
    state_->Text.append(text.substr(0, length));
    text.remove_prefix(length);
    if (state_->Text.size() == kBlock) {
      state_->Flush(false);
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
      state_->Flush(false);
    }
  }
}

void OutputFile::Close() {
  const std::unique_ptr<State> closing = std::exchange(state_, std::make_unique<State>());
  if (!closing->File.IsOpen()) {
    return;
  }
  closing->Flush(true);
  if (!closing->File.Close()) {  // a network drive may report the full disk only here
    throw SystemError(FailedAction::WriteFile, closing->Path, GetLastError());
  }
}

}  // namespace folivant::platform
