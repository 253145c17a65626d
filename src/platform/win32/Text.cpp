// Letter case, order and code page from the system, with a short way for ASCII: most names have nothing else.
#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "platform/win32/Win32.h"

namespace folivant::platform {
namespace {

/// The flags of the comparison and of its sort keys: they must be the same, or the orders differ.
constexpr DWORD kCompare = NORM_IGNORECASE | NORM_IGNOREKANATYPE | NORM_IGNOREWIDTH;

bool IsAscii(std::wstring_view text) {
  unsigned seen = 0;
  for (const wchar_t c : text) {
    seen |= c;
  }
  return seen < 0x80;
}

/// The system is asked for texts with other than ASCII letters only: most names have none.
void MapCase(std::wstring_view text, wchar_t* out, DWORD map) {
  const wchar_t first = map == LCMAP_LOWERCASE ? L'A' : L'a';
  const wchar_t last = map == LCMAP_LOWERCASE ? L'Z' : L'z';
  if (IsAscii(text)) {
    std::transform(text.begin(), text.end(), out,
                   [=](wchar_t c) { return static_cast<wchar_t>(c >= first && c <= last ? c ^ 0x20 : c); });
    return;
  }
  const int length = static_cast<int>(text.size());
  if (LCMapStringW(LOCALE_USER_DEFAULT, map, text.data(), length, out, length) != length) {
    std::copy(text.begin(), text.end(), out);
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
  const int result = CompareStringW(LOCALE_USER_DEFAULT, kCompare, a.data(), static_cast<int>(a.size()), b.data(),
                                    static_cast<int>(b.size()));
  return result - CSTR_EQUAL;
}

void AppendSortKey(std::wstring_view text, std::string& keys, Digits digits) {
  if (text.empty()) {
    text = std::wstring_view(L"", 1);  // NUL weighs nothing, like nothing, and an empty text is refused
  }
  const int length = static_cast<int>(text.size());
  const DWORD flags = LCMAP_SORTKEY | kCompare | (digits == Digits::AsNumbers ? SORT_DIGITSASNUMBERS : 0);
  std::array<char, 1024> small;
  const auto map = [&](char* key, int size) {
    return LCMapStringW(LOCALE_USER_DEFAULT, flags, text.data(), length, reinterpret_cast<wchar_t*>(key), size);
  };
  const int size = map(small.data(), static_cast<int>(small.size()));
  if (size > 0) {
    keys.append(small.data(), static_cast<std::size_t>(size) - 1);  // without its NUL
    return;
  }
  const std::size_t start = keys.size();
  const int needed = map(nullptr, 0);
  if (needed <= 0) {
    return;  // refused: sorts first
  }
  keys.resize(start + static_cast<std::size_t>(needed));
  map(keys.data() + start, needed);
  keys.pop_back();
}

std::wstring FromAnsi(std::string_view bytes) {
  std::wstring text(bytes.size(), L'\0');  // no code page makes more units than bytes
  if (!bytes.empty()) {
    const int size = static_cast<int>(bytes.size());
    text.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, text.data(), size)));
  }
  return text;
}

std::string ToAnsi(std::wstring_view text) {
  std::string bytes;
  AppendAnsi(text, bytes);
  return bytes;
}

void AppendAnsi(std::wstring_view text, std::string& bytes) {
  const std::size_t start = bytes.size();
  if (IsAscii(text)) {
    bytes.resize(start + text.size());
    std::transform(text.begin(), text.end(), bytes.data() + start, [](wchar_t c) { return static_cast<char>(c); });
    return;
  }
  const int length = static_cast<int>(text.size());
  const int room = 3 * length;  // three bytes for one unit is what UTF-8 needs at most, other code pages two
  bytes.resize(start + static_cast<std::size_t>(room));
  const int size = WideCharToMultiByte(CP_ACP, 0, text.data(), length, bytes.data() + start, room, nullptr, nullptr);
  bytes.resize(start + static_cast<std::size_t>(size));
}

std::wstring FromUtf16(std::string_view bytes) {
  std::wstring text(bytes.size() / 2, L'\0');
  std::memcpy(text.data(), bytes.data(), 2 * text.size());
  return text;
}

std::string ToUtf16(std::wstring_view text) {
  std::string bytes(2 * text.size(), '\0');
  std::memcpy(bytes.data(), text.data(), bytes.size());
  return bytes;
}

}  // namespace folivant::platform
