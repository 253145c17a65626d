#include "shell/PathListText.h"

#include <algorithm>

#include "base/mdlFileRoutines.h"
#include "platform/TextEncoding.h"

namespace folivant {
std::wstring PathListText(std::string_view bytes) {
  return platform::ReadText(bytes).Text;
}

std::vector<std::wstring> LinesOf(std::wstring_view text) {
  std::vector<std::wstring> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(L"\r\n"), text.size());
    lines.push_back(Trim(text.substr(0, end)));
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with(L"\r\n") ? 2 : text.empty() ? 0 : 1);
  }
  return lines;
}

}  // namespace folivant
