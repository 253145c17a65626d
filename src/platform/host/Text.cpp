#include "platform/Text.h"

#include <clocale>
#include <cwctype>

#include "platform/host/Host.h"

namespace folivant::platform {
namespace {

/// Case mapping of the whole of Unicode, whatever locale the process runs in.
locale_t CaseLocale() {
  static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return locale;
}

wchar_t Lower(wchar_t c) {
  if (c < 0x80) {
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + 32) : c;
  }
  return static_cast<wchar_t>(towlower_l(static_cast<wint_t>(c), CaseLocale()));
}

wchar_t Upper(wchar_t c) {
  if (c < 0x80) {
    return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - 32) : c;
  }
  return static_cast<wchar_t>(towupper_l(static_cast<wint_t>(c), CaseLocale()));
}

/// Characters 0x80 to 0x9F of code page 1252; 0 where it has none.
constexpr wchar_t kWestern[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                  0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char ToWestern(wchar_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
    return static_cast<char>(c);
  }
  for (std::size_t i = 0; i < std::size(kWestern); ++i) {
    if (kWestern[i] == c) {
      return static_cast<char>(0x80 + i);
    }
  }
  // The code points that the code page leaves open stand for themselves, as in the system's table.
  const bool open = c == 0x81 || c == 0x8D || c == 0x8F || c == 0x90 || c == 0x9D;
  return open ? static_cast<char>(c) : '?';
}

wchar_t FromWestern(char byte) {
  const unsigned char c = static_cast<unsigned char>(byte);
  const bool special = c >= 0x80 && c <= 0x9F && kWestern[c - 0x80] != 0;
  return special ? kWestern[c - 0x80] : static_cast<wchar_t>(c);
}

}  // namespace

void LowerInto(std::wstring_view text, wchar_t* out) {
  for (const wchar_t c : text) {
    *out++ = Lower(c);
  }
}

void UpperInto(std::wstring_view text, wchar_t* out) {
  for (const wchar_t c : text) {
    *out++ = Upper(c);
  }
}

std::wstring ToLower(std::wstring_view text) {
  std::wstring result(text.size(), L'\0');
  LowerInto(text, result.data());
  return result;
}

std::wstring ToUpper(std::wstring_view text) {
  std::wstring result(text.size(), L'\0');
  UpperInto(text, result.data());
  return result;
}

int CompareText(std::wstring_view a, std::wstring_view b) {
  for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
    const wchar_t left = Lower(a[i]);
    const wchar_t right = Lower(b[i]);
    if (left != right) {
      return left < right ? -1 : 1;
    }
  }
  return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

void AppendSortKey(std::wstring_view text, std::string& keys) {
  // UTF-8 orders as its code points do.
  for (const wchar_t c : text) {
    const wchar_t lower = Lower(c);
    if (lower < 0x80) {
      keys.push_back(static_cast<char>(lower));
    } else {
      keys += ToUtf8({&lower, 1});
    }
  }
}

std::wstring FromAnsi(std::string_view bytes) {
  std::wstring result(bytes.size(), L'\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    result[i] = FromWestern(bytes[i]);
  }
  return result;
}

void AppendAnsi(std::wstring_view text, std::string& bytes) {
  const std::size_t start = bytes.size();
  bytes.resize(start + text.size());
  char* out = bytes.data() + start;
  for (const wchar_t c : text) {
    *out++ = c < 0x80 ? static_cast<char>(c) : ToWestern(c);
  }
}

std::string ToAnsi(std::wstring_view text) {
  std::string result;
  AppendAnsi(text, result);
  return result;
}

std::wstring FromUtf16(std::string_view bytes) {
  const auto unit = [&](std::size_t i) {
    return static_cast<char32_t>(static_cast<unsigned char>(bytes[i]) | static_cast<unsigned char>(bytes[i + 1]) << 8);
  };
  std::wstring result;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    char32_t c = unit(i);
    if (c >= 0xD800 && c < 0xDC00 && i + 3 < bytes.size() && (unit(i + 2) & 0xFC00) == 0xDC00) {
      c = 0x10000 + ((c - 0xD800) << 10) + (unit(i + 2) - 0xDC00);
      i += 2;
    }
    result.push_back(static_cast<wchar_t>(c));
  }
  return result;
}

std::string ToUtf16(std::wstring_view text) {
  std::string result;
  const auto add = [&](char32_t unit) {
    result.push_back(static_cast<char>(unit & 0xFF));
    result.push_back(static_cast<char>(unit >> 8));
  };
  for (const wchar_t wide : text) {
    const char32_t c = static_cast<char32_t>(wide);
    if (c >= 0x10000) {
      add(0xD800 + ((c - 0x10000) >> 10));
      add(0xDC00 + ((c - 0x10000) & 0x3FF));
    } else {
      add(c);
    }
  }
  return result;
}

}  // namespace folivant::platform
