// The filter test: which enumerated entries a listing keeps.
#pragma once

#include "base/Currency.h"
#include "platform/FindFiles.h"
#include "scan/FilterSettings.h"
#include "scan/NamePatterns.h"

namespace folivant {

Currency FileSizeOf(const platform::FindData& entry);

/// Name, size, date, attributes, in this order; the first test that is on and fails rejects the entry. The date test
/// converts the entry's last-write time in place, once for each limit it compares with: what FileDateOf says of that
/// holds here.
bool MatchesFilter(platform::FindData& entry, const FilterSettings& filter, const NamePatterns& patterns,
                   std::int64_t localOffset);

}  // namespace folivant
