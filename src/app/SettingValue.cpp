#include "app/SettingValue.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string_view>
#include <type_traits>

#include "base/mdlFileRoutines.h"
#include "platform/Locale.h"
#include "platform/Text.h"

namespace folivant {
namespace {

/// The text as plain characters for the standard conversions; nothing when it holds any other.
std::optional<std::string> Plain(std::wstring_view text) {
  std::string plain;
  for (const wchar_t c : text) {
    if (c < L' ' || c > L'~') {
      return std::nullopt;
    }
    plain += static_cast<char>(c);
  }
  return plain;
}

template <class Number>
std::optional<Number> ToNumber(std::wstring_view text) {
  const std::optional<std::string> plain = Plain(text);
  if (!plain) {
    return std::nullopt;
  }
  const char* const first = plain->data() + (plain->starts_with('+') ? 1 : 0);
  const char* const last = plain->data() + plain->size();
  Number number{};
  const auto [end, error] = std::from_chars(first, last, number);
  return error == std::errc() && end == last ? std::optional(number) : std::nullopt;
}

/// The user's decimal separator or a point, so that a filter file from another country is read as it was meant.
template <class Number>
std::optional<Number> ToFraction(const std::wstring& text) {
  const auto number = ToNumber<Number>(ReplaceAll(text, platform::Locale().DecimalSeparator, L"."));
  return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<bool> ToFlag(const std::wstring& text) {
  const std::wstring lower = platform::ToLower(text);
  if (lower == L"true" || lower == L"false") {
    return lower == L"true";
  }
  const auto number = ToFraction<double>(text);
  return number ? std::optional(*number != 0) : std::nullopt;
}

/// A fraction is rounded, halves to even, as in the text boxes.
template <class Whole>
std::optional<Whole> ToWhole(const std::wstring& text) {
  const auto number = ToFraction<double>(text);
  const double rounded = std::nearbyint(number.value_or(std::numeric_limits<double>::quiet_NaN()));
  const bool fits = rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max();
  return fits ? std::optional(static_cast<Whole>(rounded)) : std::nullopt;
}

std::wstring SingleText(float number) {
  char buffer[32];
  const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, number);
  return ReplaceAll(std::wstring(buffer, end), L".", platform::Locale().DecimalSeparator);
}

int DaysOf(int year, int month) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  return kDays[month - 1] + (month == 2 && leap ? 1 : 0);
}

/// Takes the leading digits off `text`.
std::optional<int> TakeNumber(std::wstring_view& text) {
  const std::size_t count = std::min(text.find_first_not_of(L"0123456789"), text.size());
  const auto number = ToNumber<int>(text.substr(0, count));
  text.remove_prefix(count);
  return number;
}

/// Year, month and day with any one character between them.
std::optional<DateValue> ToDay(std::wstring_view text) {
  platform::CalendarTime day;
  for (int* const part : {&day.Year, &day.Month, &day.Day}) {
    if (part != &day.Year) {
      if (text.empty()) {
        return std::nullopt;
      }
      text.remove_prefix(1);
    }
    const std::optional<int> number = TakeNumber(text);
    if (!number) {
      return std::nullopt;
    }
    *part = *number;
  }
  const bool valid = text.empty() && day.Year >= 100 && day.Year <= 9999 && day.Month >= 1 && day.Month <= 12 &&
                     day.Day >= 1 && day.Day <= DaysOf(day.Year, day.Month);
  return valid ? std::optional(ToDateValue(day)) : std::nullopt;
}

std::wstring Padded(int number, std::size_t width) {
  const std::wstring digits = std::to_wstring(number);
  return std::wstring(width - std::min(width, digits.size()), L'0') + digits;
}

std::wstring DayText(DateValue date) {
  const platform::CalendarTime day = ToCalendarTime(date);
  return Padded(day.Year, 4) + L'/' + Padded(day.Month, 2) + L'/' + Padded(day.Day, 2);
}

/// Whether the first `count` characters are digits up to `highest`; what follows them is not looked at.
bool AreDigits(const std::wstring& text, std::size_t count, wchar_t highest) {
  return text.size() >= count && std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(count),
                                             [highest](wchar_t c) { return c >= L'0' && c <= highest; });
}

template <class Value, class Target>
bool Take(const std::optional<Value>& value, Target* target) {
  if (value) {
    *target = static_cast<Target>(*value);
  }
  return value.has_value();
}

struct Reader {
  const std::wstring& Text;
  const std::wstring Trimmed = Trim(Text);

  bool operator()(std::wstring* member) const { return *member = Text, true; }
  bool operator()(bool* member) const { return Take(ToFlag(Trimmed), member); }
  bool operator()(float* member) const { return Take(ToFraction<float>(Trimmed), member); }
  bool operator()(const DayMember& member) const { return Take(ToDay(Trimmed), member.Date); }
  bool operator()(const SwitchGroup& member) const {
    if (!AreDigits(Trimmed, member.Flags.size(), L'9')) {
      return false;
    }
    for (std::size_t i = 0; i < member.Flags.size(); ++i) {
      *member.Flags[i] = Trimmed[i] != L'0';
    }
    return true;
  }
  bool operator()(std::array<AttributeChoice, 5>* member) const {
    if (!AreDigits(Trimmed, member->size(), L'2')) {
      return false;
    }
    std::transform(Trimmed.begin(), Trimmed.begin() + 5, member->begin(),
                   [](wchar_t c) { return static_cast<AttributeChoice>(c - L'0'); });
    return true;
  }
  bool operator()(OutputTarget* member) const {
    const auto code = ToWhole<std::int32_t>(Trimmed);
    if (code && *code >= 0 && *code <= static_cast<std::int32_t>(OutputTarget::Screen)) {
      *member = static_cast<OutputTarget>(*code);
    }
    return code.has_value();  // another code leaves the destination as it was
  }
  template <class Number>
  bool operator()(Number* member) const {  // whole numbers, and codes of which any number of their width is one
    if constexpr (std::is_enum_v<Number>) {
      return Take(ToWhole<std::underlying_type_t<Number>>(Trimmed), member);
    } else {
      return Take(ToWhole<Number>(Trimmed), member);
    }
  }
};

struct Writer {
  std::wstring operator()(const std::wstring* member) const { return *member; }
  std::wstring operator()(const bool* member) const { return *member ? L"True" : L"False"; }
  std::wstring operator()(const float* member) const { return SingleText(*member); }
  std::wstring operator()(const DayMember& member) const { return DayText(*member.Date); }
  std::wstring operator()(const SwitchGroup& member) const {
    std::wstring digits;
    for (const bool* flag : member.Flags) {
      digits += *flag ? L'1' : L'0';
    }
    return digits;
  }
  std::wstring operator()(const std::array<AttributeChoice, 5>* member) const {
    std::wstring digits;
    for (const AttributeChoice choice : *member) {
      digits += static_cast<wchar_t>(L'0' + static_cast<int>(choice));
    }
    return digits;
  }
  template <class Number>
  std::wstring operator()(const Number* member) const {
    return std::to_wstring(static_cast<std::int32_t>(*member));
  }
};

}  // namespace

bool ReadMember(const SettingMember& member, const std::wstring& text) {
  return std::visit(Reader{text}, member);
}

std::wstring MemberText(const SettingMember& member) {
  return std::visit(Writer{}, member);
}

}  // namespace folivant
