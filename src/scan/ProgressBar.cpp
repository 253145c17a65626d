#include "scan/ProgressBar.h"

#include "base/mdlFileRoutines.h"

namespace folivant {
namespace {

constexpr std::int32_t kWhole = 100;
constexpr float kSlowing = 0.05F;

}  // namespace

void CreepingBar::SetProgress(std::int32_t share) {
  target_ = MinValue(target_ + share, kWhole);
}

bool CreepingBar::Tick() {
  shown_ += step_;
  step_ -= kSlowing;
  return shown_ >= static_cast<float>(target_);
}

float CreepingBar::Value() const {
  return MaxValue(static_cast<float>(target_), shown_);
}

}  // namespace folivant
