#include "platform/Text.h"

#include <algorithm>

#include "platform/win32/Win32.h"

namespace folivant::platform {
namespace {

/// The flags of the comparison and of its sort keys: they must be the same, or the orders differ.
constexpr DWORD kTextOrder = NORM_IGNORECASE | NORM_IGNOREKANATYPE | NORM_IGNOREWIDTH;

void MapCase(std::wstring_view text, wchar_t* out, DWORD how) {
  const wchar_t first = how == LCMAP_LOWERCASE ? L'A' : L'a';
  const int shift = how == LCMAP_LOWERCASE ? 32 : -32;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const wchar_t c = text[i];
    if (c >= 0x80) {
      const int rest = static_cast<int>(text.size() - i);
      if (LCMapStringW(LOCALE_USER_DEFAULT, how, text.data() + i, rest, out + i, rest) == 0) {
        text.substr(i).copy(out + i, text.size() - i);
      }
      return;
    }
    out[i] = c >= first && c < first + 26 ? static_cast<wchar_t>(c + shift) : c;
  }
}

}  // namespace

void LowerInto(std::wstring_view text, wchar_t* out) {
  MapCase(text, out, LCMAP_LOWERCASE);
}
void UpperInto(std::wstring_view text, wchar_t* out) {
  MapCase(text, out, LCMAP_UPPERCASE);
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
  return CompareStringW(LOCALE_USER_DEFAULT, kTextOrder, a.data(), static_cast<int>(a.size()), b.data(),
                        static_cast<int>(b.size())) -
         CSTR_EQUAL;
}

void AppendSortKey(std::wstring_view text, std::string& keys) {
  if (text.empty()) {
    return;
  }
  // On the first try the key goes straight to its place; ten bytes a character hold nearly every one.
  const std::size_t start = keys.size();
  const int length = static_cast<int>(text.size());
  keys.resize(start + text.size() * 10 + 16);
  const auto place = [&] { return reinterpret_cast<wchar_t*>(keys.data() + start); };  // LCMapString writes bytes there
  int made = LCMapStringW(LOCALE_USER_DEFAULT, LCMAP_SORTKEY | kTextOrder, text.data(), length, place(),
                          static_cast<int>(keys.size() - start));
  if (made == 0) {
    const int needed = LCMapStringW(LOCALE_USER_DEFAULT, LCMAP_SORTKEY | kTextOrder, text.data(), length, nullptr, 0);
    keys.resize(start + static_cast<std::size_t>(needed));
    made = LCMapStringW(LOCALE_USER_DEFAULT, LCMAP_SORTKEY | kTextOrder, text.data(), length, place(), needed);
  }
  keys.resize(start + static_cast<std::size_t>(std::max(made, 0)));
}

std::wstring FromAnsi(std::string_view bytes) {
  std::wstring result(bytes.size(), L'\0');
  const int made = MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()), result.data(),
                                       static_cast<int>(result.size()));
  result.resize(static_cast<std::size_t>(made));
  return result;
}

void AppendAnsi(std::wstring_view text, std::string& bytes) {
  if (text.empty()) {
    return;
  }
  const std::size_t start = bytes.size();
  const int length = static_cast<int>(text.size());
  constexpr std::size_t kWidest = 4;  // bytes of one code unit in any ANSI code page
  bytes.resize(start + text.size() * kWidest);
  const int made = WideCharToMultiByte(CP_ACP, 0, text.data(), length, bytes.data() + start,
                                       static_cast<int>(bytes.size() - start), nullptr, nullptr);
  bytes.resize(start + static_cast<std::size_t>(made));
}

std::string ToAnsi(std::wstring_view text) {
  std::string result;
  AppendAnsi(text, result);
  return result;
}

std::wstring FromUtf16(std::string_view bytes) {
  std::wstring result(bytes.size() / 2, L'\0');
  for (std::size_t i = 0; i < result.size(); ++i) {
    result[i] = static_cast<wchar_t>(static_cast<unsigned char>(bytes[2 * i]) |
                                     static_cast<unsigned char>(bytes[2 * i + 1]) << 8);
  }
  return result;
}

std::string ToUtf16(std::wstring_view text) {
  std::string result;
  result.reserve(text.size() * 2);
  for (const wchar_t unit : text) {
    result.push_back(static_cast<char>(unit & 0xFF));
    result.push_back(static_cast<char>(unit >> 8));
  }
  return result;
}

}  // namespace folivant::platform
