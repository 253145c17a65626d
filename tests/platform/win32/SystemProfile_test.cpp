// Our reading and editing of private-profile text beside the system's own.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "platform/ProfileText.h"
#include "platform/Scratch.h"
#include "platform/win32/Win32.h"

namespace folivant::platform {
namespace {

constexpr const wchar_t* kNone = L"(none)";

std::wstring BySystem(const std::wstring& path, const wchar_t* section, const wchar_t* key) {
  wchar_t value[2000];
  GetPrivateProfileStringW(section, key, kNone, value, 2000, path.c_str());
  return value;
}

const std::vector<std::string> kTexts{
    "",
    "k=1",
    "[S]\r\nk=1\r\n",
    "[S]\nk=1\nk=2\n",
    "[s]\r\nK=1\r\n[S]\r\nk=2\r\nj=3\r\n",
    "  [S]  \r\n  k  =  a b  \r\n",
    "[S]\r\nk=\"quoted\"\r\nj='single'\r\n",
    "[S]\r\nk=\" blanks \"\r\nj=\"\"\r\n",
    "[S]\r\nk=\"\"double\"\"\r\nj=\"mixed'\r\n",
    "[S]\r\nk=\"\r\nj='\r\n",
    "[S]\r\n;k=1\r\nk=2;3\r\n",
    "[S]\r\nk\r\nj=\r\n",
    "[S]\r\n=1\r\nk==2\r\n",
    "[T]\r\nk=0\r\n\r\n[S]\r\n\r\nk=1\r\n\r\n\r\n[U]\r\n",
    "[S]\r\nk=\xE4\xF6\x80\r\n",
    "[S]\r\n\tk\t=\t1\t\r\n",
    "[S] rest\r\nk=1\r\n",
    "[S]\r\nk=1\r\n[S",
    "text before\r\n[S]\r\nk=1",
    std::string("\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0\xAC\x20\r\0\n\0", 22),
};

class SystemProfile : public testing::TestWithParam<std::string> {
 protected:
  const Scratch scratch_;
};

TEST_P(SystemProfile, ReadsAlike) {
  const std::wstring path = scratch_.MakeFile(L"a.ini", GetParam());
  const ProfileText text(GetParam());
  for (const wchar_t* section : {L"S", L"s", L"T", L"missing"}) {
    for (const wchar_t* key : {L"k", L"K", L"j", L"missing"}) {
      EXPECT_EQ(text.Read(section, key).value_or(kNone), BySystem(path, section, key))
          << Scratch::Native(section) << ' ' << Scratch::Native(key);
    }
  }
}

/// Every value must read alike from the file that the system edited and from our text.
TEST_P(SystemProfile, EditsAlike) {
  const std::wstring path = scratch_.MakeFile(L"a.ini", GetParam());
  ProfileText ours(GetParam());
  const std::vector<std::pair<const wchar_t*, const wchar_t*>> writes{
      {L"S", L"k"}, {L"S", L"new"}, {L"T", L"K"}, {L"added", L"j"}};
  for (const auto& [section, key] : writes) {
    ASSERT_TRUE(WritePrivateProfileStringW(section, key, L"written 1", path.c_str()));
    ours.Write(section, key, L"written 1");
  }
  const std::wstring oursPath = scratch_.MakeFile(L"ours.ini", ours.Bytes());
  const ProfileText theirs(scratch_.Content(L"a.ini"));
  for (const wchar_t* section : {L"S", L"T", L"U", L"added"}) {
    for (const wchar_t* key : {L"k", L"j", L"new"}) {
      const std::wstring value = ours.Read(section, key).value_or(kNone);
      EXPECT_EQ(value, BySystem(path, section, key));
      EXPECT_EQ(value, BySystem(oursPath, section, key));
      EXPECT_EQ(value, theirs.Read(section, key).value_or(kNone));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Texts, SystemProfile, testing::ValuesIn(kTexts));

TEST(SystemProfileBytes, AreTheSystemsOwn) {
  const Scratch scratch;
  const std::string before = "; head\r\n[A]\r\nx=1\r\n[S]\r\nk=old\r\n[B]\r\ny=2\r\n";  // Wine drops empty lines
  const std::wstring path = scratch.MakeFile(L"a.ini", before);
  ProfileText ours(before);
  for (const auto& [section, key] : {std::pair(L"S", L"k"), {L"S", L"n"}, {L"C", L"z"}}) {
    WritePrivateProfileStringW(section, key, L"v", path.c_str());
    ours.Write(section, key, L"v");
  }
  WritePrivateProfileStringW(nullptr, nullptr, nullptr, path.c_str());  // flushes
  EXPECT_EQ(ours.Bytes(), scratch.Content(L"a.ini"));
}

TEST(SystemProfileBytes, WhatTheCodePageLacksIsReadByTheSystemToo) {
  const Scratch scratch;
  ProfileText ours("; ansi \xE9\r\n[S]\r\nk=old\r\n");
  ours.Write(L"S", L"k", L"C:\\\u0416\U0001F600");
  EXPECT_EQ(BySystem(scratch.MakeFile(L"a.ini", ours.Bytes()), L"S", L"k"), L"C:\\\u0416\U0001F600");
}

}  // namespace
}  // namespace folivant::platform
