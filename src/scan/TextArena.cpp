#include "scan/TextArena.h"

#include <algorithm>

namespace folivant {

void TextArena::AddBlock(std::size_t atLeast) {
  constexpr std::size_t kBlock = 16 * 1024;  // characters
  const std::size_t size = std::max(kBlock, atLeast);
  if (blocks_.empty()) {
    firstBlockSize_ = size;
  }
  blocks_.push_back(std::make_unique_for_overwrite<wchar_t[]>(size));
  next_ = blocks_.back().get();
  room_ = size;
}

void TextArena::Clear() {
  if (blocks_.empty()) {
    return;
  }
  blocks_.resize(1);
  next_ = blocks_.front().get();
  room_ = firstBlockSize_;
}

}  // namespace folivant
