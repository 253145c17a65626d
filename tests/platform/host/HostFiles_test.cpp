// What only the host body shows: links, devices, odd bytes in names, paths in pieces, rights.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <map>

#include "platform/FileFacts.h"
#include "platform/FindFiles.h"
#include "platform/RuntimeError.h"
#include "platform/Scratch.h"
#include "platform/Utf8.h"

namespace folivant::platform {
namespace {

std::map<std::wstring, std::uint32_t> Attributes(const std::wstring& folder) {
  std::map<std::wstring, std::uint32_t> seen;
  FindFiles files(folder, ShortNames::Skip);
  for (FindData data; files.Next(data);) {
    seen[std::wstring(data.Name)] = data.Attributes;
  }
  return seen;
}

/// Runs `act` as somebody without rights, in a process of its own; true when it answered so.
template <class Act>
bool AsNobody(Act act) {
  const pid_t child = fork();
  if (child == 0) {
    constexpr uid_t kNobody = 65534;
    const bool dropped = geteuid() != 0 || seteuid(kNobody) == 0;
    _exit(dropped && act() ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

class HostFiles : public testing::Test {
 protected:
  std::filesystem::path At(const char* name) const { return Scratch::Native(scratch_.Folder()) / name; }
  const Scratch scratch_;
};

TEST_F(HostFiles, BelongToTheirUser) {
  EXPECT_EQ(OwnerOf(scratch_.MakeFile(L"mine")), FromUtf8(getpwuid(geteuid())->pw_name));
  if (geteuid() == 0) {
    constexpr uid_t kUnknownUser = 1'234'567'890;
    ASSERT_EQ(chown(At("mine").c_str(), kUnknownUser, kUnknownUser), 0);
    EXPECT_EQ(OwnerOf(scratch_.Path(L"mine")), L"1234567890") << "a user who is gone";
  }
}

TEST_F(HostFiles, TakesAttributesFromModeAndName) {
  scratch_.MakeFile(L"plain");
  scratch_.MakeFile(L".dot");
  scratch_.MakeFile(L"nobody writes");
  scratch_.MakeFile(L"group writes");
  scratch_.MakeFolder(L".hidden");
  scratch_.MakeFolder(L"locked");
  chmod(At("nobody writes").c_str(), 0444);
  chmod(At("group writes").c_str(), 0460);
  chmod(At("locked").c_str(), 0555);
  auto seen = Attributes(scratch_.Folder());
  EXPECT_EQ(seen[L"plain"], kArchive);
  EXPECT_EQ(seen[L".dot"], kArchive | kHidden);
  EXPECT_EQ(seen[L"nobody writes"], kArchive | kReadOnly);
  EXPECT_EQ(seen[L"group writes"], kArchive);
  EXPECT_EQ(seen[L".hidden"], kDirectory | kHidden);
  EXPECT_EQ(seen[L"locked"], kDirectory | kReadOnly);
}

TEST_F(HostFiles, FollowsLinksAndDoesNotSeeBrokenOnes) {
  scratch_.MakeFile(L"file", "12345");
  scratch_.MakeFolder(L"folder");
  std::filesystem::create_symlink("file", At("to file"));
  std::filesystem::create_symlink("folder", At("to folder"));
  std::filesystem::create_symlink("nowhere", At("broken"));
  std::filesystem::create_symlink("circle", At("circle"));
  const std::map<std::wstring, std::uint32_t> expected{
      {L"file", kArchive}, {L"to file", kArchive}, {L"folder", kDirectory}, {L"to folder", kDirectory | kLink}};
  EXPECT_EQ(Attributes(scratch_.Folder()), expected);
  EXPECT_EQ(FindEntry(scratch_.Path(L"to file"))->Data.Size, 5U);
  EXPECT_EQ(FindEntry(scratch_.Path(L"TO FOLDER"))->Data.Attributes, kDirectory | kLink);
  EXPECT_FALSE(FindEntry(scratch_.Path(L"broken")));
  EXPECT_FALSE(PathExists(scratch_.Path(L"broken")));
  EXPECT_EQ(IdentityOf(scratch_.Path(L"to folder")), IdentityOf(scratch_.Path(L"folder")));
}

TEST_F(HostFiles, ListsPipesAndDevicesAsEmptyFiles) {
  ASSERT_EQ(mkfifo(At("pipe").c_str(), 0644), 0);
  EXPECT_EQ(Attributes(scratch_.Folder())[L"pipe"], kArchive);
  EXPECT_EQ(Attributes(L"Z:\\dev")[L"null"], kArchive);
}

TEST_F(HostFiles, MarksMountedVolumesAsLinks) {
  struct stat root;
  struct stat proc;
  if (stat("/", &root) != 0 || stat("/proc", &proc) != 0 || root.st_dev == proc.st_dev) {
    GTEST_SKIP() << "nothing is mounted at /proc";
  }
  EXPECT_NE(Attributes(L"Z:\\")[L"proc"] & kLink, 0U);
  EXPECT_NE(FindEntry(L"Z:\\proc")->Data.Attributes & kLink, 0U);
}

TEST_F(HostFiles, ReadsTimesBefore1970AndInFractions) {
  scratch_.MakeFile(L"old");
  const timespec times[2] = {{-1, 500'000'000}, {-1, 500'000'000}};
  ASSERT_EQ(utimensat(AT_FDCWD, At("old").c_str(), times, 0), 0);
  EXPECT_EQ(FindEntry(scratch_.Path(L"old"))->Data.LastWrite, 11'644'473'600ULL * 10'000'000 - 5'000'000);
}

// Worked out from Wine's rules for broken sequences; each row is a name's bytes and what is shown.
TEST_F(HostFiles, ShowsBrokenUtf8AsReplacementCharacters) {
  const std::map<std::string, std::wstring> rows{
      {"a\xFFz", L"a\uFFFDz"},                        // no first byte at all
      {"b\xE2\x82", L"b\uFFFD"},                      // cut off
      {"c\xC0\xAFz", L"c\uFFFD\uFFFDz"},              // a form that is never used
      {"d\xED\xA0\x80z", L"d\uFFFD\uFFFDz"},          // half of a pair
      {"e\xF4\x90\x80\x80", L"e\uFFFD\uFFFD\uFFFD"},  // beyond the last character
      {"f\xE2\x41z", L"f\uFFFDAz"},                   // broken off by a letter
      {"g\xF0\x9F\x98\x80", L"g\U0001F600"},
  };
  for (const auto& [bytes, shown] : rows) {
    EXPECT_EQ(FromUtf8(bytes), shown);
    std::filesystem::create_directory(At(bytes.c_str()));
    EXPECT_EQ(Attributes(scratch_.Folder()).count(shown), 1U) << bytes;
    EXPECT_TRUE(FindFiles(scratch_.Path(shown), ShortNames::Skip).Opened()) << bytes;
  }
}

TEST_F(HostFiles, PrefersTheExactName) {
  scratch_.MakeFile(L"name", "lower");
  scratch_.MakeFile(L"NAME", "upper");
  EXPECT_EQ(ReadWholeFile(scratch_.Path(L"name")), "lower");
  EXPECT_EQ(ReadWholeFile(scratch_.Path(L"NAME")), "upper");
  EXPECT_TRUE(FindEntry(scratch_.Path(L"Name")));
}

TEST_F(HostFiles, FindsFoldersWhateverTheirCase) {
  scratch_.MakeFolder(L"Upper\\\u00C4rger\\deep");
  scratch_.MakeFile(L"Upper\\\u00C4rger\\deep\\File.txt", "x");
  EXPECT_EQ(ReadWholeFile(scratch_.Path(L"UPPER\\\u00E4RGER\\Deep\\fILE.TXT")), "x");
  EXPECT_TRUE(FindFiles(scratch_.Path(L"upper\\\u00E4rger\\DEEP"), ShortNames::Skip).Opened());
  ReplaceFile(scratch_.Path(L"upper\\\u00E4rger\\deep\\file.TXT"), "y");
  EXPECT_EQ(scratch_.Content(L"Upper\\\u00C4rger\\deep\\File.txt"), "y");
  ReplaceFile(scratch_.Path(L"upper\\New.txt"), "z");
  EXPECT_EQ(scratch_.Content(L"Upper\\New.txt"), "z");
}

TEST_F(HostFiles, OpensPathsLongerThanTheSystemTakes) {
  int folder = open(At("").c_str(), O_PATH | O_DIRECTORY);
  std::wstring path = scratch_.Folder();
  const std::string name(200, 'd');
  while (path.size() < PATH_MAX + 1000) {
    ASSERT_EQ(mkdirat(folder, name.c_str(), 0777), 0);
    const int next = openat(folder, name.c_str(), O_PATH | O_DIRECTORY);
    close(folder);
    folder = next;
    path += L'\\' + std::wstring(name.begin(), name.end());
  }
  close(folder);
  ReplaceFile(path + L"\\bottom.txt", "12345");
  EXPECT_EQ(ReadWholeFile(path + L"\\BOTTOM.txt"), "12345");
  EXPECT_EQ(Attributes(path).count(L"bottom.txt"), 1U);
  EXPECT_EQ(FindEntry(path + L"\\bottom.txt")->Data.Size, 5U);
  EXPECT_TRUE(IdentityOf(path));
  EXPECT_FALSE(FindFiles(path + L"\\missing", ShortNames::Skip).Opened());
}

TEST_F(HostFiles, KnowsOnlyOneDrive) {
  scratch_.MakeFile(L"a.txt", "x");
  const std::wstring below = scratch_.Path(L"a.txt").substr(2);
  EXPECT_TRUE(PathExists(L"z:" + below));
  EXPECT_TRUE(PathExists(L"\\\\?\\Z:" + below));
  EXPECT_FALSE(PathExists(L"C:" + below));
  EXPECT_FALSE(PathExists(L"\\\\server\\share"));
  EXPECT_TRUE(IsDirectory(L"Z:\\"));
  EXPECT_FALSE(IdentityOf(L"C:\\"));
}

TEST_F(HostFiles, DoesNotOpenAFolderWithoutRights) {
  scratch_.MakeFolder(L"closed");
  scratch_.MakeFile(L"closed\\a.txt");
  chmod(At("closed").c_str(), 0);
  EXPECT_TRUE(AsNobody([&] {
    FindFiles files(scratch_.Path(L"closed"), ShortNames::Skip);
    FindData data;
    return !files.Opened() && !files.Next(data);
  }));
  chmod(At("closed").c_str(), 0777);
}

TEST_F(HostFiles, SaysWhyAFileCannotBeReplaced) {
  scratch_.MakeFolder(L"closed");
  chmod(At("closed").c_str(), 0555);
  EXPECT_TRUE(AsNobody([&] {
    try {
      ReplaceFile(scratch_.Path(L"closed\\a.ini"), "x");
    } catch (const RuntimeError& error) {
      return error.SystemCode() == EACCES && error.SystemText() == L"Permission denied";
    }
    return false;
  }));
  chmod(At("closed").c_str(), 0777);
}

TEST_F(HostFiles, KeepsTheModeOfAReplacedFile) {
  scratch_.MakeFile(L"private");
  chmod(At("private").c_str(), 0600);
  ReplaceFile(scratch_.Path(L"private"), "new");
  struct stat status;
  ASSERT_EQ(stat(At("private").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0600U);
}

TEST_F(HostFiles, KeepsAModeThatTheUserMaskWouldCut) {
  const mode_t before = umask(0077);
  scratch_.MakeFile(L"shared");
  chmod(At("shared").c_str(), 0664);
  ReplaceFile(scratch_.Path(L"shared"), "new");
  umask(before);
  struct stat status;
  ASSERT_EQ(stat(At("shared").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0664U);
}

TEST_F(HostFiles, KeepsTheOwnerOfAReplacedFile) {
  if (geteuid() != 0) {
    GTEST_SKIP() << "only root may give files away";
  }
  scratch_.MakeFile(L"theirs");
  ASSERT_EQ(chown(At("theirs").c_str(), 65534, 65533), 0);
  ReplaceFile(scratch_.Path(L"theirs"), "new");
  struct stat status;
  ASSERT_EQ(stat(At("theirs").c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, 65534U);
  EXPECT_EQ(status.st_gid, 65533U);
  EXPECT_EQ(scratch_.Content(L"theirs"), "new");
}

TEST_F(HostFiles, AFullDiskLeavesTheOldContentAndNothingElse) {
  scratch_.MakeFile(L"a", "old");
  const pid_t child = fork();
  if (child == 0) {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit none{1000, 1000};  // bytes that a file may have
    setrlimit(RLIMIT_FSIZE, &none);
    try {
      ReplaceFile(scratch_.Path(L"a"), std::string(5000, 'n'));
    } catch (const RuntimeError& error) {
      _exit(error.SystemCode() == EFBIG ? 0 : 1);
    }
    _exit(2);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(scratch_.Content(L"a"), "old");
  EXPECT_EQ(scratch_.Count(), 1);
}

TEST_F(HostFiles, EndsWhenTheFolderVanishes) {
  scratch_.MakeFolder(L"going");
  FindFiles files(scratch_.Path(L"going"), ShortNames::Skip);
  ASSERT_TRUE(files.Opened());
  std::filesystem::remove(At("going"));
  FindData data;
  EXPECT_FALSE(files.Next(data));
  EXPECT_FALSE(files.Next(data));
  EXPECT_TRUE(files.Failed());
}

}  // namespace
}  // namespace folivant::platform
