// The file that a listing is written to, line by line, or the text that it becomes in memory. A line is put together in
// one buffer and written once.
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
    text_ = nullptr;
    file_.Open(path);
  }
  /// What is written goes to the end of `text` instead, which outlives Close and Abandon; no file is opened.
  void OpenText(std::wstring& text) {
    line_.clear();
    text_ = &text;
  }
  /// The line so far; what is appended to it goes out with EndLine.
  std::wstring& Line() { return line_; }
  /// Throws RuntimeError (WriteFile).
  void EndLine() {
    line_ += L"\r\n";
    Write(line_);
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
  void Write(std::wstring_view text) {
    if (text_ != nullptr) {
      *text_ += text;
    } else {
      file_.Write(text);
    }
  }

  platform::OutputFile file_;
  std::wstring* text_ = nullptr;  ///< of a listing in memory
  std::wstring line_;
};

}  // namespace folivant
