#include "scan/SortOrder.h"

#include <algorithm>
#include <cstring>

#include "platform/Text.h"

namespace folivant {
namespace {

std::uint64_t PrefixOf(std::string_view bytes) {
  std::uint64_t prefix = 0;
  for (std::size_t i = 0; i < sizeof prefix; ++i) {
    prefix = prefix << 8 | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0);
  }
  return prefix;
}

}  // namespace

void EntrySorter::Clear() {
  bytes_.clear();
  keys_.clear();
}

void EntrySorter::Add(std::wstring_view sortKey) {
  const std::size_t start = bytes_.size();
  platform::AppendSortKey(sortKey, bytes_);
  const std::string_view key = std::string_view(bytes_).substr(start);
  keys_.push_back({PrefixOf(key), static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(key.size()),
                   static_cast<std::uint32_t>(keys_.size())});
}

int EntrySorter::Compare(const Key& a, const Key& b) const {
  if (a.Prefix != b.Prefix) {
    return a.Prefix < b.Prefix ? -1 : 1;
  }
  const int order = std::memcmp(bytes_.data() + a.Start, bytes_.data() + b.Start, std::min(a.Length, b.Length));
  return order != 0 ? order : static_cast<int>(a.Length) - static_cast<int>(b.Length);
}

void EntrySorter::Sort(bool ascending, std::vector<std::uint32_t>& order) {
  // The entry number settles equal keys, which makes an unstable sort stable.
  const auto before = [&](const Key& a, const Key& b) {
    const int compared = ascending ? Compare(a, b) : Compare(b, a);
    return compared != 0 ? compared < 0 : a.Entry < b.Entry;
  };
  std::sort(keys_.begin(), keys_.end(), before);
  order.resize(keys_.size());
  std::transform(keys_.begin(), keys_.end(), order.begin(), [](const Key& key) { return key.Entry; });
}

}  // namespace folivant
