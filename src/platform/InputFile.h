// A file that is read from its beginning to its end, in pieces of the caller's size. Paths are Windows paths, as in
// FindFiles.h.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>

namespace folivant::platform {

class InputFile {
 public:
  /// Throws RuntimeError (ReadFile) when it cannot be opened.
  explicit InputFile(const std::wstring& path);
  ~InputFile();
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  /// The full path, for messages.
  const std::wstring& Path() const;
  /// The next bytes, at most as many as there is room for; how many it were, and 0 at the end of the file. Throws
  /// RuntimeError (ReadFile).
  std::size_t Read(std::span<char> room);
  /// Back to the beginning. Throws RuntimeError (ReadFile), for a pipe for example.
  void Rewind();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace folivant::platform
