// The order in which the entries of one directory, and its subdirectories, are listed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Text.h"

namespace folivant {

/// Collects the sort keys of one directory's entries as they are found, then orders the entries. The order is that of
/// the platform's case-insensitive text comparison over the keys, and stable in both directions: entries with equal
/// keys stay as they were found. Made for reuse: a cleared collector keeps its memory.
class EntrySorter {
 public:
  explicit EntrySorter(platform::Digits digits = platform::Digits::AsCharacters) : digits_(digits) {}
  void Clear();
  /// The key of the next entry; entries count from 0.
  void Add(std::wstring_view sortKey);
  /// The entries' numbers in listing order. `ascending` false compares the other way round, groups included.
  void Sort(bool ascending, std::vector<std::uint32_t>& order);

 private:
  struct Key {
    std::uint64_t Chunk;  ///< eight bytes as a number that orders as they do
    std::uint32_t Start;  ///< in bytes_
    std::uint32_t Length;
    std::uint32_t Entry;
  };
  /// Keys that are equal in their first Depth bytes.
  struct Range {
    std::size_t First;
    std::size_t Last;
    std::size_t Depth;
  };
  bool LoadChunks(const Range& range);
  void SortRange(const Range& range, bool ascending);
  void SortRun(const Range& run, bool ascending);

  const platform::Digits digits_;
  std::string bytes_;
  std::vector<Key> keys_;
  std::vector<Range> ranges_;  ///< still to be sorted
};

}  // namespace folivant
