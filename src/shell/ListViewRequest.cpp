#include "shell/ListViewRequest.h"

#include <algorithm>
#include <cstring>

namespace folivant {
namespace {

constexpr std::uint32_t kTextWanted = 1;

template <class Value>
void Put(std::span<std::byte> slot, std::size_t offset, Value value) {
  std::memcpy(slot.data() + offset, &value, sizeof(value));
}

}  // namespace

void WriteListViewRequest(platform::RecordLayout layout, std::int32_t item, std::int32_t column,
                          std::uint64_t textAddress, std::span<std::byte> slot) {
  std::fill(slot.begin(), slot.end(), std::byte{0});
  Put(slot, 0, kTextWanted);
  Put(slot, 4, item);
  Put(slot, 8, column);
  // State and state mask (12, 16) stay zero, as do image, parameter and indent behind the capacity.
  constexpr auto kCapacity = static_cast<std::int32_t>(kCellBytes);
  if (layout == platform::RecordLayout::Bits32) {
    Put(slot, 20, static_cast<std::uint32_t>(textAddress));
    Put(slot, 24, kCapacity);
  } else {
    Put(slot, 24, textAddress);  // pointers are aligned to eight bytes
    Put(slot, 32, kCapacity);
  }
}

}  // namespace folivant
