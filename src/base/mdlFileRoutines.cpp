// Small text, path and number helpers.
#include "base/mdlFileRoutines.h"

#include <algorithm>
#include <cmath>

#include "platform/FindFiles.h"
#include "platform/Locale.h"

namespace folivant {

std::wstring Trim(std::wstring_view text) {
  const std::size_t first = text.find_first_not_of(L' ');
  return first == text.npos ? std::wstring()
                            : std::wstring(text.substr(first, text.find_last_not_of(L' ') - first + 1));
}

std::wstring StripNulls(std::wstring_view text) {
  return Trim(text.substr(0, text.find(L'\0')));
}

std::wstring AddBackslash(std::wstring_view text) {
  std::wstring result(text);
  if (!text.ends_with(L'\\')) {
    result += L'\\';
  }
  return result;
}

std::wstring WithBackslashes(std::wstring_view path) {
  std::wstring result(path);
  std::replace(result.begin(), result.end(), L'/', L'\\');
  return result;
}

void AppendGrouped(std::int64_t number, std::wstring& out) {
  const std::wstring& separator = platform::Locale().ThousandsSeparator;
  wchar_t digits[20];  // the last one first
  std::size_t count = 0;
  std::uint64_t rest = number < 0 ? 0U - static_cast<std::uint64_t>(number) : static_cast<std::uint64_t>(number);
  do {
    digits[count++] = static_cast<wchar_t>(L'0' + rest % 10);
    rest /= 10;
  } while (rest != 0);
  if (number < 0) {
    out += L'-';
  }
  while (count > 0) {
    out += digits[--count];
    if (count > 0 && count % 3 == 0) {
      out += separator;
    }
  }
}

std::wstring FormatGrouped(std::int64_t number) {
  std::wstring text;
  AppendGrouped(number, text);
  return text;
}

ScaledSize ScaleSize(Currency bytes) {
  std::size_t unit = 0;
  for (; bytes.Whole() >= 10'000 && unit + 1 < kSizeUnits; ++unit) {
    bytes = bytes.NextUnit();
  }
  return {bytes.Whole(), unit};
}

std::wstring FormatSizeFixedUnits(Currency bytes) {
  static constexpr const wchar_t* kUnits[kSizeUnits] = {L"b ", L"kb", L"Mb", L"Gb", L"Tb"};
  const ScaledSize size = ScaleSize(bytes);
  return FormatGrouped(size.Number) + L' ' + kUnits[size.Unit];
}

std::wstring ReplaceAll(std::wstring_view text, std::wstring_view search, std::wstring_view replacement) {
  std::wstring result(text);
  if (search.empty()) {
    return result;
  }
  for (std::size_t at = result.find(search); at != result.npos; at = result.find(search, at + replacement.size())) {
    result.replace(at, search.size(), replacement);
  }
  return result;
}

std::int16_t LastPosition(std::wstring_view text, std::wstring_view search) {
  const std::size_t found = text.rfind(search);
  return found == text.npos ? std::int16_t{0} : static_cast<std::int16_t>(found + 1);
}

std::wstring GetExtension(std::wstring_view path) {
  const std::wstring name = StripNulls(path);
  return name.substr(name.rfind(L'.') + 1);
}

std::wstring GetFileName(std::wstring_view path) {
  const std::wstring name = StripNulls(path);
  return name.substr(name.rfind(L'\\') + 1);
}

std::wstring GetFolder(std::wstring_view path) {
  const std::wstring name = StripNulls(path);
  const std::size_t last = name.rfind(L'\\');
  return last == name.npos ? std::wstring() : name.substr(0, last);
}

std::wstring RepeatText(std::int16_t count, std::wstring_view text) {
  std::wstring result;
  for (std::int16_t i = 0; i < count; ++i) {
    result += text;
  }
  return result;
}

bool FileExists(std::wstring_view path) {
  const std::optional<platform::FoundEntry> found = platform::FindEntry(path);
  constexpr std::uint32_t kNotNormal = platform::kHidden | platform::kSystem | platform::kDirectory;
  return found && (found->Data.Attributes & kNotNormal) == 0;
}

std::int32_t PositiveMod(std::int32_t a, std::int32_t b) {
  const std::int32_t remainder = a % b;
  return remainder < 0 ? remainder + b : remainder;
}

double RoundToStep(double value, double step, Rounding mode) {
  const double bias = mode == Rounding::Up ? 0.99999 : mode == Rounding::Nearest ? 0.5 : 0;
  return step * std::floor(value / step + bias);
}

}  // namespace folivant
