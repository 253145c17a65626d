// A file that grows by lines, each of which is with the system before the next one is written: what a program that is
// ended suddenly has written stays.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace folivant::platform {

enum class LogStart { Anew, Append };

class LogFile {
 public:
  /// Others may read the file meanwhile, and append to it too. Throws RuntimeError (CreateFile).
  LogFile(const std::wstring& path, LogStart start);
  ~LogFile();
  LogFile(const LogFile&) = delete;
  LogFile& operator=(const LogFile&) = delete;

  /// The line, in UTF-8, and a line end (CR LF). Throws RuntimeError (WriteFile).
  void WriteLine(std::wstring_view line);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace folivant::platform
