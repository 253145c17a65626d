// The order in which the entries of one directory, and its subdirectories, are listed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace folivant {

/// Collects the sort keys of one directory's entries as they are found, then orders the entries. The order is that of
/// the platform's case-insensitive text comparison over the keys, and stable in both directions: entries with equal
/// keys stay as they were found. Made for reuse: a cleared collector keeps its memory.
class EntrySorter {
 public:
  void Clear();
  /// The key of the next entry; entries count from 0.
  void Add(std::wstring_view sortKey);
  std::size_t Count() const { return keys_.size(); }
  /// The entries' numbers in listing order. `ascending` false compares the other way round, groups included.
  void Sort(bool ascending, std::vector<std::uint32_t>& order);

 private:
  struct Key {
    std::uint64_t Prefix;  ///< the first eight bytes, most significant first
    std::uint32_t Start;   ///< in bytes_
    std::uint32_t Length;
    std::uint32_t Entry;
  };
  int Compare(const Key& a, const Key& b) const;

  std::string bytes_;
  std::vector<Key> keys_;
};

}  // namespace folivant
