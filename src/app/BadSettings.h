// What a store or a filter file holds that cannot be used, and the one message that tells of it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Numbers.h"
#include "ui/Messages.h"

namespace folivant {

/// A stored value that does not convert.
struct BadSetting {
  std::wstring Location;  ///< the filter file, or the store's name
  std::wstring Key;
  std::wstring Value;
  std::optional<ValueLimits> Limits;  ///< what it would have to lie between, when it is a number or a day
};

/// The message for all of them; there is at least one.
std::wstring BadSettingsText(const std::vector<BadSetting>& bad, const Messages& texts);

}  // namespace folivant
