// Byte counts and their sums: a signed 64-bit integer scaled by 10,000, exact to four decimal places. Everything that a
// listing holds in it is a whole number.
#pragma once

#include <compare>
#include <cstdint>
#include <limits>

namespace folivant {

/// Sums saturate at the type's limit (about 922 terabytes) instead of wrapping round.
class Currency {
 public:
  constexpr Currency() = default;
  static constexpr Currency FromWhole(std::uint64_t whole) {
    return whole > static_cast<std::uint64_t>(kLargest / kScale) ? Currency(kLargest)
                                                                 : Currency(static_cast<std::int64_t>(whole) * kScale);
  }
  /// The value without its fraction.
  constexpr std::int64_t Whole() const { return scaled_ / kScale; }
  /// The integer part of the value divided by 1024: one step between size units.
  constexpr Currency NextUnit() const { return Currency(Whole() / 1024 * kScale); }

  constexpr Currency& operator+=(Currency other) {
    scaled_ = scaled_ > kLargest - other.scaled_ ? kLargest : scaled_ + other.scaled_;
    return *this;
  }
  constexpr auto operator<=>(const Currency&) const = default;

 private:
  static constexpr std::int64_t kScale = 10'000;
  static constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();
  constexpr explicit Currency(std::int64_t scaled) : scaled_(scaled) {}
  std::int64_t scaled_ = 0;
};

}  // namespace folivant
