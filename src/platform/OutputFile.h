// The file that a listing is written to: wide text in, bytes of the system's ANSI code page out, in large blocks.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace folivant::platform {

class OutputFile {
 public:
  OutputFile();
  ~OutputFile();  ///< closes quietly; what was not flushed before is lost
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  /// Creates or truncates. Throws RuntimeError (CreateFile); the object is then closed.
  void Open(const std::wstring& path);
  bool IsOpen() const;
  /// Characters that the code page lacks become the system's best fit or "?". Throws RuntimeError (WriteFile).
  void Write(std::wstring_view text);
  /// Writes what is buffered and closes. Throws RuntimeError (WriteFile); the file is closed then as well.
  void Close();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace folivant::platform
