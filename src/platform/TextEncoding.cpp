// Without a mark ANSI and UTF-8 can only be told apart by trying: hardly any text of a code page is valid UTF-8 by
// chance. Because some is, what is written is always read again before it counts as written.
#include "platform/TextEncoding.h"

#include <algorithm>
#include <utility>

#include "platform/Text.h"

namespace folivant::platform {
namespace {

using enum TextEncoding;

constexpr std::size_t kLongestMark = 3;

std::string WithBytesSwapped(std::string_view units) {
  std::string swapped(units.substr(0, units.size() & ~std::size_t{1}));
  for (std::size_t i = 0; i < swapped.size(); i += 2) {
    std::swap(swapped[i], swapped[i + 1]);
  }
  return swapped;
}

std::string Encode(std::wstring_view text, TextEncoding encoding) {
  switch (encoding) {
    case Utf8:
    case MarkedUtf8:
      return ToUtf8(text);
    case Utf16:
      return ToUtf16(text);
    case Utf16BigEndian:
      return WithBytesSwapped(ToUtf16(text));
    case Ansi:
      break;
  }
  return ToAnsi(text);
}

TextEncoding EncodingOf(std::string_view bytes) {
  EncodingProbe probe;
  probe.Add(bytes);
  return probe.Found();
}

/// The encoding whose mark `bytes` begin with; Ansi when there is none.
TextEncoding MarkedEncoding(std::string_view bytes) {
  for (const TextEncoding encoding : {MarkedUtf8, Utf16, Utf16BigEndian}) {
    if (bytes.starts_with(MarkOf(encoding))) {
      return encoding;
    }
  }
  return Ansi;
}

}  // namespace

void EncodingProbe::Add(std::string_view piece) {
  head_ += piece.substr(0, kLongestMark - std::min(head_.size(), kLongestMark));
  utf8_.Add(piece);
}

bool EncodingProbe::IsSure() const {
  return utf8_.IsBroken() || MarkedEncoding(head_) != Ansi;
}

TextEncoding EncodingProbe::Found() const {
  const TextEncoding marked = MarkedEncoding(head_);
  return marked != Ansi ? marked : utf8_.IsUtf8BeyondAscii() ? Utf8 : Ansi;
}

std::string_view MarkOf(TextEncoding encoding) {
  switch (encoding) {
    case MarkedUtf8:
      return "\xEF\xBB\xBF";
    case Utf16:
      return "\xFF\xFE";
    case Utf16BigEndian:
      return "\xFE\xFF";
    case Ansi:
    case Utf8:
      break;
  }
  return {};
}

std::wstring Decode(std::string_view bytes, TextEncoding encoding) {
  switch (encoding) {
    case Utf8:
    case MarkedUtf8:
      return FromUtf8(bytes);
    case Utf16:
      return FromUtf16(bytes);
    case Utf16BigEndian:
      return FromUtf16(WithBytesSwapped(bytes));
    case Ansi:
      break;
  }
  return FromAnsi(bytes);
}

EncodedText ReadText(std::string_view bytes) {
  const TextEncoding encoding = EncodingOf(bytes);
  return {Decode(bytes.substr(MarkOf(encoding).size()), encoding), encoding};
}

std::string TextBytes(std::wstring_view text, TextEncoding encoding) {
  std::string bytes = std::string(MarkOf(encoding)) + Encode(text, encoding);
  return ReadText(bytes).Text == text ? bytes : std::string(MarkOf(Utf16)) + ToUtf16(text);
}

}  // namespace folivant::platform
