#include "platform/InputFile.h"

#include <algorithm>

#include "platform/Files.h"
#include "platform/win32/LongPathForm.h"
#include "platform/win32/Owned.h"
#include "platform/win32/SystemError.h"

namespace folivant::platform {

struct InputFile::State {
  OwnedFile File;
  std::wstring Path;
};

InputFile::InputFile(const std::wstring& path) : state_(std::make_unique<State>()) {
  state_->Path = AbsolutePath(path);
  state_->File = OwnedFile(CreateFileW(EntryPathForm(state_->Path).c_str(), GENERIC_READ,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                       FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  if (!state_->File.IsOpen()) {
    throw SystemError(FailedAction::ReadFile, state_->Path, GetLastError());
  }
}

InputFile::~InputFile() = default;

const std::wstring& InputFile::Path() const {
  return state_->Path;
}

std::size_t InputFile::Read(std::span<char> room) {
  const DWORD size = static_cast<DWORD>(std::min<std::size_t>(room.size(), 1U << 30));
  DWORD read = 0;
  if (!::ReadFile(state_->File.Get(), room.data(), size, &read, nullptr)) {
    throw SystemError(FailedAction::ReadFile, state_->Path, GetLastError());
  }
  return read;
}

void InputFile::Rewind() {
  if (!SetFilePointerEx(state_->File.Get(), {}, nullptr, FILE_BEGIN)) {
    throw SystemError(FailedAction::ReadFile, state_->Path, GetLastError());
  }
}

}  // namespace folivant::platform
