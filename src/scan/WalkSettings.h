// What a walk reads besides the tree itself. The records belong to the caller and outlive the walk.
#pragma once

#include <cstdint>
#include <string>

#include "base/GeneralSettings.h"
#include "scan/FilterSettings.h"
#include "scan/ListingFormat.h"
#include "scan/NamePatterns.h"
#include "ui/Messages.h"

namespace folivant {

struct WalkSettings {
  const FilterSettings& Filter;
  const NamePatterns& Patterns;  ///< of Filter.FilterName
  const ListingFormat& Format;
  const GeneralSettings& General;
  const Messages& Texts;
  const std::wstring& DatePattern;
  std::int64_t LocalOffset;  ///< of platform/Clock.h, asked for at the start of the run
};

}  // namespace folivant
