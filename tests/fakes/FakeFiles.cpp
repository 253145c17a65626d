#include <algorithm>

#include "fakes/FakePlatform.h"
#include "platform/Files.h"
#include "platform/InputFile.h"
#include "platform/LogFile.h"
#include "platform/OutputFile.h"
#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "platform/Utf8.h"

namespace folivant::platform {

using fakes::Fake;
using fakes::FakeFailure;
using fakes::FakeNode;

namespace {

[[noreturn]] void Throw(FailedAction action, const std::wstring& path, const FakeFailure& failure) {
  throw RuntimeError(action, path, failure.Text, failure.Code);
}

void ThrowInjected(const std::map<std::wstring, FakeFailure>& failures, FailedAction action, const std::wstring& path) {
  if (const auto found = failures.find(path); found != failures.end()) {
    Throw(action, path, found->second);
  }
}

FakeFailure NotFound() {
  return {2, L"The system cannot find the file specified."};
}
FakeFailure PathNotFound() {
  return {3, L"The system cannot find the path specified."};
}

std::wstring RootOf(const std::wstring& path) {
  return ToUpper(path.substr(0, 2)) + L"\\";
}

}  // namespace

namespace {

/// As far as the disk has room.
void AppendTo(FakeNode& node, std::string_view bytes, const std::wstring& path) {
  std::size_t count = bytes.size();
  auto& room = Fake().DiskFullAfter;
  if (room) {
    count = static_cast<std::size_t>(std::min<std::uint64_t>(count, *room));
    *room -= count;
  }
  node.Content.append(bytes.substr(0, count));
  node.Size += count;
  if (count < bytes.size()) {
    Throw(FailedAction::WriteFile, path, fakes::DiskFull());
  }
}

}  // namespace

struct LogFile::State {
  std::wstring Path;
};

LogFile::LogFile(const std::wstring& path, LogStart start)
    : state_(std::make_unique<State>(State{AbsolutePath(path)})) {
  ThrowInjected(Fake().FailCreates, FailedAction::CreateFile, state_->Path);
  const FakeNode* const before = Fake().Tree.Find(state_->Path);
  const std::string content = before == nullptr || start == LogStart::Anew ? std::string() : before->Content;
  FakeNode* const node = Fake().Tree.MakeFile(state_->Path);
  if (node == nullptr) {
    Throw(FailedAction::CreateFile, state_->Path, PathNotFound());
  }
  node->Content = content;
}

LogFile::~LogFile() = default;

void LogFile::WriteLine(std::wstring_view line) {
  std::string bytes;
  AppendUtf8(line, bytes);
  AppendTo(*Fake().Tree.Find(state_->Path), bytes + "\r\n", state_->Path);
}

struct InputFile::State {
  std::wstring Path;
  std::string_view Left;
};

InputFile::InputFile(const std::wstring& path) : state_(std::make_unique<State>(State{AbsolutePath(path), {}})) {
  Rewind();
}

InputFile::~InputFile() = default;

const std::wstring& InputFile::Path() const {
  return state_->Path;
}

std::size_t InputFile::Read(std::span<char> room) {
  const std::string_view piece = state_->Left.substr(0, room.size());
  std::copy(piece.begin(), piece.end(), room.begin());
  state_->Left.remove_prefix(piece.size());
  return piece.size();
}

void InputFile::Rewind() {
  const std::wstring& path = state_->Path;
  ThrowInjected(Fake().FailReads, FailedAction::ReadFile, path);
  const FakeNode* node = Fake().Tree.Find(path);
  if (node == nullptr) {
    Throw(FailedAction::ReadFile, path, NotFound());
  }
  if (node->IsDirectory() || node->Unreadable) {
    Throw(FailedAction::ReadFile, path, fakes::AccessDenied());
  }
  state_->Left = node->Content;
}

void ReplaceFile(const std::wstring& path, std::string_view bytes) {
  ThrowInjected(Fake().FailReplaces, FailedAction::WriteFile, path);
  FakeNode* node = Fake().Tree.MakeFile(path);
  if (node == nullptr) {
    Throw(FailedAction::WriteFile, path, PathNotFound());
  }
  node->Content = bytes;
  node->Size = bytes.size();
}

bool TruncateFile(const std::wstring& path) {
  return Fake().FailCreates.count(path) == 0 && Fake().Tree.MakeFile(path) != nullptr;
}

bool RemoveFile(const std::wstring& path) {
  const FakeNode* node = Fake().Tree.Find(path);
  if (node == nullptr || node->IsDirectory()) {
    return false;
  }
  Fake().Tree.Remove(path);
  return true;
}

bool PathExists(std::wstring_view path) {
  return Fake().Tree.Find(AbsolutePath(std::wstring(path))) != nullptr;
}

bool IsDirectory(std::wstring_view path) {
  const FakeNode* node = Fake().Tree.Find(AbsolutePath(std::wstring(path)));
  return node != nullptr && node->IsDirectory();
}

std::wstring CurrentDirectory() {
  return Fake().CurrentDirectory;
}

std::wstring AbsolutePath(const std::wstring& path) {
  if (path.empty() || path.substr(1, 2) == L":\\" || path.starts_with(L"\\\\")) {
    return path;
  }
  if (path.starts_with(L"\\")) {
    return Fake().CurrentDirectory.substr(0, 2) + path;
  }
  const std::wstring& current = Fake().CurrentDirectory;
  return current + (current.ends_with(L"\\") ? L"" : L"\\") + path;
}

std::wstring TemporaryDirectory() {
  return Fake().TemporaryDirectory;
}
std::wstring ProgramFolder() {
  return Fake().ProgramFolder;
}
std::optional<std::wstring> SendToFolder() {
  return Fake().SendToFolder;
}

std::vector<std::wstring> FindNames(const std::wstring& folder, std::wstring_view ending) {
  std::vector<std::wstring> names;
  if (const FakeNode* node = Fake().Tree.Find(folder); node != nullptr && !node->Unreadable) {
    for (const FakeNode* child : node->Children) {
      if (ToLower(child->Name).ends_with(ToLower(ending))) {
        names.push_back(child->Name);
      }
    }
  }
  return names;
}

std::wstring VolumeLabel(const std::wstring& root) {
  const auto found = Fake().Labels.find(ToUpper(root));
  return found == Fake().Labels.end() ? std::wstring() : found->second;
}

std::optional<DiskSpace> FreeSpace(const std::wstring& directory) {
  const auto found = Fake().FreeSpace.find(directory.starts_with(L"\\\\") ? directory : RootOf(directory));
  return found == Fake().FreeSpace.end() ? std::nullopt : std::optional(found->second);
}

/// Unbuffered: a failure shows at the write that meets it.
struct OutputFile::State {
  std::wstring Path;
  FakeNode* Node = nullptr;
};

OutputFile::OutputFile() : state_(std::make_unique<State>()) {}

OutputFile::~OutputFile() {
  if (IsOpen()) {
    --Fake().OpenOutputFiles;
  }
}

void OutputFile::Open(const std::wstring& path) {
  ThrowInjected(Fake().FailCreates, FailedAction::CreateFile, path);
  FakeNode* node = Fake().Tree.MakeFile(path);
  if (node == nullptr) {
    Throw(FailedAction::CreateFile, path, PathNotFound());
  }
  *state_ = {path, node};
  ++Fake().OpenOutputFiles;
}

bool OutputFile::IsOpen() const {
  return state_->Node != nullptr;
}

void OutputFile::Write(std::wstring_view text) {
  WriteBytes(ToAnsi(text));
}

void OutputFile::WriteBytes(std::string_view bytes) {
  AppendTo(*state_->Node, bytes, state_->Path);
}

void OutputFile::Close() {
  if (!IsOpen()) {
    return;
  }
  state_->Node = nullptr;
  --Fake().OpenOutputFiles;
  ThrowInjected(Fake().FailCloses, FailedAction::WriteFile, state_->Path);
}

}  // namespace folivant::platform
