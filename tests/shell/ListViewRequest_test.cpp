#include "shell/ListViewRequest.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace folivant {
namespace {

std::vector<int> Numbers(std::span<const std::byte> bytes) {
  std::vector<int> numbers;
  for (const std::byte each : bytes) {
    numbers.push_back(std::to_integer<int>(each));
  }
  return numbers;
}

TEST(ListViewRequest, Is40BytesForA32BitOwner) {
  std::array<std::byte, 40> slot;
  slot.fill(std::byte{0xEE});
  WriteListViewRequest(platform::RecordLayout::Bits32, 0x01020304, 2, 0x0A0B0C0D, slot);
  EXPECT_EQ((std::vector<int>{
                1,    0,    0,    0,     // mask: text
                4,    3,    2,    1,     // item
                2,    0,    0,    0,     // column
                0,    0,    0,    0,     // state
                0,    0,    0,    0,     // state mask
                0x0D, 0x0C, 0x0B, 0x0A,  // text pointer
                4,    1,    0,    0,     // capacity 260
                0,    0,    0,    0,     // image
                0,    0,    0,    0,     // parameter
                0,    0,    0,    0,     // indent
            }),
            Numbers(slot));
}

TEST(ListViewRequest, AlignsPointersForA64BitOwner) {
  std::array<std::byte, 88> slot;
  slot.fill(std::byte{0xEE});
  WriteListViewRequest(platform::RecordLayout::Bits64, 7, 4, 0x00007FFE0A0B0C0D, slot);
  std::vector<int> expected(88, 0);
  expected[0] = 1;      // mask
  expected[4] = 7;      // item
  expected[8] = 4;      // column
  expected[24] = 0x0D;  // text pointer, eight bytes from 24
  expected[25] = 0x0C;
  expected[26] = 0x0B;
  expected[27] = 0x0A;
  expected[28] = 0xFE;
  expected[29] = 0x7F;
  expected[32] = 4;  // capacity 260
  expected[33] = 1;
  EXPECT_EQ(expected, Numbers(slot));
}

}  // namespace
}  // namespace folivant
