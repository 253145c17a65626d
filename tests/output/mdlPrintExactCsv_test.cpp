#include "output/mdlPrintExactCsv.h"

#include "output/WriterFixture.h"

namespace folivant {
namespace {

const std::string kMark = "\xEF\xBB\xBF";
const std::string kNames = kMark + "path,name,type,size,modified,created,accessed,attributes\r\n";

class ExactCsv : public WriterFixture {
 protected:
  static FileRecord Entry(std::wstring_view name) {
    FileRecord entry;
    entry.Name = name;
    entry.Size = 1'234;
    entry.LastWrite = fakes::FileTime({2026, 1, 2, 3, 4, 5});
    entry.Attributes = platform::kArchive;
    return entry;
  }
  /// One directory, C:\Data, with these entries.
  std::string Listed(const std::vector<FileRecord>& entries) {
    writer_->BeginListing(Run);
    List(*writer_, L"C:\\Data", entries);
    writer_->EndListing();
    return Written();
  }

  std::unique_ptr<ListingWriter> writer_ = MakeExactCsvWriter();
};

TEST_F(ExactCsv, AnEmptyListingIsTheRowOfNames) {
  EXPECT_EQ(Listed({}), kNames);
}

TEST_F(ExactCsv, ARowHoldsAllAsItIsOnDisk) {
  EXPECT_EQ(Listed({Entry(L"README.TXT")}),
            kNames + "C:\\Data\\README.TXT,README.TXT,file,1234,2026-01-02T03:04:05.0000000Z,,,A\r\n");
}

TEST_F(ExactCsv, ValuesAreQuotedWhereTheyMustBe) {
  const std::pair<const wchar_t*, const char*> rows[] = {{L"a,b", "\"a,b\""},
                                                         {L"a\"b\"", "\"a\"\"b\"\"\""},
                                                         {L"a\nb", "\"a\nb\""},
                                                         {L"a\rb", "\"a\rb\""},
                                                         {L" a", "\" a\""},
                                                         {L"a ", "\"a \""},
                                                         {L"a b;c\td'e", "a b;c\td'e"}};
  for (const auto& [name, value] : rows) {
    EXPECT_NE(Listed({Entry(name)}).find(std::string(",") + value + ",file,"), std::string::npos) << value;
  }
}

TEST_F(ExactCsv, TextIsUtf8) {
  EXPECT_NE(Listed({Entry(L"\u00E4\u65E5\xD800")}).find(",\xC3\xA4\xE6\x97\xA5\xEF\xBF\xBD,file,"), std::string::npos);
}

TEST_F(ExactCsv, WhatASpreadsheetTakesForAFormulaMayGetAnApostrophe) {
  for (const wchar_t* name : {L"=1+1", L"+1", L"-1", L"@a", L"\ta"}) {
    const std::string plain = std::string(name, name + std::wcslen(name));
    General.CsvApostrophe = false;
    EXPECT_NE(Listed({Entry(name)}).find("," + plain + ",file,"), std::string::npos) << plain;
    General.CsvApostrophe = true;
    EXPECT_NE(Listed({Entry(name)}).find(",'" + plain + ",file,"), std::string::npos) << plain;
  }
  EXPECT_NE(Listed({Entry(L"a=1")}).find(",a=1,file,"), std::string::npos);
}

TEST_F(ExactCsv, CostlyFieldsAreShownWhenChosen) {
  fakes::Tree().Dir(L"C:\\Data").FileWith(L"a.txt", "abc").Owner(L"HOME\\anna", 2);
  General.RecordOwner = General.RecordLinks = General.RecordSha256 = true;
  const std::string written = Listed({Entry(L"a.txt")});
  EXPECT_TRUE(
      written.starts_with(kMark + "path,name,type,size,modified,created,accessed,attributes,owner,links,sha256\r\n"));
  EXPECT_TRUE(written.ends_with(",A,HOME\\anna,2,sum(abc)\r\n"));
}

TEST_F(ExactCsv, ATreeGivesFullPaths) {
  Style(ListingStyle::TreeStyle);
  writer_->BeginListing(Run);
  writer_->BeginTree(L"C:\\Data");
  FileRecord folder = Entry(L"Sub");
  folder.Attributes = platform::kDirectory;
  FileRecord inner = Entry(L"b.txt");
  inner.Level = 1;
  for (const FileRecord& entry : {folder, inner, Entry(L"a.txt")}) {
    writer_->TreeEntry(entry);
  }
  writer_->EndListing();
  const std::vector<std::string> lines = Lines();
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_TRUE(lines[1].starts_with("C:\\Data\\Sub,Sub,directory,,"));
  EXPECT_TRUE(lines[2].starts_with("C:\\Data\\Sub\\b.txt,b.txt,file,1234,"));
  EXPECT_TRUE(lines[3].starts_with("C:\\Data\\a.txt,a.txt,file,1234,"));
}

TEST_F(ExactCsv, TheDirectoryViewGivesARowForEachDirectory) {
  Style(ListingStyle::DirectoryView);
  writer_->BeginListing(Run);
  writer_->BeginDirectoryView();
  writer_->DirectoryViewEntry({.Name = L"Sub",
                               .Path = L"C:\\Shown\\Sub",
                               .Level = 1,
                               .Files = 2,
                               .Size = Currency::FromWhole(5'000'000'000),
                               .TotalFiles = 3,
                               .TotalSize = Currency::FromWhole(5'000'000'001),
                               .PathOnDisk = L"C:\\Data\\Sub"});
  writer_->EndListing();
  EXPECT_EQ(Written(), kMark + "path,files,size,total_files,total_size\r\nC:\\Data\\Sub,2,5000000000,3,5000000001\r\n");
}

TEST_F(ExactCsv, AFindWindowGivesItsFourTexts) {
  Style(ListingStyle::FindWindow);
  writer_->BeginListing(Run);
  writer_->FindList({L"Find: all", {{L"a.txt", L"C:\\Data", L"1,234 KB", L"1/2/01 3:04 PM"}}});
  writer_->EndListing();
  EXPECT_EQ(Written(), kMark + "name,folder,size,modified\r\na.txt,C:\\Data,\"1,234 KB\",1/2/01 3:04 PM\r\n");
}

TEST_F(ExactCsv, APathListGivesTheFilesOfItsPaths) {
  Style(ListingStyle::PathListFile);
  FoundItem item{L"A.txt", L"C:\\Shown", L"1 b", L"today"};
  item.PathOnDisk = L"D:\\x\\a.txt";
  item.Entry = Entry({});
  writer_->BeginListing(Run);
  writer_->FindList({L"", {item}});
  writer_->EndListing();
  EXPECT_EQ(Written(), kNames + "D:\\x\\a.txt,a.txt,file,1234,2026-01-02T03:04:05.0000000Z,,,A\r\n");
}

}  // namespace
}  // namespace folivant
