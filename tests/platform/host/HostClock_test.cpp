// The host build's own way to the zone.
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/Clock.h"

namespace folivant::platform {
namespace {

TEST(HostClock, AsksForTheZoneAnew) {
  const char* const before = std::getenv("TZ");
  const std::string zone = before == nullptr ? "" : before;
  constexpr std::int64_t kHour = std::int64_t{36'000'000'000};
  setenv("TZ", "XXX-3:30", 1);  // ahead of UTC
  EXPECT_EQ(LocalOffset(), 7 * kHour / 2);
  setenv("TZ", "XXX+2", 1);
  EXPECT_EQ(LocalOffset(), -2 * kHour);
  before == nullptr ? unsetenv("TZ") : setenv("TZ", zone.c_str(), 1);
}

}  // namespace
}  // namespace folivant::platform
