// One directory of the directory view, with its own counts and those of everything below it. In an event its texts are
// valid until the handler returns.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/Currency.h"

namespace folivant {

struct DirNode {
  std::wstring_view Name;  ///< as on disk; the start path for the first node
  std::wstring_view Path;  ///< as shown
  std::int32_t Level = 0;
  std::int32_t Files = 0;
  Currency Size;
  std::int32_t TotalFiles = 0;  ///< with everything below
  Currency TotalSize;
  std::wstring_view PathOnDisk = {};
};

}  // namespace folivant
