// A millisecond stopwatch over the multimedia timer. The program does not measure itself: it is here for whoever works
// on it and for the tests of the seam's timer.
#pragma once

#include <cstdint>

#include "platform/Clock.h"

namespace folivant {

class CStopWatch {
 public:
  CStopWatch() : periods_(platform::TimerCapabilities()), startTime_(platform::TimerMilliseconds()) {}

  /// Milliseconds since the start or the last Reset; right across the timer's wrap at 32 bits (about every 49.7 days).
  std::uint32_t Elapsed() const { return platform::TimerMilliseconds() - startTime_; }
  /// Milliseconds.
  std::uint32_t MinimumResolution() const { return periods_.Minimum; }
  std::uint32_t MaximumResolution() const { return periods_.Maximum; }
  void Reset() { startTime_ = platform::TimerMilliseconds(); }

 private:
  platform::TimerPeriods periods_;
  std::uint32_t startTime_;
};

}  // namespace folivant
