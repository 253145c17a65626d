// Letter case, order and code page as the Windows build has them, without the host's own locale.
#include "platform/Text.h"

#include <wctype.h>

#include <algorithm>
#include <array>
#include <clocale>

#include "platform/NumberWeights.h"
#include "platform/Utf8.h"

namespace folivant::platform {
namespace {

/// Letter case must not depend on what the user's environment names.
locale_t CaseLocale() {
  static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return locale;
}

wchar_t Lower(wchar_t c) {
  if (c < 0x80) {
    return c >= L'A' && c <= L'Z' ? c + 0x20 : c;
  }
  return static_cast<wchar_t>(towlower_l(static_cast<wint_t>(c), CaseLocale()));
}

wchar_t Upper(wchar_t c) {
  if (c < 0x80) {
    return c >= L'a' && c <= L'z' ? c - 0x20 : c;
  }
  return static_cast<wchar_t>(towupper_l(static_cast<wint_t>(c), CaseLocale()));
}

/// Code page 1252 from 80 to 9F; the other bytes are their own characters.
constexpr std::array<wchar_t, 32> kCodePage = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                               0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char AnsiOf(wchar_t c) {
  if ((c >= 0 && c < 0x80) || (c >= 0xA0 && c <= 0xFF)) {
    return static_cast<char>(c);
  }
  const auto found = std::find(kCodePage.begin(), kCodePage.end(), c);
  return found == kCodePage.end() ? '?' : static_cast<char>(0x80 + (found - kCodePage.begin()));
}

constexpr wchar_t kFirstSupplementary = 0x10000;

constexpr bool IsHighHalf(wchar_t c) {
  return c >= 0xD800 && c <= 0xDBFF;
}

constexpr bool IsLowHalf(wchar_t c) {
  return c >= 0xDC00 && c <= 0xDFFF;
}

void AppendUnit(unsigned unit, std::string& bytes) {
  bytes += static_cast<char>(unit & 0xFF);
  bytes += static_cast<char>(unit >> 8);
}

}  // namespace

void LowerInto(std::wstring_view text, wchar_t* out) {
  std::transform(text.begin(), text.end(), out, Lower);
}

void UpperInto(std::wstring_view text, wchar_t* out) {
  std::transform(text.begin(), text.end(), out, Upper);
}

std::wstring ToLower(std::wstring_view text) {
  std::wstring lower(text.size(), L'\0');
  LowerInto(text, lower.data());
  return lower;
}

std::wstring ToUpper(std::wstring_view text) {
  std::wstring upper(text.size(), L'\0');
  UpperInto(text, upper.data());
  return upper;
}

int CompareText(std::wstring_view a, std::wstring_view b) {
  const std::size_t shared = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < shared; ++i) {
    const wchar_t left = Lower(a[i]);
    const wchar_t right = Lower(b[i]);
    if (left != right) {
      return left < right ? -1 : 1;
    }
  }
  return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

// UTF-8 sorts by its bytes as its characters do.
void AppendSortKey(std::wstring_view text, std::string& keys, Digits digits) {
  if (digits == Digits::AsNumbers) {
    std::wstring weighed;
    AppendWithNumberWeights(text, weighed);
    AppendSortKey(weighed, keys, Digits::AsCharacters);
    return;
  }
  const std::size_t start = keys.size();
  keys.resize(start + text.size());
  char* out = keys.data() + start;
  wchar_t seen = 0;
  for (const wchar_t c : text) {
    seen |= c;
    *out++ = static_cast<char>(c >= L'A' && c <= L'Z' ? c + 0x20 : c);
  }
  if (seen >= 0x80) {
    keys.resize(start);
    keys += ToUtf8(ToLower(text));
  }
}

std::wstring FromAnsi(std::string_view bytes) {
  std::wstring text(bytes.size(), L'\0');
  std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
    const unsigned char code = static_cast<unsigned char>(byte);
    return code >= 0x80 && code < 0xA0 ? kCodePage[code - 0x80U] : static_cast<wchar_t>(code);
  });
  return text;
}

std::string ToAnsi(std::wstring_view text) {
  std::string bytes;
  AppendAnsi(text, bytes);
  return bytes;
}

void AppendAnsi(std::wstring_view text, std::string& bytes) {
  const std::size_t start = bytes.size();
  bytes.resize(start + text.size());
  char* out = bytes.data() + start;
  wchar_t seen = 0;
  for (const wchar_t c : text) {
    seen |= c;
    *out++ = static_cast<char>(c);
  }
  if (seen < 0x80) {
    return;
  }
  bytes.resize(start);
  for (const wchar_t c : text) {
    bytes += AnsiOf(c);
    if (c >= kFirstSupplementary) {
      bytes += '?';  // Windows answers each half of the pair
    }
  }
}

std::wstring FromUtf16(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const wchar_t unit = static_cast<unsigned char>(bytes[i]) | static_cast<unsigned char>(bytes[i + 1]) << 8;
    if (IsLowHalf(unit) && !text.empty() && IsHighHalf(text.back())) {
      text.back() = kFirstSupplementary + ((text.back() - 0xD800) << 10) + (unit - 0xDC00);
    } else {
      text += unit;
    }
  }
  return text;
}

std::string ToUtf16(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(2 * text.size());
  for (const wchar_t c : text) {
    const char32_t code = static_cast<char32_t>(c);
    if (c < kFirstSupplementary) {
      AppendUnit(code, bytes);
    } else {
      AppendUnit(0xD800 + ((code - 0x10000) >> 10), bytes);
      AppendUnit(0xDC00 + (code & 0x3FF), bytes);
    }
  }
  return bytes;
}

}  // namespace folivant::platform
