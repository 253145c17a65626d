// The escaping of the markup writers. HTML and XML documents share one rule.
#pragma once

#include <string>
#include <string_view>

namespace folivant {

/// Appends `text` with "&", "<" and ">" as entities; quotes stay as they are.
inline void AppendEscaped(std::wstring_view text, std::wstring& out) {
  for (const wchar_t c : text) {
    switch (c) {
      case L'&':
        out += L"&amp;";
        break;
      case L'<':
        out += L"&lt;";
        break;
      case L'>':
        out += L"&gt;";
        break;
      default:
        out += c;
    }
  }
}

/// Names, paths and dates go into markup as they are, by design: only a size text is escaped.
inline void AppendValue(std::wstring_view text, bool escaped, std::wstring& out) {
  if (escaped) {
    AppendEscaped(text, out);
  } else {
    out += text;
  }
}

}  // namespace folivant
