// Setting values as text and back: one reader and one writer for each type that a setting can have.
#include "app/SettingValue.h"

#include <algorithm>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "base/mdlFileRoutines.h"
#include "platform/Text.h"

namespace folivant {
namespace {

NumberRead<bool> ToFlag(const std::wstring& text) {
  const std::wstring lower = platform::ToLower(text);
  if (lower == L"true" || lower == L"false") {
    return {lower == L"true"};
  }
  const NumberRead<double> number = ReadFraction<double>(text, NumberSource::Stored);
  return number.Value ? NumberRead<bool>{*number.Value != 0} : NumberRead<bool>{};
}

int DaysOf(int year, int month) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  return kDays[month - 1] + (month == 2 && leap ? 1 : 0);
}

/// Year, month and day with any one character between them.
std::optional<platform::CalendarTime> ToCalendarDay(std::wstring_view text) {
  platform::CalendarTime day;
  for (int* const part : {&day.Year, &day.Month, &day.Day}) {
    if (part != &day.Year) {
      if (text.empty()) {
        return std::nullopt;
      }
      text.remove_prefix(1);
    }
    const std::optional<std::int32_t> number = TakeDigits(text);
    if (!number) {
      return std::nullopt;
    }
    *part = *number;
  }
  const bool isDay =
      text.empty() && day.Month >= 1 && day.Month <= 12 && day.Day >= 1 && day.Day <= DaysOf(day.Year, day.Month);
  return isDay ? std::optional(day) : std::nullopt;
}

NumberRead<DateValue> ToDay(std::wstring_view text) {
  const std::optional<platform::CalendarTime> day = ToCalendarDay(text);
  if (!day) {
    return {};
  }
  const auto order = [](const platform::CalendarTime& each) { return std::tuple(each.Year, each.Month, each.Day); };
  if (order(*day) < order(kFirstFilterDay) || order(*day) > order(kLastFilterDay)) {
    return {std::nullopt, true};
  }
  return {ToDateValue(*day)};
}

std::wstring DayText(const platform::CalendarTime& day) {
  return PaddedText(day.Year, 4) + L'/' + PaddedText(day.Month, 2) + L'/' + PaddedText(day.Day, 2);
}

/// Whether the first `count` characters are digits up to `highest`; what follows them is not looked at.
bool AreDigits(const std::wstring& text, std::size_t count, wchar_t highest) {
  return text.size() >= count && std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(count),
                                             [highest](wchar_t c) { return c >= L'0' && c <= highest; });
}

constexpr Refusal kNoValue{};

template <class Value, class Target, class Limits>
std::optional<Refusal> Take(const NumberRead<Value>& read, Target* target, Limits limits) {
  if (!read.Value) {
    return read.OutOfRange ? Refusal{limits()} : kNoValue;
  }
  *target = static_cast<Target>(*read.Value);
  return std::nullopt;
}

template <class Target>
std::optional<Refusal> TakeWhole(std::wstring_view text, Target* target, WholeRange range) {
  return Take(ReadWhole(text, NumberSource::Stored, range), target, [range] { return LimitsAsStored(range); });
}

struct Reader {
  const std::wstring& Text;
  const std::wstring Trimmed = Trim(Text);

  std::optional<Refusal> operator()(std::wstring* member) const {
    *member = Text;
    return std::nullopt;
  }
  std::optional<Refusal> operator()(bool* member) const {
    return Take(ToFlag(Trimmed), member, [] { return std::nullopt; });
  }
  std::optional<Refusal> operator()(float* member) const {
    return Take(ReadFraction<float>(Trimmed, NumberSource::Stored), member, SingleLimits);
  }
  std::optional<Refusal> operator()(const RangedMember& member) const {
    return Take(ReadWhole(Trimmed, NumberSource::Stored, member.Range), member.Number,
                [&member] { return LimitsAsStored(member.ToldRange); });
  }
  std::optional<Refusal> operator()(const DayMember& member) const {
    return Take(ToDay(Trimmed), member.Date, [] {
      return ValueLimits{DayText(kFirstFilterDay), DayText(kLastFilterDay)};
    });
  }
  std::optional<Refusal> operator()(const SwitchGroup& member) const {
    if (!AreDigits(Trimmed, member.Flags.size(), L'9')) {
      return kNoValue;
    }
    for (std::size_t i = 0; i < member.Flags.size(); ++i) {
      *member.Flags[i] = Trimmed[i] != L'0';
    }
    return std::nullopt;
  }
  std::optional<Refusal> operator()(std::array<AttributeChoice, 5>* member) const {
    if (!AreDigits(Trimmed, member->size(), L'2')) {
      return kNoValue;
    }
    for (std::size_t i = 0; i < member->size(); ++i) {
      (*member)[i] = static_cast<AttributeChoice>(Trimmed[i] - L'0');
    }
    return std::nullopt;
  }
  std::optional<Refusal> operator()(OutputTarget* member) const {
    std::int32_t code = -1;
    std::optional<Refusal> refusal = TakeWhole(Trimmed, &code, {});
    if (code >= 0 && code <= static_cast<std::int32_t>(OutputTarget::Screen)) {
      *member = static_cast<OutputTarget>(code);
    }
    return refusal;  // another code leaves the destination as it was
  }
  /// Whole numbers, and codes of which any number of their width is one.
  template <class Number>
  std::optional<Refusal> operator()(Number* member) const {
    if constexpr (std::is_enum_v<Number>) {
      return TakeWhole(Trimmed, member, kRangeOf<std::underlying_type_t<Number>>);
    } else {
      return TakeWhole(Trimmed, member, kRangeOf<Number>);
    }
  }
};

struct Writer {
  std::wstring operator()(const std::wstring* member) const { return *member; }
  std::wstring operator()(const bool* member) const { return *member ? L"True" : L"False"; }
  std::wstring operator()(const float* member) const { return SingleText(*member); }
  std::wstring operator()(const RangedMember& member) const { return WholeText(*member.Number); }
  std::wstring operator()(const DayMember& member) const { return DayText(ToCalendarTime(*member.Date)); }
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
    return WholeText(static_cast<std::int32_t>(*member));
  }
};

}  // namespace

std::optional<Refusal> ReadMember(const SettingMember& member, const std::wstring& text) {
  return std::visit(Reader{text}, member);
}

std::wstring MemberText(const SettingMember& member) {
  return std::visit(Writer{}, member);
}

}  // namespace folivant
