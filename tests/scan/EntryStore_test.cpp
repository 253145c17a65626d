#include "scan/EntryStore.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

TEST(EntryStore, GivesBackAllThatARecordHolds) {
  FileRecord entry;
  entry.Name = L"Long name.text";
  entry.AlternateName = L"LONGNA~1.TEX";
  entry.Size = 5'000'000'000;
  entry.LastWrite = 125'809'888'890'000'000;
  entry.ShownWrite = entry.LastWrite - 36'000'000'000;
  entry.Attributes = platform::kArchive | platform::kHidden;
  entry.Level = 7;
  EntryStore store;
  const std::uint32_t before = store.Add({});
  const std::uint32_t number = store.Add(entry);
  std::wstring names;
  EXPECT_EQ(store.Read(before, names).Name, L"");
  const FileRecord read = store.Read(number, names);
  EXPECT_EQ(read.Name, L"Long name.text");
  EXPECT_EQ(read.AlternateName, L"LONGNA~1.TEX");
  EXPECT_EQ(read.Size, entry.Size);
  EXPECT_EQ(read.LastWrite, entry.LastWrite);
  EXPECT_EQ(read.ShownWrite, entry.ShownWrite);
  EXPECT_EQ(read.Attributes, entry.Attributes);
  EXPECT_EQ(read.Level, 7);
}

}  // namespace
}  // namespace folivant
