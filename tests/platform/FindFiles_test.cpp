#include "platform/FindFiles.h"

#include <gtest/gtest.h>

#include <ctime>
#include <map>
#include <set>

#include "platform/Scratch.h"

namespace folivant::platform {
namespace {

struct Seen {
  std::uint32_t Attributes;
  std::uint64_t Size;
};

std::map<std::wstring, Seen> List(const std::wstring& folder) {
  std::map<std::wstring, Seen> seen;
  FindFiles files(folder, ShortNames::Skip);
  for (FindData data; files.Next(data);) {
    seen[std::wstring(data.Name)] = {data.Attributes, data.Size};
  }
  return seen;
}

std::wstring NameFound(const std::wstring& path) {
  const auto entry = FindEntry(path);
  return entry ? entry->Name : L"(nothing)";
}

TEST(FindFiles, ListsEveryEntryOnceWithoutDots) {
  const Scratch scratch;
  std::set<std::wstring> expected;
  for (int i = 0; i < 3000; ++i) {  // more than one block of the system's
    const std::wstring name = L"entry number " + std::to_wstring(i) + L".txt";
    scratch.MakeFile(name);
    expected.insert(name);
  }
  std::multiset<std::wstring> seen;
  FindFiles files(scratch.Folder(), ShortNames::Skip);
  ASSERT_TRUE(files.Opened());
  for (FindData data; files.Next(data);) {
    seen.emplace(data.Name);
  }
  EXPECT_FALSE(files.Failed());
  EXPECT_EQ(seen, std::multiset<std::wstring>(expected.begin(), expected.end()));
}

TEST(FindFiles, TellsFilesFromFolders) {
  const Scratch scratch;
  scratch.MakeFile(L"a.txt", "12345");
  scratch.MakeFolder(L"Sub");
  auto seen = List(scratch.Folder());
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_EQ(seen[L"a.txt"].Attributes, kArchive);
  EXPECT_EQ(seen[L"a.txt"].Size, 5U);
  EXPECT_EQ(seen[L"Sub"].Attributes, kDirectory);
  EXPECT_EQ(seen[L"Sub"].Size, 0U);
}

TEST(FindFiles, ReportsSizesBeyondFourGigabytes) {
  const Scratch scratch;
  scratch.MakeFile(L"big");
  std::filesystem::resize_file(Scratch::Native(scratch.Path(L"big")), 0x1'8000'0001);
  FindFiles files(scratch.Folder(), ShortNames::Skip);
  FindData data;
  ASSERT_TRUE(files.Next(data));
  EXPECT_EQ(data.Size, 0x1'8000'0001U);
}

TEST(FindFiles, KeepsNamesAsOnDisk) {
  const Scratch scratch;
  const std::set<std::wstring> names{L"\u00C4rger \u20AC.txt",
                                     L"\u041F\u0440\u0438\u0432\u0435\u0442",
                                     L"\u65E5\u672C",
                                     L"smile \U0001F600",
                                     L"UPPER.TXT",
                                     L"lower",
                                     L"with blank"};
  for (const std::wstring& name : names) {
    scratch.MakeFile(name);
  }
  std::set<std::wstring> seen;
  for (const auto& [name, entry] : List(scratch.Folder())) {
    seen.insert(name);
  }
  EXPECT_EQ(seen, names);
}

TEST(FindFiles, IsEmptyForAnEmptyFolder) {
  const Scratch scratch;
  FindFiles files(scratch.Folder() + L'\\', ShortNames::Read);
  FindData data;
  EXPECT_TRUE(files.Opened());
  EXPECT_FALSE(files.Next(data));
  EXPECT_FALSE(files.Next(data));
  EXPECT_FALSE(files.Failed());
}

TEST(FindFiles, DoesNotOpenWhatIsNoFolder) {
  const Scratch scratch;
  scratch.MakeFile(L"a.txt");
  for (const std::wstring& path : {scratch.Path(L"missing"), scratch.Path(L"missing\\below"), scratch.Path(L"a.txt"),
                                   std::wstring(L"Q:\\nowhere")}) {
    FindFiles files(path, ShortNames::Skip);
    FindData data;
    EXPECT_FALSE(files.Opened()) << Scratch::Native(path);
    EXPECT_FALSE(files.Next(data));
  }
}

TEST(FindFiles, EnumeratesTwoFoldersAtATime) {
  const Scratch scratch;
  scratch.MakeFolder(L"outer\\inner");
  scratch.MakeFile(L"outer\\inner\\deep.txt");
  FindFiles outer(scratch.Path(L"outer"), ShortNames::Skip);
  FindData data;
  ASSERT_TRUE(outer.Next(data));
  EXPECT_EQ(List(scratch.Path(L"outer\\inner")).count(L"deep.txt"), 1U);
  EXPECT_EQ(data.Name, L"inner");
  EXPECT_FALSE(outer.Next(data));
}

TEST(FindFiles, ReportsTheLastWriteInUtc) {
  const Scratch scratch;
  const std::wstring path = scratch.MakeFile(L"a.txt");
  // 2001-09-09 01:46:40 UTC is second 1,000,000,000 of 1970, and 1970 is second 11,644,473,600 of 1601.
  const auto since1970 = std::chrono::sys_seconds(std::chrono::seconds(1'000'000'000));
  std::filesystem::last_write_time(Scratch::Native(path), std::filesystem::file_time_type::clock::now() -
                                                              (std::chrono::system_clock::now() - since1970));
  const auto entry = FindEntry(path);
  ASSERT_TRUE(entry);
  constexpr std::uint64_t kExpected = 12'644'473'600ULL * 10'000'000;
  EXPECT_NEAR(static_cast<double>(entry->Data.LastWrite), static_cast<double>(kExpected), 2e7);  // two seconds
}

TEST(FindFiles, ReportsWhenAnEntryWasMadeAndRead) {
  constexpr double kFrom1601To1970 = 11'644'473'600;
  const Scratch scratch;
  const std::wstring path = scratch.MakeFile(L"a.txt");
  FindFiles files(scratch.Folder(), ShortNames::Skip);
  FindData data;
  ASSERT_TRUE(files.Next(data));
  const auto entry = FindEntry(path);
  ASSERT_TRUE(entry);
  for (const FindData& seen : {data, entry->Data}) {
    for (const std::uint64_t time : {seen.Created, seen.LastAccess}) {
      EXPECT_NEAR(static_cast<double>(time) / 1e7 - kFrom1601To1970, static_cast<double>(std::time(nullptr)), 60);
    }
    EXPECT_EQ(seen.ReparseTag, 0U);
  }
}

TEST(FindFiles, SaysWhyADirectoryCannotBeRead) {
  const Scratch scratch;
  FindFiles files(scratch.Path(L"missing"), ShortNames::Skip);
  EXPECT_FALSE(files.Opened());
  EXPECT_NE(files.Reason().Code, 0U);
  EXPECT_NE(files.Reason().Text, L"");
}

TEST(FindFiles, GoesDeeperThanThePathLimit) {
  Scratch scratch;
  const std::wstring folder = scratch.MakeDeepFolder();
  ASSERT_GT(folder.size(), 400U);
  EXPECT_TRUE(TruncateFile(folder + L"\\bottom.txt"));
  EXPECT_EQ(List(folder).count(L"bottom.txt"), 1U);
  EXPECT_EQ(NameFound(folder + L"\\BOTTOM.TXT"), L"bottom.txt");
  EXPECT_TRUE(IsDirectory(folder));
  EXPECT_TRUE(IdentityOf(folder));
  ReplaceFile(folder + L"\\bottom.txt", "content");
  EXPECT_EQ(ReadWholeFile(folder + L"\\bottom.txt"), "content");
  EXPECT_TRUE(FreeSpace(folder));
  EXPECT_TRUE(RemoveFile(folder + L"\\bottom.txt"));
  EXPECT_FALSE(PathExists(folder + L"\\bottom.txt"));
}

TEST(FindFiles, OnlyItsOwnAttributeMakesALink) {
  FindData data;
  data.Attributes = kReadOnly | kHidden | kSystem | kDirectory | kArchive;
  EXPECT_FALSE(data.IsLink());
  data.Attributes = 0x400;  // as the file system has it
  EXPECT_TRUE(data.IsLink());
  EXPECT_FALSE(data.IsDirectory());
}

TEST(FindEntry, AnswersTheNameOnDisk) {
  const Scratch scratch;
  scratch.MakeFolder(L"Some Folder");
  scratch.MakeFile(L"Some Folder\\Mixed Case.TXT", "abc");
  EXPECT_EQ(NameFound(scratch.Path(L"some folder")), L"Some Folder");
  const auto entry = FindEntry(scratch.Path(L"SOME FOLDER\\mixed case.txt"));
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->Name, L"Mixed Case.TXT");
  EXPECT_EQ(entry->Data.Attributes, kArchive);
  EXPECT_EQ(entry->Data.Size, 3U);
}

TEST(FindEntry, ExpandsNoWildcards) {
  const Scratch scratch;
  scratch.MakeFile(L"a.txt");
  for (const wchar_t* name : {L"*", L"*.txt", L"?.txt", L"<.txt", L"a.tx>", L"a\".txt"}) {
    EXPECT_EQ(NameFound(scratch.Path(name)), L"(nothing)") << Scratch::Native(name);
  }
}

TEST(FindEntry, NeedsALastComponent) {
  const Scratch scratch;
  EXPECT_EQ(NameFound(scratch.Folder() + L'\\'), L"(nothing)");
  EXPECT_EQ(NameFound(scratch.Path(L"missing")), L"(nothing)");
  EXPECT_EQ(NameFound(scratch.Path(L"missing\\below")), L"(nothing)");
  EXPECT_EQ(NameFound(L""), L"(nothing)");
  EXPECT_EQ(NameFound(L"Z:\\"), L"(nothing)");
}

TEST(IdentityOf, IsTheFolderWhateverItsSpelling) {
  const Scratch scratch;
  const auto one = IdentityOf(scratch.MakeFolder(L"One"));
  const auto two = IdentityOf(scratch.MakeFolder(L"Two"));
  ASSERT_TRUE(one);
  EXPECT_EQ(one, IdentityOf(scratch.Path(L"oNE")));
  EXPECT_EQ(one, IdentityOf(scratch.Path(L"One\\")));
  EXPECT_NE(one, two);
  EXPECT_FALSE(IdentityOf(scratch.Path(L"Three")));
}

}  // namespace
}  // namespace folivant::platform
