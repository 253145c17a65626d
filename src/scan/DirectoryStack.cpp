#include "scan/DirectoryStack.h"

#include <algorithm>
#include <cmath>

#include "base/mdlFileRoutines.h"

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

void Ancestors::FindAboveStart(const WalkPath& path) {
  aboveStartFound_ = true;
  for (std::wstring above = GetFolder(path.OnDiskAt(entries_.front().Mark)); !above.empty(); above = GetFolder(above)) {
    if (const auto identity = platform::IdentityOf(AddBackslash(above))) {
      aboveStart_.push_back(*identity);
    }
  }
}

bool Ancestors::Contain(const WalkPath& path) {
  const std::optional<platform::FileIdentity> identity = platform::IdentityOf(path.OnDisk());
  if (!identity) {
    return false;
  }
  if (!aboveStartFound_) {
    FindAboveStart(path);
  }
  const bool above = std::find(aboveStart_.begin(), aboveStart_.end(), *identity) != aboveStart_.end();
  return above || std::any_of(entries_.begin(), entries_.end(), [&](Entry& entry) {
           if (!entry.Asked) {
             entry.Identity = platform::IdentityOf(path.OnDiskAt(entry.Mark));
             entry.Asked = true;
           }
           return entry.Identity == identity;
         });
}

}  // namespace folivant
