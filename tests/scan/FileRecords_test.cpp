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
    Entry.SizeLow = 12'345;
    Entry.LastWrite = fakes::FileTime({1999, 9, 5, 7, 8, 9});
    Format.Files.DosName = true;
  }
  FileRecord Fill(std::int32_t level = 0) {
    const NamePatterns patterns;
    const WalkSettings settings{mdlVars::Filter,        patterns, Format, mdlVars::General, mdlVars::Texts, Pattern,
                                platform::LocalOffset()};
    FileRecordFiller filler(settings);
    platform::FindData entry = Entry;
    const FileRecord record = filler.FillFileRecord(entry, level, Texts);
    Key = record.SortKey;
    return record;
  }
  std::wstring KeyFor(OrderBy by) {
    mdlVars::Filter.OrderBy = by;
    Fill();
    return Key;
  }

  platform::FindData Entry;
  ListingFormat Format;
  std::wstring Pattern = L"dd/mm/yyyy";
  TextArena Texts;
  std::wstring Key;
};

TEST_F(FileRecordsTest, FillsAllFields) {
  const FileRecord record = Fill(3);
  EXPECT_EQ(record.Name, L"Long name.txt");
  EXPECT_EQ(record.DosName, L"longna~1.txt");
  EXPECT_EQ(record.SizeText, L"12 kb");
  EXPECT_EQ(record.DateText, L"05/09/1999 07:08");
  EXPECT_EQ(record.AttrText, L" a   ");
  EXPECT_EQ(record.Level, 3);
}

TEST_F(FileRecordsTest, WithoutAnAlternateNameTheDosNameIsTheNameInSmallLetters) {
  Entry.Name = L"README.TXT";
  Entry.AlternateName = {};
  EXPECT_EQ(Fill().DosName, L"readme.txt");
}

TEST_F(FileRecordsTest, ADirectoryHasItsOwnSizeText) {
  Entry.Attributes = platform::kDirectory;
  EXPECT_EQ(Fill().SizeText, L"<DIR>   ");
}

TEST_F(FileRecordsTest, AttributesStandInAFixedOrder) {
  const std::pair<std::uint32_t, std::wstring> rows[] = {
      {0, L"     "},
      {platform::kDirectory, L"d    "},
      {platform::kArchive, L" a   "},
      {platform::kReadOnly, L"  r  "},
      {platform::kSystem, L"   s "},
      {platform::kHidden, L"    h"},
      {platform::kDirectory | platform::kArchive | platform::kReadOnly | platform::kSystem | platform::kHidden,
       L"darsh"},
      {platform::kLink | 2048, L"     "},
  };
  for (const auto& [bits, expected] : rows) {
    Entry.Attributes = bits;
    EXPECT_EQ(Fill().AttrText, expected);
  }
}

TEST_F(FileRecordsTest, SortKeysBeginWithTheGroupOfTheEntry) {
  mdlVars::Filter.OrderBy = OrderBy::Name;
  Fill();
  EXPECT_EQ(Key, L"blong name.txt");
  Entry.Attributes = platform::kDirectory;
  Fill();
  EXPECT_EQ(Key, L"along name.txt");
  mdlVars::General.FilesFirst = true;
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

TEST_F(FileRecordsTest, TheDateKeyIsShiftedOnceMoreThanTheDateText) {
  fakes::Fake().LocalOffsetMinutes = 60;
  mdlVars::Filter.OrderBy = OrderBy::Date;
  EXPECT_EQ(Fill().DateText, L"05/09/1999 08:08");
  EXPECT_EQ(Key, L"b199909050908LONG NAME.TXT");
}

TEST_F(FileRecordsTest, DatesOfOneFillerDoNotStick) {
  const NamePatterns patterns;
  const WalkSettings settings{mdlVars::Filter,        patterns, Format, mdlVars::General, mdlVars::Texts, Pattern,
                              platform::LocalOffset()};
  FileRecordFiller filler(settings);
  const std::pair<platform::CalendarTime, std::wstring> rows[] = {
      {{1999, 9, 5, 7, 8, 9}, L"05/09/1999 07:08"},   {{1999, 9, 5, 7, 8, 59}, L"05/09/1999 07:08"},
      {{1999, 9, 5, 23, 59, 0}, L"05/09/1999 23:59"}, {{1999, 9, 6, 0, 0, 0}, L"06/09/1999 00:00"},
      {{1999, 11, 8, 0, 0, 0}, L"08/11/1999 00:00"},  {{1999, 9, 5, 0, 1, 0}, L"05/09/1999 00:01"},
      {{1601, 1, 1, 0, 0, 0}, L"01/01/1601 00:00"},   {{9999, 12, 31, 23, 59, 59}, L"31/12/9999 23:59"}};
  for (const auto& [time, expected] : rows) {
    platform::FindData entry = Entry;
    entry.LastWrite = fakes::FileTime(time);
    EXPECT_EQ(filler.FillFileRecord(entry, 0, Texts).DateText, expected);
  }
}

TEST_F(FileRecordsTest, DateSeparatorsAreTheUsers) {
  fakes::Fake().Locale.DateSeparator = L".";
  EXPECT_EQ(Fill().DateText, L"05.09.1999 07:08");
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
