// The file that a listing is written to, line by line. A line is put together in one buffer and written once.
#pragma once

#include <string>
#include <string_view>

#include "platform/OutputFile.h"

namespace folivant {

class ListingFile {
 public:
  /// Creates or truncates. Throws RuntimeError (CreateFile).
  void Open(const std::wstring& path) {
    line_.clear();
    file_.Open(path);
  }
  /// The line so far; what is appended to it goes out with EndLine.
  std::wstring& Line() { return line_; }
  /// Throws RuntimeError (WriteFile).
  void EndLine() {
    line_ += L"\r\n";
    file_.Write(line_);
    line_.clear();
  }
  void WriteLine(std::wstring_view text) {
    line_ += text;
    EndLine();
  }
  /// A line made of three parts, such as a text between two tags.
  void WriteLine(std::wstring_view before, std::wstring_view text, std::wstring_view after) {
    line_ += before;
    line_ += text;
    WriteLine(after);
  }
  /// Writes an unfinished line as it stands, and closes. Throws RuntimeError (WriteFile); call Abandon then.
  void Close();
  /// The same for a run that failed or was cancelled, where another failure is of no interest. Leaves the file closed.
  void Abandon() noexcept;

 private:
  platform::OutputFile file_;
  std::wstring line_;
};

}  // namespace folivant
