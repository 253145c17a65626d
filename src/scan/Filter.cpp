#include "scan/Filter.h"

#include "scan/FileDates.h"

namespace folivant {
namespace {

bool MatchesSize(const platform::FindData& entry, const FilterSettings& filter) {
  const std::int64_t limit = std::int64_t{filter.FilterSize} * 1024;
  const std::int64_t size = FileSizeOf(entry).Whole();
  return filter.SizeMin ? size >= limit : size <= limit;
}

bool MatchesDate(platform::FindData& entry, const FilterSettings& filter, std::int64_t localOffset) {
  return FileDateOf(entry.LastWrite, localOffset) >= filter.DateMin &&
         FileDateOf(entry.LastWrite, localOffset) <= filter.DateMax;
}

bool MatchesAttributes(const platform::FindData& entry, const FilterSettings& filter) {
  static constexpr std::uint32_t kBits[] = {platform::kArchive, platform::kReadOnly, platform::kHidden,
                                            platform::kSystem, platform::kDirectory};
  for (std::size_t i = 0; i < std::size(kBits); ++i) {
    const AttributeChoice has =
        (entry.Attributes & kBits[i]) != 0 ? AttributeChoice::MustHave : AttributeChoice::MustNotHave;
    if (filter.Attributes[i] != AttributeChoice::DoNotCare && filter.Attributes[i] != has) {
      return false;
    }
  }
  return true;
}

}  // namespace

Currency FileSizeOf(const platform::FindData& entry) {
  return Currency::FromWhole(entry.Size);
}

bool MatchesFilter(platform::FindData& entry, const FilterSettings& filter, const NamePatterns& patterns,
                   std::int64_t localOffset) {
  return (!filter.NameOn || patterns.Admit(entry.Name)) && (!filter.SizeOn || MatchesSize(entry, filter)) &&
         (!filter.DateOn || MatchesDate(entry, filter, localOffset)) &&
         (!filter.AttrOn || MatchesAttributes(entry, filter));
}

}  // namespace folivant
