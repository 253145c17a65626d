// Letter case of the scripts that tests use (Latin, Greek, Cyrillic), and code page 1252 without best fits.
#include "platform/NumberWeights.h"
#include "platform/Text.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace folivant::platform {
namespace {

bool IsBetween(wchar_t c, wchar_t first, wchar_t last) {
  return c >= first && c <= last;
}

wchar_t Shifted(wchar_t c, int by) {
  return static_cast<wchar_t>(static_cast<int>(c) + by);
}

/// Latin Extended-A: pairs of a capital and its small letter, whose parity turns over twice.
bool IsPaired(wchar_t c) {
  return IsBetween(c, 0x100, 0x12F) || IsBetween(c, 0x132, 0x137) || IsBetween(c, 0x139, 0x148) ||
         IsBetween(c, 0x14A, 0x177) || IsBetween(c, 0x179, 0x17E);
}
bool IsPairedCapital(wchar_t c) {
  const bool capitalsAreOdd = IsBetween(c, 0x139, 0x148) || IsBetween(c, 0x179, 0x17E);
  return IsPaired(c) && (c % 2 != 0) == capitalsAreOdd;
}

wchar_t Lower(wchar_t c) {
  if (IsBetween(c, L'A', L'Z') || (IsBetween(c, 0xC0, 0xDE) && c != 0xD7) ||
      (IsBetween(c, 0x391, 0x3A9) && c != 0x3A2) || IsBetween(c, 0x410, 0x42F)) {
    return Shifted(c, 32);
  }
  if (c == 0x178) {
    return 0xFF;
  }
  return IsBetween(c, 0x400, 0x40F) ? Shifted(c, 80) : IsPairedCapital(c) ? Shifted(c, 1) : c;
}

wchar_t Upper(wchar_t c) {
  if (IsBetween(c, L'a', L'z') || (IsBetween(c, 0xE0, 0xFE) && c != 0xF7) ||
      (IsBetween(c, 0x3B1, 0x3C9) && c != 0x3C2) || IsBetween(c, 0x430, 0x44F)) {
    return Shifted(c, -32);
  }
  if (c == 0xFF) {
    return 0x178;
  }
  return IsBetween(c, 0x450, 0x45F) ? Shifted(c, -80) : IsPaired(c) && !IsPairedCapital(c) ? Shifted(c, -1) : c;
}

constexpr wchar_t kWestern[32] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                  0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

}  // namespace

void LowerInto(std::wstring_view text, wchar_t* out) {
  std::transform(text.begin(), text.end(), out, Lower);
}
void UpperInto(std::wstring_view text, wchar_t* out) {
  std::transform(text.begin(), text.end(), out, Upper);
}

std::wstring ToLower(std::wstring_view text) {
  std::wstring result(text);
  LowerInto(text, result.data());
  return result;
}
std::wstring ToUpper(std::wstring_view text) {
  std::wstring result(text);
  UpperInto(text, result.data());
  return result;
}

int CompareText(std::wstring_view a, std::wstring_view b) {
  const int order = ToLower(a).compare(ToLower(b));
  return order < 0 ? -1 : order > 0 ? 1 : 0;
}

void AppendSortKey(std::wstring_view text, std::string& keys, Digits digits) {
  if (digits == Digits::AsNumbers) {
    std::wstring weighed;
    AppendWithNumberWeights(text, weighed);
    AppendSortKey(weighed, keys);
    return;
  }
  // In the manner of UTF-8, whose bytes sort as its characters do: eight letters fill one step of the sorting.
  for (const wchar_t c : text) {
    const auto code = static_cast<std::uint32_t>(Lower(c));
    const int more = code < 0x80 ? 0 : code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr std::uint32_t kLeads[] = {0, 0xC0, 0xE0, 0xF0};
    keys.push_back(static_cast<char>(kLeads[more] | code >> (6 * more)));
    for (int left = more - 1; left >= 0; --left) {
      keys.push_back(static_cast<char>(0x80U | (code >> (6 * left) & 0x3FU)));
    }
  }
}

std::wstring FromAnsi(std::string_view bytes) {
  std::wstring result;
  for (const char byte : bytes) {
    const auto c = static_cast<unsigned char>(byte);
    result.push_back(c >= 0x80 && c <= 0x9F ? kWestern[c - 0x80] : static_cast<wchar_t>(c));
  }
  return result;
}

void AppendAnsi(std::wstring_view text, std::string& bytes) {
  for (const wchar_t c : text) {
    const auto special = std::find(std::begin(kWestern), std::end(kWestern), c);
    if (special != std::end(kWestern)) {
      bytes.push_back(static_cast<char>(0x80 + (special - std::begin(kWestern))));
    } else {
      bytes.push_back(c < 0x80 || IsBetween(c, 0xA0, 0xFF) ? static_cast<char>(c) : '?');
    }
  }
}

std::string ToAnsi(std::wstring_view text) {
  std::string bytes;
  AppendAnsi(text, bytes);
  return bytes;
}

std::wstring FromUtf16(std::string_view bytes) {
  std::wstring result;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto low = static_cast<unsigned char>(bytes[i]);
    const auto high = static_cast<unsigned char>(bytes[i + 1]);
    auto unit = static_cast<std::uint32_t>(low | high << 8);
    if constexpr (sizeof(wchar_t) == 4) {
      const auto previous = result.empty() ? 0U : static_cast<std::uint32_t>(result.back());
      if ((unit & 0xFC00U) == 0xDC00U && (previous & 0xFFFFFC00U) == 0xD800U) {
        result.pop_back();
        unit = 0x10000U + ((previous - 0xD800U) << 10) + (unit - 0xDC00U);
      }
    }
    result.push_back(static_cast<wchar_t>(unit));
  }
  return result;
}

std::string ToUtf16(std::wstring_view text) {
  std::string bytes;
  const auto add = [&](std::uint32_t unit) {
    bytes.push_back(static_cast<char>(unit & 0xFF));
    bytes.push_back(static_cast<char>(unit >> 8 & 0xFF));
  };
  for (const wchar_t c : text) {
    const auto code = static_cast<std::uint32_t>(c);
    if (code >= 0x10000U) {
      add(0xD800U + ((code - 0x10000U) >> 10));
      add(0xDC00U + ((code - 0x10000U) & 0x3FFU));
    } else {
      add(code);
    }
  }
  return bytes;
}

}  // namespace folivant::platform
