// A stable sort of entries by their keys, eight bytes of them at a time.
#include "scan/SortOrder.h"

#include <algorithm>

namespace folivant {
namespace {

constexpr std::size_t kChunk = sizeof(std::uint64_t);

/// Most significant byte first; missing bytes count as zero.
std::uint64_t ChunkOf(std::string_view bytes) {
  std::uint64_t chunk = 0;
  for (std::size_t i = 0; i < kChunk; ++i) {
    chunk = chunk << 8 | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U);
  }
  return chunk;
}

}  // namespace

void EntrySorter::Clear() {
  bytes_.clear();
  keys_.clear();
}

void EntrySorter::Add(std::wstring_view sortKey) {
  const std::size_t start = bytes_.size();
  platform::AppendSortKey(sortKey, bytes_, digits_);
  keys_.push_back({0, static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(bytes_.size() - start),
                   static_cast<std::uint32_t>(keys_.size())});
}

/// False when all chunks are equal.
bool EntrySorter::LoadChunks(const Range& range) {
  std::uint64_t differences = 0;
  for (std::size_t i = range.First; i < range.Last; ++i) {
    Key& key = keys_[i];
    const std::size_t skipped = std::min<std::size_t>(range.Depth, key.Length);
    key.Chunk = ChunkOf({bytes_.data() + key.Start + skipped, key.Length - skipped});
    differences |= key.Chunk ^ keys_[range.First].Chunk;
  }
  return differences != 0;
}

/// Sorts by one chunk and leaves runs of equal chunks for later: names often begin alike, and comparing numbers costs a
/// fraction of comparing bytes. The entry number settles equal keys, which makes an unstable sort stable.
void EntrySorter::SortRange(const Range& range, bool ascending) {
  if (LoadChunks(range)) {
    std::sort(keys_.begin() + static_cast<std::ptrdiff_t>(range.First),
              keys_.begin() + static_cast<std::ptrdiff_t>(range.Last), [ascending](const Key& a, const Key& b) {
                return a.Chunk == b.Chunk ? a.Entry < b.Entry : (a.Chunk < b.Chunk) == ascending;
              });
  }
  for (std::size_t first = range.First; first < range.Last;) {
    std::size_t last = first + 1;
    while (last < range.Last && keys_[last].Chunk == keys_[first].Chunk) {
      ++last;
    }
    if (last - first > 1) {
      SortRun({first, last, range.Depth + kChunk}, ascending);
    }
    first = last;
  }
}

/// Keys that have no more bytes are equal but for zeros at their ends: the shorter one comes first.
void EntrySorter::SortRun(const Range& run, bool ascending) {
  const auto first = keys_.begin() + static_cast<std::ptrdiff_t>(run.First);
  const auto last = keys_.begin() + static_cast<std::ptrdiff_t>(run.Last);
  if (std::any_of(first, last, [&](const Key& key) { return key.Length > run.Depth; })) {
    ranges_.push_back(run);
    return;
  }
  std::sort(first, last, [ascending](const Key& a, const Key& b) {
    return a.Length == b.Length ? a.Entry < b.Entry : (a.Length < b.Length) == ascending;
  });
}

void EntrySorter::Sort(bool ascending, std::vector<std::uint32_t>& order) {
  ranges_.assign(1, {0, keys_.size(), 0});
  while (!ranges_.empty()) {
    const Range range = ranges_.back();
    ranges_.pop_back();
    SortRange(range, ascending);
  }
  order.resize(keys_.size());
  std::transform(keys_.begin(), keys_.end(), order.begin(), [](const Key& key) { return key.Entry; });
}

}  // namespace folivant
