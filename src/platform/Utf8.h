// UTF-8: the one place that takes it apart and puts it together, for files of text and, natively, for the names of
// files.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace folivant::platform {

/// Broken sequences become U+FFFD, as many as Wine shows in the names of files.
std::wstring FromUtf8(std::string_view bytes);
/// The same into a buffer of at least `bytes.size()` characters; returns how many were written.
std::size_t FromUtf8Into(std::string_view bytes, wchar_t* out);
/// Unpaired halves of surrogate pairs are written like other characters, and are then no valid UTF-8.
std::string ToUtf8(std::wstring_view text);
/// Always valid: unpaired halves become U+FFFD.
void AppendUtf8(std::wstring_view text, std::string& bytes);
/// Whether the character at `at` is half of a surrogate pair without its other half.
bool IsUnpaired(std::wstring_view text, std::size_t at);

/// Whether bytes that come in pieces, cut anywhere, are UTF-8.
class Utf8Check {
 public:
  void Add(std::string_view piece);
  /// Something that came is no UTF-8, whatever follows.
  bool IsBroken() const { return broken_; }
  /// All that came is UTF-8, to its end, and some of it is not ASCII.
  bool IsUtf8BeyondAscii() const { return !broken_ && rest_.empty() && beyondAscii_; }

 private:
  std::string rest_;  ///< a character of which more may come
  bool beyondAscii_ = false;
  bool broken_ = false;
};

}  // namespace folivant::platform
