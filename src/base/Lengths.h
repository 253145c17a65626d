// Lengths as they are compared. On paper the same length is reached in different ways (dots of the device, margins in
// inches or millimetres, sums of both), and as fractions of a twip the results differ by rounding alone.
#pragma once

#include <cstddef>

namespace folivant {

/// Lengths that differ by less count as equal. A hundredth of a twip is 144,000 to the inch, far below any device's dot
/// and far above what rounding leaves; of pixels and characters, which are whole, it changes nothing.
inline constexpr double kLengthSlack = 0.01;

constexpr bool IsShorter(double length, double than) {
  return length < than - kLengthSlack;
}
constexpr bool IsLonger(double length, double than) {
  return IsShorter(than, length);
}

/// The largest count up to `most` that `fits`, by halving, because measuring text is slow: what fits has to fit with
/// less, too. 0 when nothing else fits.
template <class Fits>
std::size_t LargestFitting(std::size_t most, Fits fits) {
  std::size_t fitting = 0;
  std::size_t tooMany = most + 1;
  while (fitting + 1 < tooMany) {
    const std::size_t middle = fitting + (tooMany - fitting) / 2;
    if (fits(middle)) {
      fitting = middle;
    } else {
      tooMany = middle;
    }
  }
  return fitting;
}

}  // namespace folivant
