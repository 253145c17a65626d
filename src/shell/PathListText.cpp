#include "shell/PathListText.h"

#include <algorithm>

#include "base/mdlFileRoutines.h"
#include "platform/Text.h"
#include "platform/Utf8.h"

namespace folivant {
namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
}  // namespace

std::wstring PathListText(std::string_view bytes) {
  if (bytes.starts_with(kUtf16Mark)) {
    return platform::FromUtf16(bytes.substr(kUtf16Mark.size()));
  }
  if (bytes.starts_with(kUtf8Mark)) {
    return platform::FromUtf8(bytes.substr(kUtf8Mark.size()));
  }
  return platform::FromAnsi(bytes);
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
