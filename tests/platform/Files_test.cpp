#include "platform/Files.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/InputFile.h"
#include "platform/RuntimeError.h"
#include "platform/Scratch.h"

namespace folivant::platform {
namespace {

template <class Act>
RuntimeError ErrorOf(Act act) {
  try {
    act();
  } catch (const RuntimeError& error) {
    return error;
  }
  ADD_FAILURE() << "nothing was thrown";
  return {FailedAction::Print, L"", L"", 0};
}

/// The current directory, put back at the end.
class Inside {
 public:
  explicit Inside(const std::wstring& folder) : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(Scratch::Native(folder));
  }
  ~Inside() { std::filesystem::current_path(before_); }
  Inside(const Inside&) = delete;
  Inside& operator=(const Inside&) = delete;

 private:
  std::filesystem::path before_;
};

TEST(Files, ReadsAllBytes) {
  const Scratch scratch;
  std::string bytes;
  for (int i = 0; i < 300'000; ++i) {
    bytes += static_cast<char>(i * 7);
  }
  EXPECT_EQ(ReadWholeFile(scratch.MakeFile(L"big", bytes)), bytes);
  EXPECT_EQ(ReadWholeFile(scratch.MakeFile(L"empty")), "");
}

TEST(Files, ReadsNothingThatIsLargerThanALimit) {
  const Scratch scratch;
  EXPECT_EQ(kLongestWholeFile, 16U * 1024 * 1024);
  const std::wstring path = scratch.MakeFile(L"large");
  std::filesystem::resize_file(Scratch::Native(path), kLongestWholeFile);
  EXPECT_EQ(ReadWholeFile(path).size(), kLongestWholeFile);
  std::filesystem::resize_file(Scratch::Native(path), kLongestWholeFile + 1);
  const RuntimeError error = ErrorOf([&] { ReadWholeFile(path); });
  EXPECT_EQ(error.Action(), FailedAction::ReadLargeFile);
  EXPECT_EQ(error.Object(), path);
  EXPECT_EQ(error.SystemText(), L"16");
  EXPECT_EQ(error.SystemCode(), 0U);
}

TEST(InputFile, ReadsInPiecesAndFromTheBeginningAgain) {
  const Scratch scratch;
  InputFile file(scratch.MakeFile(L"a.txt", "0123456789"));
  EXPECT_EQ(file.Path(), scratch.Path(L"a.txt"));
  std::string room(4, '-');
  EXPECT_EQ(file.Read(room), 4U);
  EXPECT_EQ(room, "0123");
  EXPECT_EQ(file.Read(room), 4U);
  EXPECT_EQ(file.Read(room), 2U);
  EXPECT_EQ(room, "8967");
  EXPECT_EQ(file.Read(room), 0U);
  file.Rewind();
  EXPECT_EQ(file.Read(room), 4U);
  EXPECT_EQ(room, "0123");
}

TEST(InputFile, SaysWhichFileCannotBeOpened) {
  const Scratch scratch;
  const Inside inside(scratch.Folder());
  const RuntimeError error = ErrorOf([] { const InputFile file(L"missing.txt"); });
  EXPECT_EQ(error.Action(), FailedAction::ReadFile);
  EXPECT_EQ(error.Object(), CurrentDirectory() + L"\\missing.txt");
  EXPECT_EQ(error.SystemCode(), 2U);
}

TEST(Files, SaysWhichFileCannotBeRead) {
  const Scratch scratch;
  const RuntimeError error = ErrorOf([&] { ReadWholeFile(scratch.Path(L"missing.txt")); });
  EXPECT_EQ(error.Action(), FailedAction::ReadFile);
  EXPECT_EQ(error.Object(), scratch.Path(L"missing.txt"));
  EXPECT_EQ(error.SystemCode(), 2U);  // "not found", here and there
  EXPECT_FALSE(error.SystemText().empty());
  EXPECT_EQ(error.SystemText().find_first_of(L"\r\n"), std::wstring::npos);
}

TEST(Files, SaysThatAFolderCannotBeRead) {
  const Scratch scratch;
  EXPECT_EQ(ErrorOf([&] { ReadWholeFile(scratch.Folder()); }).Action(), FailedAction::ReadFile);
}

TEST(ReplaceFile, PutsNewContentInPlace) {
  const Scratch scratch;
  scratch.MakeFile(L"a.ini", "a longer old content");
  ReplaceFile(scratch.Path(L"a.ini"), "new");
  EXPECT_EQ(scratch.Content(L"a.ini"), "new");
  ReplaceFile(scratch.Path(L"b.ini"), "");
  EXPECT_TRUE(PathExists(scratch.Path(L"b.ini")));
  EXPECT_EQ(scratch.Count(), 2);
}

TEST(ReplaceFile, LeavesNothingBehindWhenItFails) {
  const Scratch scratch;
  scratch.MakeFolder(L"folder");
  const RuntimeError error = ErrorOf([&] { ReplaceFile(scratch.Path(L"folder"), "new"); });
  EXPECT_EQ(error.Action(), FailedAction::WriteFile);
  EXPECT_EQ(error.Object(), scratch.Path(L"folder"));
  EXPECT_NE(error.SystemCode(), 0U);
  EXPECT_EQ(scratch.Count(), 1);
  EXPECT_TRUE(IsDirectory(scratch.Path(L"folder")));
}

TEST(ReplaceFile, TakesNamesAsLongAsTheyMayBe) {
  const Scratch scratch;
  for (const std::size_t length : {std::size_t{200}, std::size_t{247}, std::size_t{248}, std::size_t{255}}) {
    const std::wstring name = std::wstring(length - 4, L'n') + L".fvf";
    ReplaceFile(scratch.Path(name), "first");
    ReplaceFile(scratch.Path(name), "second");
    EXPECT_EQ(scratch.Content(name), "second") << length;
  }
  EXPECT_EQ(scratch.Count(), 4);
}

TEST(ReplaceFile, LeavesReadOnlyFilesAlone) {
  using std::filesystem::perms;
  const Scratch scratch;
  const auto path = Scratch::Native(scratch.MakeFile(L"a.fvf", "old"));
  const perms write = perms::owner_write | perms::group_write | perms::others_write;
  std::filesystem::permissions(path, write, std::filesystem::perm_options::remove);
  const RuntimeError error = ErrorOf([&] { ReplaceFile(scratch.Path(L"a.fvf"), "new"); });
  EXPECT_EQ(error.Action(), FailedAction::WriteFile);
  EXPECT_EQ(error.Object(), scratch.Path(L"a.fvf"));
  EXPECT_NE(error.SystemCode(), 0U);
  EXPECT_EQ(scratch.Content(L"a.fvf"), "old");
  EXPECT_EQ(scratch.Count(), 1);
  std::filesystem::permissions(path, write, std::filesystem::perm_options::add);
}

TEST(ReplaceFile, SaysWhenTheFolderIsMissing) {
  const Scratch scratch;
  const RuntimeError error = ErrorOf([&] { ReplaceFile(scratch.Path(L"missing\\a.ini"), "new"); });
  EXPECT_EQ(error.Action(), FailedAction::WriteFile);
  EXPECT_EQ(error.Object(), scratch.Path(L"missing\\a.ini"));
  EXPECT_EQ(scratch.Count(), 0);
}

TEST(ReplaceFile, NamesTheWholePath) {
  const Scratch scratch;
  const Inside inside(scratch.Folder());
  ReplaceFile(L"a.ini", "1");
  EXPECT_EQ(scratch.Content(L"a.ini"), "1");
  EXPECT_EQ(ErrorOf([&] { ReadWholeFile(L"missing"); }).Object(), CurrentDirectory() + L"\\missing");
}

TEST(Files, TruncatesAndRemoves) {
  const Scratch scratch;
  scratch.MakeFile(L"a", "content");
  EXPECT_TRUE(TruncateFile(scratch.Path(L"a")));
  EXPECT_EQ(scratch.Content(L"a"), "");
  EXPECT_TRUE(TruncateFile(scratch.Path(L"new")));
  EXPECT_TRUE(PathExists(scratch.Path(L"new")));
  EXPECT_FALSE(TruncateFile(scratch.Path(L"missing\\a")));
  EXPECT_TRUE(RemoveFile(scratch.Path(L"new")));
  EXPECT_FALSE(RemoveFile(scratch.Path(L"new")));
  EXPECT_FALSE(RemoveFile(scratch.Folder()));
  EXPECT_EQ(scratch.Count(), 1);
}

TEST(Files, KnowsFilesAndFolders) {
  const Scratch scratch;
  scratch.MakeFile(L"File");
  EXPECT_TRUE(PathExists(scratch.Path(L"file")));
  EXPECT_FALSE(IsDirectory(scratch.Path(L"File")));
  EXPECT_TRUE(IsDirectory(scratch.Folder()));
  EXPECT_TRUE(IsDirectory(scratch.Folder() + L'\\'));
  EXPECT_FALSE(PathExists(scratch.Path(L"missing")));
  EXPECT_FALSE(IsDirectory(scratch.Path(L"missing")));
  EXPECT_FALSE(PathExists(L""));
}

TEST(Files, MakesPathsAbsolute) {
  const Scratch scratch;
  const Inside inside(scratch.MakeFolder(L"in"));
  const std::wstring current = CurrentDirectory();
  EXPECT_TRUE(current.ends_with(L"\\in"));
  EXPECT_EQ(AbsolutePath(L"a.txt"), current + L"\\a.txt");
  EXPECT_EQ(AbsolutePath(L"b\\a.txt"), current + L"\\b\\a.txt");
  EXPECT_EQ(AbsolutePath(L".\\a.txt"), current + L"\\a.txt");
  EXPECT_EQ(AbsolutePath(L"..\\a.txt"), current.substr(0, current.size() - 2) + L"a.txt");
  EXPECT_EQ(AbsolutePath(L"\\a.txt"), current.substr(0, 2) + L"\\a.txt");
  EXPECT_EQ(AbsolutePath(L"c:\\A\\b.txt"), L"c:\\A\\b.txt");
  EXPECT_EQ(AbsolutePath(L"\\\\server\\share\\a"), L"\\\\server\\share\\a");
  EXPECT_EQ(AbsolutePath(L""), L"");
}

TEST(Files, KeepsTheBackslashOfARoot) {
  const Inside inside(L"Z:\\");
  EXPECT_EQ(CurrentDirectory().substr(1), L":\\");
}

TEST(Files, NamesFoldersThatExist) {
  EXPECT_TRUE(IsDirectory(TemporaryDirectory()));
  EXPECT_TRUE(IsDirectory(ProgramFolder()));
  EXPECT_FALSE(ProgramFolder().ends_with(L'\\'));
  EXPECT_FALSE(FindNames(ProgramFolder(), L"").empty());
}

TEST(FindNames, ComparesWithoutLetterCase) {
  const Scratch scratch;
  for (const wchar_t* name : {L"English.ini", L"DEUTSCH.INI", L"a.inix", L"ini", L"x.ini.txt", L"\u00C9t\u00E9.Ini"}) {
    scratch.MakeFile(name);
  }
  scratch.MakeFolder(L"folder.ini");
  std::vector<std::wstring> names = FindNames(scratch.Folder(), L".ini");
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::wstring>{L"DEUTSCH.INI", L"English.ini", L"folder.ini", L"\u00C9t\u00E9.Ini"}));
  EXPECT_EQ(FindNames(scratch.Folder(), L".INIX"), std::vector<std::wstring>{L"a.inix"});
  EXPECT_EQ(FindNames(scratch.Folder(), L"").size(), 7U);
  EXPECT_TRUE(FindNames(scratch.Path(L"missing"), L"").empty());
}

TEST(FreeSpace, IsThatOfTheVolume) {
  const Scratch scratch;
  const auto space = FreeSpace(scratch.Folder());
  ASSERT_TRUE(space);
  const auto expected = std::filesystem::space(Scratch::Native(scratch.Folder()));
  EXPECT_EQ(space->Total, expected.capacity);
  const double slack = 256.0 * 1024 * 1024;  // others write meanwhile
  EXPECT_NEAR(static_cast<double>(space->TotalFree), static_cast<double>(expected.available), slack);
  EXPECT_FALSE(FreeSpace(scratch.Path(L"missing")));
  EXPECT_FALSE(FreeSpace(L"Q:\\"));
}

TEST(VolumeLabel, IsEmptyWhereThereIsNoVolume) {
  EXPECT_EQ(VolumeLabel(L"Q:\\"), L"");
}

}  // namespace
}  // namespace folivant::platform
