#include "output/RecordFields.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"
#include "fakes/RunRecords.h"

namespace folivant {
namespace {

/// The value as text; "none" where there is none.
class Value final : public FieldSink {
 public:
  std::wstring Seen;

  void Text(std::wstring_view text) override { Seen = text; }
  void Plain(std::string_view text) override { Seen.assign(text.begin(), text.end()); }
  void Number(std::uint64_t number) override { Seen = std::to_wstring(number); }
  void None() override { Seen = L"none"; }
};

/// Counts the looks at events, and cancels at one of them.
class Looks final : public Progress {
 public:
  int Count = 0;
  int CancelAt = -1;

  void ShowDirectory(std::wstring_view) override {}
  void SetProgress(std::int32_t) override {}
  void LetEventsThrough() override { ++Count; }
  bool Cancelled() const override { return Count == CancelAt; }
};

class RecordFieldsTest : public testing::Test, protected fakes::RunRecords {
 protected:
  std::wstring ValueOf(std::string_view field) {
    for (const RecordField<RecordedEntry>& row : kEntryFields) {
      if (row.Name == field) {
        Value value;
        row.Put({Path, L"a.txt", Entry}, Facts, value);
        return value.Seen;
      }
    }
    ADD_FAILURE() << "no such field";
    return {};
  }

  ListingRun Run = MakeRun();
  RecordedFacts Facts{Run};
  std::wstring Path = L"C:\\Data\\a.txt";
  FileRecord Entry;
};

TEST_F(RecordFieldsTest, StandInThisOrder) {
  std::string names;
  for (const auto& field : kEntryFields) {
    names.append(field.Name).append(" ");
  }
  EXPECT_EQ(names, "path name type size modified created accessed attributes owner links sha256 ");
  names.clear();
  for (const auto& field : kDirectoryFields) {
    names.append(field.Name).append(" ");
  }
  EXPECT_EQ(names, "path files size total_files total_size ");
}

TEST_F(RecordFieldsTest, SizesAreBytesAndDirectoriesHaveNone) {
  Entry.Size = 5'000'000'000;
  EXPECT_EQ(ValueOf("size"), L"5000000000");
  Entry.Attributes = platform::kDirectory;
  EXPECT_EQ(ValueOf("size"), L"none");
}

TEST_F(RecordFieldsTest, TimesAreUtcWithAllTheirDigits) {
  fakes::Fake().LocalOffsetMinutes = 330;
  Entry.LastWrite = fakes::FileTime({2001, 2, 3, 4, 5, 6}) + 1'234'567;
  Entry.Created = fakes::FileTime({1999, 12, 31, 23, 59, 59}) + 9'999'999;
  EXPECT_EQ(ValueOf("modified"), L"2001-02-03T04:05:06.1234567Z");
  EXPECT_EQ(ValueOf("created"), L"1999-12-31T23:59:59.9999999Z");
  EXPECT_EQ(ValueOf("accessed"), L"none") << "a time that the file system does not keep";
  Entry.LastAccess = 1;
  EXPECT_EQ(ValueOf("accessed"), L"1601-01-01T00:00:00.0000001Z");
}

TEST_F(RecordFieldsTest, ALinkIsWhatStandsForAnother) {
  struct Row {
    std::uint32_t Attributes;
    std::uint32_t Tag;
    const wchar_t* Type;
  };
  const Row rows[] = {{0, 0, L"file"},
                      {platform::kDirectory, 0, L"directory"},
                      {platform::kDirectory | platform::kLink, 0xA0000003, L"link"},       // junction
                      {platform::kLink, 0xA000000C, L"link"},                              // symbolic link to a file
                      {platform::kDirectory | platform::kLink, 0x9000001A, L"directory"},  // a folder in a cloud
                      {platform::kLink, 0x80000013, L"file"},                              // deduplicated
                      {platform::kDirectory | platform::kLink, 0, L"link"}};               // the system does not say
  for (const Row& row : rows) {
    Entry.Attributes = row.Attributes;
    Entry.ReparseTag = row.Tag;
    EXPECT_EQ(ValueOf("type"), row.Type) << row.Attributes << " " << row.Tag;
  }
}

TEST_F(RecordFieldsTest, EachAttributeHasItsLetter) {
  EXPECT_EQ(ValueOf("attributes"), L"");
  Entry.Attributes = 0x27;
  EXPECT_EQ(ValueOf("attributes"), L"ASHR");
  Entry.Attributes = 0x1000 | 0x2000 | 0x20000 | 0x8000 | 0x80000 | 0x100000 | 0x800 | 0x4000 | 0x400 | 0x100;
  EXPECT_EQ(ValueOf("attributes"), L"OIXVPUCELT");
  Entry.Attributes = platform::kDirectory | 0x80;
  EXPECT_EQ(ValueOf("attributes"), L"") << "the type says that it is a directory; 128 says that there is nothing else";
}

TEST_F(RecordFieldsTest, OwnerLinksAndContentAreAskedFor) {
  fakes::Tree().Dir(L"C:\\Data").FileWith(L"a.txt", "abc").Owner(L"HOME\\bert", 3);
  EXPECT_EQ(ValueOf("owner"), L"HOME\\bert");
  EXPECT_EQ(ValueOf("links"), L"3");
  EXPECT_EQ(ValueOf("sha256"), L"sum(abc)");
  EXPECT_TRUE(Run.Unread.empty());
}

TEST_F(RecordFieldsTest, AFileThatCannotBeReadIsNamedOnce) {
  fakes::Tree().Dir(L"C:\\Data").File(L"a.txt").Unreadable();
  for (const char* field : {"owner", "links", "sha256"}) {
    EXPECT_EQ(ValueOf(field), L"none");
  }
  ASSERT_EQ(Run.Unread.size(), 1U);
  EXPECT_EQ(Run.Unread[0].Path, L"C:\\Data\\a.txt");
  EXPECT_EQ(Run.Unread[0].Reason.Code, 5U);
}

TEST_F(RecordFieldsTest, AFileInACloudIsNotFetched) {
  fakes::Tree().Dir(L"C:\\Data").FileWith(L"a.txt", "abc");
  for (const std::uint32_t attribute : {0x1000U, 0x400000U}) {
    Entry.Attributes = attribute;
    Run.Unread.clear();
    EXPECT_EQ(ValueOf("sha256"), L"none");
    EXPECT_EQ(Run.Unread.size(), 1U);
  }
}

TEST_F(RecordFieldsTest, DirectoriesHaveNoSum) {
  Entry.Attributes = platform::kDirectory;
  EXPECT_EQ(ValueOf("sha256"), L"none");
  EXPECT_TRUE(Run.Unread.empty());
}

/// 256 kB take no reader longer than Cancel may take.
TEST_F(RecordFieldsTest, EventsGetThroughWithinAHugeFile) {
  fakes::Tree().Dir(L"C:\\Data").FileWith(L"a.txt", std::string(3'000'000, 'x'));
  Looks looks;
  ListingRun watched = MakeRun(looks);
  EXPECT_TRUE(RecordedFacts(watched).Sha256({Path, L"a.txt", Entry}).has_value());
  EXPECT_GE(looks.Count, 3'000'000 / (256 * 1024));
}

TEST_F(RecordFieldsTest, CancelWithinAHugeFileStopsReadingIt) {
  fakes::Tree().Dir(L"C:\\Data").FileWith(L"a.txt", std::string(3'000'000, 'x'));
  Looks looks;
  looks.CancelAt = 2;
  ListingRun watched = MakeRun(looks);
  EXPECT_FALSE(RecordedFacts(watched).Sha256({Path, L"a.txt", Entry}).has_value());
  EXPECT_EQ(looks.Count, 2);
  EXPECT_TRUE(watched.Unread.empty()) << "it could have been read";
}

}  // namespace
}  // namespace folivant
