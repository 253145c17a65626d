// Most texts are paths in ASCII: those characters go through a block of bytes, a backslash before those that need one,
// and only what is left takes the slow way.
#include "output/JsonText.h"

#include <array>

#include "platform/Utf8.h"

namespace folivant {
namespace {

constexpr wchar_t kDelete = 0x7F;

bool IsControl(wchar_t c) {
  return c < L' ' || c == kDelete;
}

void AppendEscape(wchar_t c, std::string& out) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  out += "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) {
    out += kDigits[static_cast<unsigned>(c) >> shift & 0xF];
  }
}

/// Takes off `text` the printable ASCII characters that it begins with, or as many of them as one block holds.
void AppendPrintable(std::wstring_view& text, std::string& out) {
  std::array<char, 512> block;
  std::size_t used = 0;
  std::size_t at = 0;
  for (; at < text.size() && used + 2 <= block.size(); ++at) {
    const wchar_t c = text[at];
    if (c > kDelete || IsControl(c)) {
      break;
    }
    if (c == L'"' || c == L'\\') {
      block[used++] = '\\';
    }
    block[used++] = static_cast<char>(c);
  }
  out.append(block.data(), used);
  text.remove_prefix(at);
}

/// The end of what stands as it is beyond ASCII, from the beginning on.
std::size_t ForeignEnd(std::wstring_view text) {
  std::size_t at = 0;
  while (at < text.size() && text[at] > kDelete && !platform::IsUnpaired(text, at)) {
    ++at;
  }
  return at;
}

}  // namespace

void AppendJsonString(std::wstring_view text, std::string& out) {
  out += '"';
  while (!text.empty()) {
    AppendPrintable(text, out);
    const std::size_t foreign = ForeignEnd(text);
    platform::AppendUtf8(text.substr(0, foreign), out);
    text.remove_prefix(foreign);
    if (!text.empty() && (IsControl(text.front()) || platform::IsUnpaired(text, 0))) {
      AppendEscape(text.front(), out);
      text.remove_prefix(1);
    }
  }
  out += '"';
}

}  // namespace folivant
