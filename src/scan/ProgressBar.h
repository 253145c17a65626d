// The numbers behind the progress bar: the reported share of the run, and the creep that lets the bar move at the start
// of a long scan before anything was reported.
#pragma once

#include <cstdint>

namespace folivant {

class CreepingBar {
 public:
  /// Adds a finished share in percent points; the sum stops at 100.
  void SetProgress(std::int32_t share);
  /// One second has passed. The creep slows down, comes to rest after about twenty ticks and then sinks again, on
  /// purpose. False once it has fallen below the real progress: no tick is needed any more.
  bool Tick();
  /// What the bar shows, in percent: the larger of progress and creep, never below the progress.
  float Value() const;

 private:
  std::int32_t target_ = 0;
  float shown_ = 0;
  float step_ = 1.0F;
};

}  // namespace folivant
