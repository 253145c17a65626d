#include "ui/FieldText.h"

#include <array>
#include <cfenv>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/mdlFileRoutines.h"
#include "platform/Locale.h"

namespace folivant {
namespace {

bool IsDigit(wchar_t letter) {
  return letter >= L'0' && letter <= L'9';
}

/// The user's number as a C number: separators removed, the decimal one made a point. Empty when there is something in
/// it that no number has.
std::string PlainNumber(std::wstring_view typed) {
  const auto& locale = platform::Locale();
  const std::wstring text =
      ReplaceAll(ReplaceAll(Trim(typed), locale.ThousandsSeparator, L""), locale.DecimalSeparator, L".");
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isSign = i == 0 && (text[i] == L'-' || text[i] == L'+');
    if (!isSign && !IsDigit(text[i]) && text[i] != L'.') {
      return {};
    }
    if (text[i] != L'+') {
      plain += static_cast<char>(text[i]);
    }
  }
  return plain;
}

std::optional<double> ParseNumber(std::wstring_view typed) {
  const std::string plain = PlainNumber(typed);
  double value = 0;
  const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  const bool whole = end == plain.data() + plain.size();
  return !plain.empty() && error == std::errc() && whole ? std::optional(value) : std::nullopt;
}

/// The rounding mode of a process is to nearest, halves to even.
double Rounded(double value) {
  return std::nearbyint(value);
}

constexpr double kLowest = std::numeric_limits<std::int32_t>::min();
constexpr double kHighest = std::numeric_limits<std::int32_t>::max();

}  // namespace

std::optional<std::int32_t> ParseWholeNumber(std::wstring_view text) {
  const std::optional<double> number = ParseNumber(text);
  if (!number || Rounded(*number) < kLowest || Rounded(*number) > kHighest) {
    return std::nullopt;
  }
  return static_cast<std::int32_t>(Rounded(*number));
}

std::optional<float> ParseSingle(std::wstring_view text) {
  const std::optional<double> number = ParseNumber(text);
  if (!number || std::abs(*number) > std::numeric_limits<float>::max()) {
    return std::nullopt;
  }
  return static_cast<float>(*number);
}

std::int32_t LeadingWholeNumber(std::wstring_view text) {
  const std::wstring trimmed = Trim(text);
  std::size_t length = !trimmed.empty() && (trimmed[0] == L'-' || trimmed[0] == L'+') ? 1 : 0;
  bool hasPoint = false;
  while (length < trimmed.size() && (IsDigit(trimmed[length]) || (trimmed[length] == L'.' && !hasPoint))) {
    hasPoint = hasPoint || trimmed[length] == L'.';
    ++length;
  }
  std::string plain;
  for (const wchar_t letter : std::wstring_view(trimmed).substr(0, length)) {
    if (letter != L'+') {
      plain += static_cast<char>(letter);
    }
  }
  double value = 0;
  std::from_chars(plain.data(), plain.data() + plain.size(), value);
  return static_cast<std::int32_t>(Clamp(Rounded(value), kLowest, kHighest));
}

std::wstring SingleText(float value) {
  std::array<char, 64> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 7);
  std::wstring text(buffer.data(), result.ptr);
  return ReplaceAll(text, L".", platform::Locale().DecimalSeparator);
}

std::wstring FieldName(std::wstring_view caption) {
  std::wstring name = Trim(ReplaceAll(caption, L"&", L""));
  // French has a blank that does not break before the colon.
  name.erase(name.find_last_not_of(L": \u00A0") + 1);
  return name;
}

}  // namespace folivant
