// The encodings of the text files that people bring along: which one some bytes are in, and text from and to each.
// Filter files, language files and lists of paths all go through here.
#pragma once

#include <string>
#include <string_view>

#include "platform/Utf8.h"

namespace folivant::platform {

enum class TextEncoding {
  Ansi,            ///< the code page of the system
  Utf8,            ///< without a mark: beyond ASCII, and valid to its last byte
  MarkedUtf8,      ///< EF BB BF
  Utf16,           ///< FF FE, little-endian
  Utf16BigEndian,  ///< FE FF
};

/// Finds out the encoding of a file that comes in pieces, from its beginning, cut anywhere. A byte-order mark decides;
/// without one it is UTF-8 when some of it is beyond ASCII and all of it is valid, otherwise the ANSI code page.
class EncodingProbe {
 public:
  void Add(std::string_view piece);
  /// What may follow changes nothing.
  bool IsSure() const;
  TextEncoding Found() const;

 private:
  std::string head_;
  Utf8Check utf8_;
};

/// The byte-order mark; empty for Ansi and Utf8.
std::string_view MarkOf(TextEncoding encoding);
/// Bytes without a mark as text. Half a UTF-16 unit at the end is dropped.
std::wstring Decode(std::string_view bytes, TextEncoding encoding);

struct EncodedText {
  std::wstring Text;
  TextEncoding Encoding = TextEncoding::Ansi;
};
/// A whole file.
EncodedText ReadText(std::string_view bytes);
/// The bytes of a file, in `encoding` and with its mark, or in Utf16 where that could not be read back as `text`.
std::string TextBytes(std::wstring_view text, TextEncoding encoding);

}  // namespace folivant::platform
