#include "output/JsonText.h"

#include "platform/Utf8.h"

namespace folivant {
namespace {

constexpr wchar_t kDelete = 0x7F;

bool IsPlain(wchar_t c) {
  return c >= L' ' && c < kDelete && c != L'"' && c != L'\\';
}

void AppendEscape(wchar_t c, std::string& out) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  if (c == L'"' || c == L'\\') {
    out += '\\';
    out += static_cast<char>(c);
    return;
  }
  out += "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) {
    out += kDigits[static_cast<unsigned>(c) >> shift & 0xF];
  }
}

/// Where the run of plain ASCII that begins at `from` ends.
std::size_t PlainEnd(std::wstring_view text, std::size_t from) {
  while (from < text.size() && IsPlain(text[from])) {
    ++from;
  }
  return from;
}

}  // namespace

void AppendJsonString(std::wstring_view text, std::string& out) {
  out += '"';
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t plainEnd = PlainEnd(text, at);
    for (; at < plainEnd; ++at) {
      out += static_cast<char>(text[at]);
    }
    if (at == text.size()) {
      break;
    }
    if (text[at] <= kDelete || platform::IsUnpaired(text, at)) {
      AppendEscape(text[at++], out);
      continue;
    }
    const std::size_t start = at;
    while (at < text.size() && text[at] > kDelete && !platform::IsUnpaired(text, at)) {
      ++at;
    }
    platform::AppendUtf8(text.substr(start, at - start), out);
  }
  out += '"';
}

}  // namespace folivant
