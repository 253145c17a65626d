// The file that a listing is written to, in large blocks: wide text in and bytes of the system's ANSI code page out, or
// bytes as they are. A file is written in one of the two ways, from its beginning to its end.
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
  /// Throws RuntimeError (WriteFile).
  void WriteBytes(std::string_view bytes);
  /// Writes what is buffered and closes. Throws RuntimeError (WriteFile); the file is closed then as well.
  void Close();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace folivant::platform
