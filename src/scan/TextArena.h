// Storage for many short texts that die together: one allocation per block instead of one per text.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace folivant {

class TextArena {
 public:
  /// Room for `count` characters, to be filled at once.
  wchar_t* Reserve(std::size_t count) {
    if (count > room_) {
      AddBlock(count);
    }
    return next_;
  }
  /// Keeps the first `count` characters of the last Reserve as a text.
  std::wstring_view Keep(std::size_t count) {
    const std::wstring_view text(next_, count);
    next_ += count;
    room_ -= count;
    return text;
  }
  std::wstring_view Add(std::wstring_view text) {
    text.copy(Reserve(text.size()), text.size());
    return Keep(text.size());
  }
  /// Forgets every text. The first block stays, so that a directory after another costs no allocation.
  void Clear();

 private:
  void AddBlock(std::size_t atLeast);

  std::vector<std::unique_ptr<wchar_t[]>> blocks_;
  std::size_t firstBlockSize_ = 0;
  wchar_t* next_ = nullptr;
  std::size_t room_ = 0;
};

}  // namespace folivant
