// What only the Windows body shows.
#include <gtest/gtest.h>

#include "platform/Clock.h"
#include "platform/FindFiles.h"
#include "platform/OutputFile.h"
#include "platform/RuntimeError.h"
#include "platform/Scratch.h"
#include "platform/Store.h"
#include "platform/win32/LongPathForm.h"
#include "platform/win32/Win32.h"

#include <sddl.h>

namespace folivant::platform {
namespace {

TEST(LongPathForm, LeavesShortPathsAlone) {
  for (const wchar_t* path : {L"C:\\Data", L"relative\\a.txt", L"\\\\server\\share\\a", L"C:\\a\\..\\b.txt", L"..",
                              L".", L"C:\\", L"", L"C:\\Data\\.", L"\\\\.\\pipe\\a", L"\\\\?\\C:\\a."}) {
    EXPECT_EQ(LongPathForm(path), path);
  }
}

TEST(LongPathForm, LiftsTheLimitOfLongPaths) {
  const std::wstring name(250, L'x');
  EXPECT_EQ(LongPathForm(L"C:\\" + name), L"\\\\?\\C:\\" + name);
  EXPECT_EQ(LongPathForm(L"\\\\server\\share\\" + name), L"\\\\?\\UNC\\server\\share\\" + name);
  EXPECT_EQ(LongPathForm(L"C:\\a\\..\\b\\.\\" + name), L"\\\\?\\C:\\b\\" + name);
  EXPECT_EQ(LongPathForm(L"C:/a/" + name), L"\\\\?\\C:\\a\\" + name);
  EXPECT_EQ(LongPathForm(name), L"\\\\?\\" + CurrentDirectory() + (CurrentDirectory().size() > 3 ? L"\\" : L"") + name);
}

TEST(LongPathForm, KeepsDotsAndBlanksAtTheEndOfNames) {
  EXPECT_EQ(LongPathForm(L"C:\\folder.\\a"), L"\\\\?\\C:\\folder.\\a");
  EXPECT_EQ(LongPathForm(L"C:\\a "), L"\\\\?\\C:\\a ");
  for (const wchar_t* odd : {L"C:\\a..", L"C:\\a. \\b", L"C:\\...", L"C:\\ ", L"C:\\ \\b"}) {
    EXPECT_EQ(LongPathForm(odd), std::wstring(L"\\\\?\\") + odd);
  }
  for (const wchar_t* plain : {L"C:\\", L"C:\\a\\", L"C:\\..\\a", L"C:\\a\\.", L"a.", L".."}) {
    EXPECT_EQ(LongPathForm(plain), plain);
  }
}

TEST(EntryPathForm, IsThatOfAFileWhereTheNameIsThatOfADevice) {
  for (const wchar_t* odd : {L"C:\\a\\nul", L"C:\\a\\NUL", L"C:\\con"}) {
    EXPECT_EQ(EntryPathForm(odd), std::wstring(L"\\\\?\\") + odd);
  }
  for (const wchar_t* plain : {L"nul", L"C:\\a\\null", L"C:\\nul\\a", L"\\\\.\\NUL", L"\\\\server\\share\\a"}) {
    EXPECT_EQ(EntryPathForm(plain), plain);
  }
  EXPECT_EQ(EntryPathForm(L"C:\\a "), L"\\\\?\\C:\\a ");
}

class WindowsFiles : public testing::Test {
 protected:
  const Scratch scratch_;
};

TEST_F(WindowsFiles, FindsNamesThatEndInADot) {
  ASSERT_TRUE(CreateDirectoryW((L"\\\\?\\" + scratch_.Path(L"odd.")).c_str(), nullptr));
  scratch_.MakeFolder(L"plain");
  ASSERT_TRUE(TruncateFile(scratch_.Path(L"odd.\\inside")));
  {
    FindFiles files(scratch_.Path(L"odd."), ShortNames::Skip);
    FindData data;
    ASSERT_TRUE(files.Next(data));
    EXPECT_EQ(data.Name, L"inside");
  }
  EXPECT_EQ(FindEntry(scratch_.Path(L"odd."))->Name, L"odd.");
  EXPECT_EQ(FindEntry(scratch_.Path(L"plain."))->Name, L"plain");
  EXPECT_TRUE(RemoveFile(scratch_.Path(L"odd.\\inside")));
  EXPECT_TRUE(RemoveDirectoryW((L"\\\\?\\" + scratch_.Path(L"odd.")).c_str()));
}

TEST_F(WindowsFiles, ReportsTheSystemsAttributes) {
  const std::wstring path = scratch_.MakeFile(L"a");
  ASSERT_TRUE(SetFileAttributesW(
      path.c_str(), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE));
  EXPECT_EQ(FindEntry(path)->Data.Attributes, kReadOnly | kHidden | kSystem | kArchive);
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFiles, ReadsShortNamesOnlyWhenAsked) {
  const std::wstring path = scratch_.MakeFile(L"a name that is long.text");
  wchar_t shortPath[MAX_PATH];
  ASSERT_NE(GetShortPathNameW(path.c_str(), shortPath, MAX_PATH), 0U);
  const std::wstring shortName = std::wstring(shortPath).substr(std::wstring(shortPath).rfind(L'\\') + 1);
  FindData data;
  FindFiles with(scratch_.Folder(), ShortNames::Read);
  ASSERT_TRUE(with.Next(data));
  if (shortName.size() <= 12) {  // a volume may be set up without them
    EXPECT_EQ(data.AlternateName, shortName);
  }
  FindFiles without(scratch_.Folder(), ShortNames::Skip);
  ASSERT_TRUE(without.Next(data));
  EXPECT_EQ(data.AlternateName, L"");
}

TEST_F(WindowsFiles, OverwritesHiddenFiles) {
  const std::wstring path = scratch_.MakeFile(L"a", "old content");
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  OutputFile file;
  file.Open(path);
  file.Write(L"new");
  file.Close();
  EXPECT_EQ(scratch_.Content(L"a"), "new");
  EXPECT_TRUE(TruncateFile(path));
  EXPECT_EQ(scratch_.Content(L"a"), "");
}

TEST_F(WindowsFiles, ReplacesNoFileThatIsInUse) {
  const std::wstring path = scratch_.MakeFile(L"a", "old");
  const HANDLE held = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  try {
    ReplaceFile(path, "new");
    ADD_FAILURE() << "nothing was thrown";
  } catch (const RuntimeError& error) {
    EXPECT_NE(error.SystemCode(), 0U);
    EXPECT_FALSE(error.SystemText().empty());
  }
  CloseHandle(held);
  EXPECT_EQ(scratch_.Content(L"a"), "old");
  EXPECT_EQ(scratch_.Count(), 1);
}

TEST_F(WindowsFiles, KeepsTheAttributesOfAReplacedFile) {
  const DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
  const std::wstring path = scratch_.MakeFile(L"a", "old");
  SetFileAttributesW(path.c_str(), kept);
  ASSERT_EQ(GetFileAttributesW(path.c_str()), kept);
  ReplaceFile(path, "new");
  EXPECT_EQ(GetFileAttributesW(path.c_str()), kept);
  EXPECT_EQ(scratch_.Content(L"a"), "new");
}

/// The access list in the system's notation.
std::wstring AccessList(const std::wstring& path) {
  std::vector<BYTE> descriptor(10'000);
  DWORD size = 0;
  EXPECT_TRUE(GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), 10'000, &size));
  wchar_t* text = nullptr;
  EXPECT_TRUE(ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor.data(), SDDL_REVISION_1,
                                                                   DACL_SECURITY_INFORMATION, &text, nullptr));
  const std::wstring list = text;
  LocalFree(text);
  return list;
}

TEST_F(WindowsFiles, KeepsTheAccessListOfAReplacedFile) {
  const std::wstring path = scratch_.MakeFile(L"a", "old");
  const std::wstring usual = AccessList(path);
  PSECURITY_DESCRIPTOR everybody = nullptr;
  ASSERT_TRUE(
      ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;FA;;;WD)", SDDL_REVISION_1, &everybody, nullptr));
  ASSERT_TRUE(SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, everybody));
  LocalFree(everybody);
  const std::wstring own = AccessList(path);
  ASSERT_NE(own, usual) << "this file system keeps no lists";
  ReplaceFile(path, "new");
  EXPECT_EQ(AccessList(path), own);
  EXPECT_EQ(scratch_.Content(L"a"), "new");
  EXPECT_EQ(AccessList(scratch_.MakeFile(L"b")), usual);
}

TEST(WindowsClock, ShiftsFileTimesAsTheSystemDoes) {
  for (const std::uint64_t utc : {126'000'000'000'000'000ULL, 133'500'000'000'000'007ULL, 900'000'000'000ULL}) {
    const FILETIME time{static_cast<DWORD>(utc), static_cast<DWORD>(utc >> 32)};
    FILETIME local;
    ASSERT_TRUE(FileTimeToLocalFileTime(&time, &local));
    EXPECT_EQ(ToLocalFileTime(utc, LocalOffset()), std::uint64_t{local.dwHighDateTime} << 32 | local.dwLowDateTime);
  }
}

class WindowsStore : public testing::Test {
 protected:
  ~WindowsStore() override { RegDeleteKeyW(HKEY_CURRENT_USER, (L"Software\\Folivant 3.0\\" + section_).c_str()); }
  const std::wstring section_ = L"Test " + std::to_wstring(GetCurrentProcessId());
};

TEST_F(WindowsStore, KeepsTextInTheRegistry) {
  EXPECT_FALSE(StoreSection(section_).Read(L"Key"));
  WriteStore(section_, L"Key", L"value \u65E5");
  WriteStore(section_, L"Empty", L"");
  WriteStore(section_, L"Long", std::wstring(5000, L'x'));
  EXPECT_EQ(StoreSection(section_).Read(L"kEY"), L"value \u65E5");
  EXPECT_EQ(StoreSection(section_).Read(L"Empty"), L"");
  EXPECT_EQ(StoreSection(section_).Read(L"Long"), std::wstring(5000, L'x'));
  wchar_t value[50];
  DWORD size = sizeof value;
  EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, (L"Software\\Folivant 3.0\\" + section_).c_str(), L"Key", RRF_RT_REG_SZ,
                         nullptr, value, &size),
            ERROR_SUCCESS);
  EXPECT_STREQ(value, L"value \u65E5");
  EXPECT_EQ(StoreName(section_), L"HKEY_CURRENT_USER\\Software\\Folivant 3.0\\" + section_);
}

TEST_F(WindowsStore, ReadsTextOnly) {
  WriteStore(section_, L"Key", L"1");
  const DWORD number = 1;
  ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, (L"Software\\Folivant 3.0\\" + section_).c_str(), L"Number", REG_DWORD,
                            &number, sizeof number),
            ERROR_SUCCESS);
  EXPECT_FALSE(StoreSection(section_).Read(L"Number"));
}

TEST_F(WindowsStore, ReadsTextThatOtherProgramsStoredCarelessly) {
  WriteStore(section_, L"Key", L"1");
  const struct {
    std::wstring_view stored;
    DWORD bytes;
    const wchar_t* text;
  } rows[] = {
      {L"", 0, L""},          // nothing at all
      {L"ab", 4, L"ab"},      // without its NUL
      {L"ab", 3, L"a"},       // half a character at its end
      {L"\0", 2, L""},        // a NUL alone
      {L"ab\0cd", 10, L"ab"}  // more behind its NUL
  };
  for (const auto& row : rows) {
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, (L"Software\\Folivant 3.0\\" + section_).c_str(), L"Odd", REG_SZ,
                              row.stored.data(), row.bytes),
              ERROR_SUCCESS);
    EXPECT_EQ(StoreSection(section_).Read(L"Odd"), row.text) << row.bytes << " bytes";
  }
}

TEST_F(WindowsStore, NamesSectionAndKeyOfAFailedWrite) {
  const std::wstring tooLong(300, L's');  // the registry takes 255 characters
  try {
    WriteStore(tooLong, L"Key", L"x");
    FAIL() << "nothing was thrown";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Action(), FailedAction::WriteSetting);
    EXPECT_EQ(error.Object(), L"HKEY_CURRENT_USER\\Software\\Folivant 3.0\\" + tooLong + L"\\Key");
    EXPECT_NE(error.SystemCode(), 0U);
  }
}

TEST(WindowsShell, NamesASendToFolderThatExists) {
  const auto folder = SendToFolder();
  wchar_t profile[MAX_PATH] = L"";
  GetEnvironmentVariableW(L"USERPROFILE", profile, MAX_PATH);
  const std::wstring usual = std::wstring(profile) + L"\\AppData\\Roaming\\Microsoft\\Windows\\SendTo";
  ASSERT_EQ(folder.has_value(), IsDirectory(usual));
  if (folder) {
    EXPECT_TRUE(IsDirectory(*folder));
  }
}

}  // namespace
}  // namespace folivant::platform
