#include "scan/PackedStore.h"

#include <gtest/gtest.h>

#include <limits>

namespace folivant {
namespace {

std::wstring TextOf(PackedReader packed) {
  std::wstring text;
  packed.AppendText(text);
  return text;
}

std::uint32_t AddText(PackedStore& store, std::wstring_view text) {
  PackedRecord record;
  record.Put(text);
  return store.Add(record);
}

TEST(PackedRecord, SmallNumbersTakeOneByteAndLargerOnesMore) {
  const std::pair<std::uint64_t, std::size_t> rows[] = {
      {0, 1}, {127, 1}, {128, 2}, {16'383, 2}, {16'384, 3}, {std::numeric_limits<std::uint64_t>::max(), 10}};
  for (const auto& [number, bytes] : rows) {
    PackedRecord record;
    record.Put(number);
    EXPECT_EQ(record.Bytes().size(), bytes) << number;
    EXPECT_EQ(PackedReader(record.Bytes().data()).Number(), number);
  }
}

TEST(PackedStore, GivesBackNumbersAndTextsInTheirOrder) {
  PackedRecord record;
  record.Put(std::wstring_view(L"a\u00E4\u20AC\xD800"));
  record.Put(std::uint64_t{5'000'000'000});
  record.Put(std::wstring_view());
  PackedStore store;
  PackedReader packed = store.Read(store.Add(record));
  std::wstring text = L"before ";
  packed.AppendText(text);
  EXPECT_EQ(text, L"before a\u00E4\u20AC\xD800");
  EXPECT_EQ(packed.Number(), 5'000'000'000U);
  EXPECT_EQ(TextOf(packed), L"");
}

TEST(PackedStore, TheFirstRecordMayBeOneByte) {
  PackedRecord record;
  record.Put(std::uint64_t{7});
  PackedStore store;
  EXPECT_EQ(store.Read(store.Add(record)).Number(), 7U);
}

// Twelve bytes each: more than five blocks of one megabyte.
TEST(PackedStore, KeepsRecordsOfManyBlocksApart) {
  PackedStore store;
  std::vector<std::uint32_t> records;
  for (int i = 0; i < 500'000; ++i) {
    records.push_back(AddText(store, L"name " + std::to_wstring(100'000 + i)));
  }
  for (int i = 0; i < 500'000; ++i) {
    ASSERT_EQ(TextOf(store.Read(records[static_cast<std::size_t>(i)])), L"name " + std::to_wstring(100'000 + i));
  }
}

TEST(PackedStore, ARecordMayFillABlockOrTakeMore) {
  constexpr std::size_t kBlock = std::size_t{1} << 20;
  // The length of such a text takes three bytes.
  for (const std::size_t length : {kBlock - 4, kBlock - 3, kBlock - 2, 2 * kBlock}) {
    PackedStore store;
    const std::uint32_t first = AddText(store, L"first");
    const std::uint32_t large = AddText(store, std::wstring(length, L'x'));
    const std::uint32_t last = AddText(store, L"last");
    EXPECT_EQ(TextOf(store.Read(first)), L"first") << length;
    EXPECT_EQ(TextOf(store.Read(large)), std::wstring(length, L'x')) << length;
    EXPECT_EQ(TextOf(store.Read(last)), L"last") << length;
  }
}

}  // namespace
}  // namespace folivant
