#include "scan/DirectoryStack.h"

#include <algorithm>
#include <cmath>

namespace folivant {

std::int32_t DivideShare(std::int32_t share, std::size_t parts) {
  return static_cast<std::int32_t>(std::nearbyint(static_cast<double>(share) / static_cast<double>(parts)));
}

void NameStack::SortFrom(std::size_t first, bool ascending) {
  if (names_.size() - first < 2) {
    return;
  }
  sorter_.Clear();
  for (std::size_t i = first; i < names_.size(); ++i) {
    sorter_.Add(TextOf(i));
  }
  sorter_.Sort(ascending, order_);
  const std::vector<Name> found(names_.begin() + static_cast<std::ptrdiff_t>(first), names_.end());
  std::transform(order_.begin(), order_.end(), names_.begin() + static_cast<std::ptrdiff_t>(first),
                 [&](std::uint32_t index) { return found[index]; });
}

void NameStack::CutTo(std::size_t first) {
  if (first < names_.size()) {
    // Sorting has mixed the names' places: the text ends where the first of them began.
    const auto begin = names_.begin() + static_cast<std::ptrdiff_t>(first);
    const auto lowest =
        std::min_element(begin, names_.end(), [](const Name& a, const Name& b) { return a.Start < b.Start; });
    text_.resize(lowest->Start);
    names_.erase(begin, names_.end());
  }
}

bool Ancestors::Contain(const WalkPath& path) {
  const std::optional<platform::FileIdentity> identity = platform::IdentityOf(path.OnDisk());
  return identity && std::any_of(entries_.begin(), entries_.end(), [&](Entry& entry) {
           if (!entry.Asked) {
             entry.Identity = platform::IdentityOf(path.OnDiskAt(entry.Mark));
             entry.Asked = true;
           }
           return entry.Identity == identity;
         });
}

}  // namespace folivant
