// The escaping of the markup writers, for HTML and XML documents alike. Names, paths and dates go into markup as they
// are, by design: only a size text is escaped.
#pragma once

#include <cstddef>
#include <string>

namespace folivant {

/// Puts entities in the place of "&", "<" and ">" in what `line` holds from `start` on; quotes stay as they are.
inline void EscapeFrom(std::size_t start, std::wstring& line) {
  constexpr const wchar_t* kSpecial = L"&<>";
  for (std::size_t at = line.find_first_of(kSpecial, start); at != line.npos;) {
    const wchar_t* const entity = line[at] == L'&' ? L"&amp;" : line[at] == L'<' ? L"&lt;" : L"&gt;";
    line.replace(at, 1, entity);
    at = line.find_first_of(kSpecial, at + 4);
  }
}

}  // namespace folivant
