#include "scan/FileRecords.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"
#include "scan/FileDates.h"
#include "scan/ListingTest.h"

namespace folivant {
namespace {

class FileRecordsTest : public ListingTest {
 protected:
  void SetUp() override {
    ListingTest::SetUp();
    Entry.Name = L"LONG NAME.TXT";
    Entry.AlternateName = L"LONGNA~1.TXT";
    Entry.Attributes = platform::kArchive;
    Entry.Size = 12'345;
    Entry.LastWrite = fakes::FileTime({1999, 9, 5, 7, 8, 9});
    Format.Files.DosName = true;
  }
  FileRecord Fill(std::int32_t level = 0) {
    Run.LocalOffset = platform::LocalOffset();
    FileRecordFiller filler(Run);
    platform::FindData entry = Entry;
    const FileRecord record = filler.FillFileRecord(entry, Entry.LastWrite, level, Names);
    Key = filler.SortKey();
    return record;
  }
  std::wstring KeyFor(OrderBy by) {
    Filter.OrderBy = by;
    Fill();
    return Key;
  }

  platform::FindData Entry;
  TextArena Names;
  std::wstring Key;
};

TEST_F(FileRecordsTest, KeepsWhatTheFileSystemSays) {
  fakes::Fake().LocalOffsetMinutes = 60;
  const FileRecord record = Fill(3);
  EXPECT_EQ(record.Name, L"LONG NAME.TXT");
  EXPECT_EQ(record.AlternateName, L"LONGNA~1.TXT");
  EXPECT_EQ(record.Size, 12'345U);
  EXPECT_EQ(record.LastWrite, fakes::FileTime({1999, 9, 5, 7, 8, 9}));
  EXPECT_EQ(record.ShownWrite, fakes::FileTime({1999, 9, 5, 8, 8, 9}));
  EXPECT_EQ(record.Attributes, platform::kArchive);
  EXPECT_EQ(record.Level, 3);
  EXPECT_FALSE(record.IsDirectory());
}

TEST_F(FileRecordsTest, TheShownTimeIsShiftedFromWhatTheFilterLeft) {
  Run.LocalOffset = 36'000'000'000;  // an hour
  FileRecordFiller filler(Run);
  platform::FindData entry = Entry;
  entry.LastWrite = fakes::FileTime({1999, 9, 5, 9, 8, 9});  // converted twice
  const FileRecord record = filler.FillFileRecord(entry, Entry.LastWrite, 0, Names);
  EXPECT_EQ(record.LastWrite, fakes::FileTime({1999, 9, 5, 7, 8, 9}));
  EXPECT_EQ(record.ShownWrite, fakes::FileTime({1999, 9, 5, 10, 8, 9}));
}

TEST_F(FileRecordsTest, ShortNamesAreKeptOnlyWhereTheyAreShownOrSortedBy) {
  Format.Files.DosName = false;
  EXPECT_EQ(Fill().AlternateName, L"");
  Filter.OrderBy = OrderBy::DosName;
  EXPECT_EQ(Fill().AlternateName, L"LONGNA~1.TXT");
}

TEST_F(FileRecordsTest, SortKeysBeginWithTheGroupOfTheEntry) {
  Filter.OrderBy = OrderBy::Name;
  Fill();
  EXPECT_EQ(Key, L"blong name.txt");
  Entry.Attributes = platform::kDirectory;
  Fill();
  EXPECT_EQ(Key, L"along name.txt");
  General.FilesFirst = true;
  Fill();
  EXPECT_EQ(Key, L"along name.txt");
  Format.ListingStyle = kTree;
  Fill();
  EXPECT_EQ(Key, L"blong name.txt");
  Entry.Attributes = 0;
  Fill();
  EXPECT_EQ(Key, L"along name.txt");
}

TEST_F(FileRecordsTest, EachOrderHasItsKey) {
  EXPECT_EQ(KeyFor(OrderBy::None), L"");
  EXPECT_EQ(KeyFor(OrderBy::Name), L"blong name.txt");
  EXPECT_EQ(KeyFor(OrderBy::DosName), L"blongna~1.txt");
  EXPECT_EQ(KeyFor(OrderBy::Size), L"b000000000012345LONG NAME.TXT");
  EXPECT_EQ(KeyFor(OrderBy::Date), L"b199909050708LONG NAME.TXT");
  EXPECT_EQ(KeyFor(OrderBy::Extension), L"bTXT  .LONG NAME.TXT");
  EXPECT_EQ(KeyFor(static_cast<OrderBy>(7)), L"");
}

TEST_F(FileRecordsTest, ExtensionKeysAreFiveCharactersWide) {
  Entry.Name = L"a.markdown";
  EXPECT_EQ(KeyFor(OrderBy::Extension), L"bmarkd.a.markdown");
  Entry.Name = L"MAKEFILE";
  EXPECT_EQ(KeyFor(OrderBy::Extension), L"bMAKEF.MAKEFILE");
  Entry.Name = L"end.";
  EXPECT_EQ(KeyFor(OrderBy::Extension), L"b     .end.");
}

TEST_F(FileRecordsTest, TheDateKeyIsShiftedOnceMoreThanTheDateThatIsShown) {
  fakes::Fake().LocalOffsetMinutes = 60;
  Filter.OrderBy = OrderBy::Date;
  EXPECT_EQ(Fill().ShownWrite, fakes::FileTime({1999, 9, 5, 8, 8, 9}));
  EXPECT_EQ(Key, L"b199909050908LONG NAME.TXT");
}

TEST(FileDatesTest, EachCallShiftsTheRecordOnceMore) {
  fakes::Fake().LocalOffsetMinutes = -90;
  std::uint64_t time = fakes::FileTime({2000, 1, 1, 1, 0, 0});
  EXPECT_EQ(FileDateOf(time, platform::LocalOffset()), ToDateValue({1999, 12, 31, 23, 30, 0}));
  EXPECT_EQ(FileDateOf(time, platform::LocalOffset()), ToDateValue({1999, 12, 31, 22, 0, 0}));
  EXPECT_EQ(time, fakes::FileTime({1999, 12, 31, 22, 0, 0}));
}

TEST(FileDatesTest, FractionsOfASecondAreDropped) {
  std::uint64_t time = fakes::FileTime({2000, 1, 1, 1, 2, 3}) + 9'999'999;
  EXPECT_EQ(FileDateOf(time, platform::LocalOffset()), ToDateValue({2000, 1, 1, 1, 2, 3}));
}

}  // namespace
}  // namespace folivant
