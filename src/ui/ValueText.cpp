// Sizes and dates as listings show them.
#include "ui/ValueText.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "base/mdlFileRoutines.h"
#include "platform/Locale.h"

namespace folivant {
namespace {

constexpr std::array<TextId, kSizeUnits> kUnits = {TextId::UnitBytes, TextId::UnitKilobytes, TextId::UnitMegabytes,
                                                   TextId::UnitGigabytes, TextId::UnitTerabytes};
constexpr std::size_t kUnitWidth = 2;

/// At least `digits` digits, with leading zeros; the last `digits` of a longer number.
void AppendDigits(int number, int digits, std::wstring& out) {
  const std::size_t start = out.size();
  out.append(static_cast<std::size_t>(digits), L'0');
  for (std::size_t at = out.size(); at > start; number /= 10) {
    out[--at] = static_cast<wchar_t>(L'0' + number % 10);
  }
}

/// One token of a date pattern: its letters, the part of the time that it shows, and with how many digits.
struct DateToken {
  std::wstring_view Letters;
  int platform::CalendarTime::*Part;
  int Digits;
};
constexpr DateToken kDateTokens[] = {
    {L"yyyy", &platform::CalendarTime::Year, 4}, {L"yy", &platform::CalendarTime::Year, 2},
    {L"mm", &platform::CalendarTime::Month, 2},  {L"dd", &platform::CalendarTime::Day, 2},
    {L"hh", &platform::CalendarTime::Hour, 2},   {L"nn", &platform::CalendarTime::Minute, 2},
};

const DateToken* TokenAt(std::wstring_view pattern) {
  for (const DateToken& token : kDateTokens) {
    if (pattern.front() == token.Letters.front() && pattern.starts_with(token.Letters)) {
      return &token;
    }
  }
  return nullptr;
}

}  // namespace

void AppendSize(Currency bytes, const Messages& texts, std::wstring& out) {
  const ScaledSize size = ScaleSize(bytes);
  AppendGrouped(size.Number, out);
  out += L' ';
  const std::wstring& unit = texts[kUnits[size.Unit]];
  out.append(unit, 0, kUnitWidth);
  out.append(kUnitWidth - std::min(unit.size(), kUnitWidth), L' ');
}

std::wstring FormatSize(Currency bytes, const Messages& texts) {
  std::wstring text;
  AppendSize(bytes, texts, text);
  return text;
}

std::wstring_view DatePatternOf(std::int32_t dateFormat) {
  static constexpr std::wstring_view kPatterns[] = {L"dd/mm/yy",   L"mm/dd/yy",   L"yy/mm/dd",
                                                    L"dd/mm/yyyy", L"mm/dd/yyyy", L"yyyy/mm/dd"};
  const bool known = dateFormat >= 0 && dateFormat < static_cast<std::int32_t>(std::size(kPatterns));
  return known ? kPatterns[dateFormat] : std::wstring_view();
}

void AppendDate(const platform::CalendarTime& time, std::wstring_view pattern, std::wstring& out) {
  while (!pattern.empty()) {
    if (const DateToken* token = TokenAt(pattern)) {
      AppendDigits(time.*token->Part, token->Digits, out);
      pattern.remove_prefix(token->Letters.size());
      continue;
    }
    if (pattern.front() == L'/') {
      out += platform::Locale().DateSeparator;
    } else {
      out += pattern.front();
    }
    pattern.remove_prefix(1);
  }
}

std::wstring FormatDate(const platform::CalendarTime& time, std::wstring_view pattern) {
  std::wstring text;
  AppendDate(time, pattern, text);
  return text;
}

}  // namespace folivant
