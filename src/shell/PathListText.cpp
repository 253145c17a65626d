#include "shell/PathListText.h"

#include <algorithm>
#include <cstdint>

#include "base/mdlFileRoutines.h"
#include "platform/Text.h"

namespace folivant {
namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr char32_t kReplacement = 0xFFFD;

bool Continues(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Takes one character off `bytes`; a byte that begins none becomes the replacement character.
char32_t TakeUtf8(std::string_view& bytes) {
  const auto lead = static_cast<unsigned char>(bytes.front());
  bytes.remove_prefix(1);
  if (lead < 0x80U) {
    return lead;
  }
  const std::size_t more = lead >= 0xF0U ? 3 : lead >= 0xE0U ? 2 : 1;
  if (lead < 0xC2U || lead > 0xF4U || bytes.size() < more ||
      !std::all_of(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(more), Continues)) {
    return kReplacement;
  }
  char32_t character = lead & (0x3FU >> more);
  for (std::size_t i = 0; i < more; ++i) {
    character = character << 6U | (static_cast<unsigned char>(bytes[i]) & 0x3FU);
  }
  bytes.remove_prefix(more);
  constexpr char32_t kLeast[] = {0x80, 0x800, 0x10000};
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  return character < kLeast[more - 1] || character > 0x10FFFF || surrogate ? kReplacement : character;
}

/// As the bytes of UTF-16, so that the seam makes text of it, whatever the width of a character there.
std::string Utf8ToUtf16(std::string_view bytes) {
  std::string units;
  const auto add = [&units](char32_t unit) {
    units += static_cast<char>(unit & 0xFFU);
    units += static_cast<char>(unit >> 8U);
  };
  while (!bytes.empty()) {
    const char32_t character = TakeUtf8(bytes);
    if (character < 0x10000) {
      add(character);
    } else {
      add(0xD800 + ((character - 0x10000) >> 10U));
      add(0xDC00 + ((character - 0x10000) & 0x3FFU));
    }
  }
  return units;
}

}  // namespace

std::wstring PathListText(std::string_view bytes) {
  if (bytes.starts_with(kUtf16Mark)) {
    return platform::FromUtf16(bytes.substr(kUtf16Mark.size()));
  }
  if (bytes.starts_with(kUtf8Mark)) {
    return platform::FromUtf16(Utf8ToUtf16(bytes.substr(kUtf8Mark.size())));
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
