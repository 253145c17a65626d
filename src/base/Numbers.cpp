// A text is taken apart from left to right into the form that the standard conversions understand, which know no
// locale. Sign and digits come before any question about separators, so that a plain whole number means the same
// everywhere, whatever the user has made a separator.
#include "base/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "base/mdlFileRoutines.h"
#include "platform/Locale.h"

namespace folivant {
namespace {

constexpr std::size_t kGroupDigits = 3;

bool IsDigit(wchar_t letter) {
  return letter >= L'0' && letter <= L'9';
}

std::size_t DigitsAt(std::wstring_view text) {
  return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), IsDigit) - text.begin());
}

/// Systems separate thousands by blanks and apostrophes that keyboards do not have; the plain ones are typed instead.
wchar_t AsTyped(wchar_t letter) {
  switch (letter) {
    case L'\u00A0':  // no-break space
    case L'\u202F':  // narrow no-break space
      return L' ';
    case L'\u2019':  // typographic apostrophe
      return L'\'';
    default:
      return letter;
  }
}

/// The length of `separator` where `text` begins with it; 0 where it does not.
std::size_t SeparatorAt(std::wstring_view text, std::wstring_view separator) {
  const bool found =
      text.size() >= separator.size() && std::equal(separator.begin(), separator.end(), text.begin(),
                                                    [](wchar_t a, wchar_t b) { return AsTyped(a) == AsTyped(b); });
  return found ? separator.size() : 0;
}

/// Three digits and no fourth.
bool StartsWithGroup(std::wstring_view text) {
  return DigitsAt(text) == kGroupDigits;
}

/// Whether groups can follow: "0,500" is no number of thousands, and neither is "1234,567".
bool CanBeGrouped(std::wstring_view digits) {
  return !digits.empty() && digits.size() <= kGroupDigits && digits.front() != L'0';
}

enum class Exponent { Refused, Taken };

/// The number that a text begins with.
class Spelling {
 public:
  /// `text` outlives it.
  Spelling(std::wstring_view text, NumberSource source, Exponent exponent) : rest_(text) {
    TakeSign();
    const std::wstring_view whole = rest_.substr(0, DigitsAt(rest_));
    TakeDigits(whole.size());
    if (source == NumberSource::Typed && CanBeGrouped(whole)) {
      TakeGroups();
    }
    TakeFraction(source, CanBeGrouped(whole));
    if (exponent == Exponent::Taken && HasDigits()) {
      TakeExponent();
    }
  }

  bool HasDigits() const { return plain_.find_first_of("0123456789") != plain_.npos; }
  /// Whether what was taken for a decimal mark could as well separate thousands.
  bool IsAmbiguous() const { return ambiguous_; }
  bool IsWholeText() const { return HasDigits() && rest_.empty(); }

  template <class Number>
  NumberRead<Number> Value() const {
    Number number{};
    const auto [end, error] = std::from_chars(plain_.data(), plain_.data() + plain_.size(), number);
    return error == std::errc() ? NumberRead<Number>{number} : NumberRead<Number>{std::nullopt, true};
  }

 private:
  void TakeSign() {
    if (rest_.starts_with(L'-')) {
      plain_ += '-';
    }
    if (rest_.starts_with(L'-') || rest_.starts_with(L'+')) {
      rest_.remove_prefix(1);
    }
  }

  void TakeDigits(std::size_t count) {
    for (const wchar_t digit : rest_.substr(0, count)) {
      plain_ += static_cast<char>(digit);
    }
    rest_.remove_prefix(count);
  }

  std::size_t OwnMark() const { return SeparatorAt(rest_, platform::Locale().DecimalSeparator); }
  std::size_t GroupMark() const {
    return OwnMark() > 0 ? 0 : SeparatorAt(rest_, platform::Locale().ThousandsSeparator);
  }

  void TakeGroups() {
    for (std::size_t mark = GroupMark(); mark > 0 && StartsWithGroup(rest_.substr(mark)); mark = GroupMark()) {
      rest_.remove_prefix(mark);
      TakeDigits(kGroupDigits);
      grouped_ = true;
    }
  }

  void TakeFraction(NumberSource source, bool couldBeGrouped) {
    const bool own = OwnMark() > 0;
    // A separator of thousands that has counted as one is no decimal mark in the same number.
    const bool foreign = (rest_.starts_with(L'.') || rest_.starts_with(L',')) && !(grouped_ && GroupMark() > 0);
    const std::wstring_view fraction = rest_.substr(std::min(own ? OwnMark() : 1, rest_.size()));
    if ((!own && !foreign) || (!HasDigits() && DigitsAt(fraction) == 0)) {
      return;
    }
    const bool certain = grouped_ || (own && source == NumberSource::Typed);
    ambiguous_ = !certain && couldBeGrouped && StartsWithGroup(fraction);
    plain_ += '.';
    rest_ = fraction;
    TakeDigits(DigitsAt(rest_));
  }

  /// "1e+20": very large and very small numbers are written with one.
  void TakeExponent() {
    const std::size_t sign = rest_.find_first_of(L"+-") == 1 ? 1 : 0;
    const bool found = rest_.starts_with(L'e') || rest_.starts_with(L'E');
    if (found && DigitsAt(rest_.substr(1 + sign)) > 0) {
      plain_ += 'e';
      rest_.remove_prefix(1);
      TakeSign();
      TakeDigits(DigitsAt(rest_));
    }
  }

  std::wstring_view rest_;  ///< what is not taken yet
  std::string plain_;       ///< what is taken, with a point as its decimal mark
  bool grouped_ = false;
  bool ambiguous_ = false;
};

NumberRead<std::int32_t> Rounded(const NumberRead<double>& number, WholeRange range) {
  if (!number.Value) {
    return {std::nullopt, number.OutOfRange};
  }
  const double whole = std::nearbyint(*number.Value);  // a process rounds halves to even
  if (whole < range.Lowest || whole > range.Highest) {
    return {std::nullopt, true};
  }
  return {static_cast<std::int32_t>(whole)};
}

}  // namespace

NumberRead<std::int32_t> ReadWhole(std::wstring_view text, NumberSource source, WholeRange range) {
  const std::wstring trimmed = Trim(text);
  const Spelling spelling(trimmed, source, source == NumberSource::Stored ? Exponent::Taken : Exponent::Refused);
  if (!spelling.IsWholeText() || spelling.IsAmbiguous()) {
    return {};
  }
  return Rounded(spelling.Value<double>(), range);
}

NumberRead<std::int32_t> ReadLeadingWhole(std::wstring_view text, WholeRange range) {
  const std::wstring trimmed = Trim(text);
  const Spelling spelling(trimmed, NumberSource::Typed, Exponent::Refused);
  return Rounded(spelling.HasDigits() ? spelling.Value<double>() : NumberRead<double>{0.0}, range);
}

template <class Fraction>
NumberRead<Fraction> ReadFraction(std::wstring_view text, NumberSource source) {
  const std::wstring trimmed = Trim(text);
  const Spelling spelling(trimmed, source, Exponent::Taken);
  return spelling.IsWholeText() ? spelling.Value<Fraction>() : NumberRead<Fraction>{};
}
template NumberRead<float> ReadFraction<float>(std::wstring_view text, NumberSource source);
template NumberRead<double> ReadFraction<double>(std::wstring_view text, NumberSource source);

std::optional<std::int32_t> ReadPlainWhole(std::wstring_view text) {
  const std::wstring_view digits = text.substr(text.starts_with(L'-') || text.starts_with(L'+') ? 1 : 0);
  if (digits.empty() || DigitsAt(digits) != digits.size()) {
    return std::nullopt;
  }
  return ReadWhole(text, NumberSource::Stored).Value;
}

std::optional<std::int32_t> TakeDigits(std::wstring_view& text) {
  const std::wstring_view digits = text.substr(0, DigitsAt(text));
  text.remove_prefix(digits.size());
  return ReadPlainWhole(digits);
}

std::wstring WholeText(std::int32_t number) {
  return std::to_wstring(number);
}

std::wstring PaddedText(std::int32_t number, std::size_t width) {
  const std::wstring digits = WholeText(number);
  return std::wstring(width - std::min(width, digits.size()), L'0') + digits;
}

std::wstring SingleText(float number) {
  char buffer[32];
  const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, number);
  return ReplaceAll(std::wstring(buffer, end), L".", platform::Locale().DecimalSeparator);
}

ValueLimits LimitsAsStored(WholeRange range) {
  return {WholeText(range.Lowest), WholeText(range.Highest)};
}

ValueLimits LimitsAsTyped(WholeRange range) {
  return {FormatGrouped(range.Lowest), FormatGrouped(range.Highest)};
}

ValueLimits SingleLimits() {
  return {SingleText(std::numeric_limits<float>::lowest()), SingleText(std::numeric_limits<float>::max())};
}

}  // namespace folivant
