#include "platform/LogFile.h"

#include "platform/Files.h"
#include "platform/Utf8.h"
#include "platform/win32/LongPathForm.h"
#include "platform/win32/Owned.h"
#include "platform/win32/SystemError.h"
#include "platform/win32/WriteAll.h"

namespace folivant::platform {

struct LogFile::State {
  OwnedFile File;
  std::wstring Path;
};

LogFile::LogFile(const std::wstring& path, LogStart start) : state_(std::make_unique<State>()) {
  state_->Path = AbsolutePath(path);
  state_->File = OwnedFile(
      CreateFileW(LongPathForm(state_->Path).c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                  start == LogStart::Anew ? CREATE_ALWAYS : OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!state_->File.IsOpen()) {
    throw SystemError(FailedAction::CreateFile, state_->Path, GetLastError());
  }
}

LogFile::~LogFile() = default;

void LogFile::WriteLine(std::wstring_view line) {
  std::string bytes;
  AppendUtf8(line, bytes);
  WriteAll(state_->File.Get(), bytes + "\r\n", state_->Path);
}

}  // namespace folivant::platform
