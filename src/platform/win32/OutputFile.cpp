#include "platform/OutputFile.h"

#include "platform/Text.h"
#include "platform/win32/Owned.h"
#include "platform/win32/SystemError.h"

namespace folivant::platform {

struct OutputFile::State {
  OwnedFile File;
  std::wstring Path;
  std::wstring Text;  // not yet converted
  std::string Bytes;  // kept between blocks for its memory
};

namespace {

constexpr std::size_t kBlock = 128 * 1024;  // characters

bool IsLeadSurrogate(wchar_t c) {
  return (c & 0xFC00) == 0xD800;
}

void WriteAll(HANDLE file, std::string_view bytes, const std::wstring& path) {
  DWORD written = 0;
  const BOOL done = WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  const DWORD error = GetLastError();
  if (done == 0 || written != bytes.size()) {
    throw SystemError(FailedAction::WriteFile, path, done == 0 ? error : ERROR_DISK_FULL);
  }
}

}  // namespace

OutputFile::OutputFile() : state_(std::make_unique<State>()) {}
OutputFile::~OutputFile() = default;

bool OutputFile::IsOpen() const {
  return state_->File.IsOpen();
}

void OutputFile::Open(const std::wstring& path) {
  state_->Path = path;
  state_->Text.clear();
  state_->Text.reserve(kBlock + kBlock / 4);
  state_->File = OwnedFile(CreateFileW(LongSpelling(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                       CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  const DWORD error = GetLastError();
  if (!IsOpen()) {
    throw SystemError(FailedAction::CreateFile, path, error);
  }
}

void OutputFile::Write(std::wstring_view text) {
  state_->Text += text;
  if (state_->Text.size() < kBlock) {
    return;
  }
  // The first half of a surrogate pair waits for its second half.
  const std::size_t kept = IsLeadSurrogate(state_->Text.back()) ? 1 : 0;
  const std::size_t count = state_->Text.size() - kept;
  state_->Bytes.clear();
  AppendAnsi(std::wstring_view(state_->Text).substr(0, count), state_->Bytes);
  state_->Text.erase(0, count);
  WriteAll(state_->File.Get(), state_->Bytes, state_->Path);
}

void OutputFile::Close() {
  if (!IsOpen()) {
    return;
  }
  const OwnedFile closing(state_->File.Release());
  WriteAll(closing.Get(), ToAnsi(state_->Text), state_->Path);
}

}  // namespace folivant::platform
