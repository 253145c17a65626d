// The lines of a path-list file, one after the other and in any encoding of TextEncoding.h. The file is read in pieces,
// so that a list may be as long as it likes.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/InputFile.h"
#include "platform/TextEncoding.h"
#include "scan/Progress.h"

namespace folivant {

class PathListLines {
 public:
  /// Looks the file through for its encoding. `progress` lets events through meanwhile and may cancel: no more
  /// is read then, but lines that were read are still handed out. Throws RuntimeError (ReadFile), as does Next.
  PathListLines(const std::wstring& path, Progress& progress);

  /// The full path of the file, for messages.
  const std::wstring& Path() const { return file_.Path(); }
  /// The next line that is not blank; nothing after the last one. Blanks and tabs around it are gone and then one pair
  /// of double quotes; what these enclose stays as it is, because a name may end in a blank. Lines end at CR, LF and
  /// NUL. A line is cut at a length that no path has.
  std::optional<std::wstring> Next();

 private:
  platform::TextEncoding FindEncoding();
  void SkipMark();
  bool ReadPiece();
  void LetEventsThroughAfter(std::size_t read);
  std::size_t FindLineEnd();
  std::optional<std::string_view> TakeLine();

  platform::InputFile file_;
  Progress& progress_;
  std::string piece_;
  platform::TextEncoding encoding_;
  std::size_t unit_;          ///< bytes of a character, or of half a pair of them
  std::string bytes_;         ///< read and not handed out, but for the first `begin_` bytes
  std::size_t begin_ = 0;     ///< of the next line
  std::size_t searched_ = 0;  ///< no line ends before
};

}  // namespace folivant
