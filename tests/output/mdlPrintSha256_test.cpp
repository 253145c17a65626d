#include "output/mdlPrintSha256.h"

#include "output/WriterFixture.h"

namespace folivant {
namespace {

class Sha256List : public WriterFixture {
 protected:
  static FileRecord Entry(std::wstring_view name, std::uint32_t attributes = platform::kArchive) {
    FileRecord entry;
    entry.Name = name;
    entry.Attributes = attributes;
    return entry;
  }
  std::string Listed(std::wstring_view path, const std::vector<FileRecord>& entries) {
    writer_->BeginListing(Run);
    List(*writer_, path, entries);
    writer_->EndListing();
    return Written();
  }

  std::unique_ptr<ListingWriter> writer_ = MakeSha256Writer();
};

TEST_F(Sha256List, FilesHaveTheirSumAndTheirPathFromTheStart) {
  fakes::Tree().Dir(L"C:\\Data").FileWith(L"a.txt", "abc");
  fakes::Tree().Dir(L"C:\\Data\\Sub").FileWith(L"\u00E4 b", "");
  EXPECT_EQ(Listed(L"C:\\Data", {Entry(L"Sub", platform::kDirectory), Entry(L"a.txt")}), "sum(abc)  a.txt\n");
  EXPECT_EQ(Listed(L"C:\\Data\\Sub", {Entry(L"\u00E4 b")}), "sum()  Sub/\xC3\xA4 b\n");
}

TEST_F(Sha256List, ALineBreakInANameIsEscaped) {
  fakes::Tree().Dir(L"C:\\Data").FileWith(L"a\nb\rc", "x");
  EXPECT_EQ(Listed(L"C:\\Data", {Entry(L"a\nb\rc")}), "\\sum(x)  a\\nb\\rc\n");
}

TEST_F(Sha256List, AFileThatCannotBeReadHasNoLineAndIsNamed) {
  fakes::Tree().Dir(L"C:\\Data").File(L"locked").Unreadable();
  EXPECT_EQ(Listed(L"C:\\Data", {Entry(L"locked")}), "");
  ASSERT_EQ(Run.Unread.size(), 1U);
  EXPECT_EQ(Run.Unread[0].Path, L"C:\\Data\\locked");
}

TEST_F(Sha256List, AFileElsewhereHasItsFullPath) {
  fakes::Tree().Dir(L"D:\\x").FileWith(L"a.txt", "abc");
  Style(ListingStyle::PathListFile);
  FoundItem item{L"A.txt", L"D:\\x", L"", L""};
  item.PathOnDisk = L"D:\\x\\a.txt";
  writer_->BeginListing(Run);
  writer_->FindList({L"", {item}});
  writer_->EndListing();
  EXPECT_EQ(Written(), "sum(abc)  D:/x/a.txt\n");
}

TEST_F(Sha256List, ARunThatIsCancelledWithinAFileWritesNoLineForIt) {
  fakes::Tree().Dir(L"C:\\Data").FileWith(L"a.txt", "abc");
  Run.Cancelled = true;
  writer_->BeginListing(Run);
  List(*writer_, L"C:\\Data", {Entry(L"a.txt")});
  writer_->AbortListing();
  EXPECT_EQ(Written(), "");
}

}  // namespace
}  // namespace folivant
