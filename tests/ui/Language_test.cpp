#include "ui/Language.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"

namespace folivant {
namespace {

using fakes::Fake;
using fakes::Tree;

const std::wstring kFolder = L"C:\\Program Files\\Folivant";

void File(const std::wstring& name, const std::string& content) {
  Tree().File(kFolder + L'\\' + name, content);
}

/// Loads `language` and returns its help file's name without the folder.
std::wstring Load(Messages& texts, std::wstring& language) {
  return LoadLanguage(kFolder, language, texts).substr(kFolder.size() + 1);
}

struct Loaded {
  Messages Texts;
  std::wstring Language;
  std::wstring Help;
};
Loaded LoadedFrom(const std::wstring& language) {
  Loaded loaded;
  loaded.Language = language;
  loaded.Help = Load(loaded.Texts, loaded.Language);
  return loaded;
}

TEST(Language, TextsAreReadByTheirNumbers) {
  File(L"english.ini", "[Messages]\r\n0=First\r\n13=OK\r\n300=Last\r\n301=Beyond\r\n");
  const Loaded loaded = LoadedFrom(L"english.ini");
  EXPECT_EQ(loaded.Texts[std::size_t{0}], L"First");
  EXPECT_EQ(loaded.Texts[TextId::Ok], L"OK");
  EXPECT_EQ(loaded.Texts[std::size_t{300}], L"Last");
  EXPECT_EQ(Messages::kCount, 301u) << "301 and beyond are never read";
}

TEST(Language, TextsAreLoadedOnceTheLastOneIsThere) {
  Messages texts;
  texts.Set(0, L"First");
  EXPECT_FALSE(texts.AreLoaded());
  texts.Set(Messages::kCount - 1, L"Last");
  EXPECT_TRUE(texts.AreLoaded());
}

TEST(Language, WhatAFileLacksIsEnglish) {
  File(L"english.ini", "[Messages]\r\n13=OK\r\n14=&Close\r\n");
  File(L"dutch.ini", "[Messages]\r\n14=&Sluiten\r\n");
  const Loaded loaded = LoadedFrom(L"dutch.ini");
  EXPECT_EQ(loaded.Texts[TextId::Ok], L"OK");
  EXPECT_EQ(loaded.Texts[TextId::Close], L"&Sluiten");
  EXPECT_EQ(loaded.Language, L"dutch.ini");
}

TEST(Language, ATextOfTwoAsterisksCountsAsMissing) {
  File(L"english.ini", "[Messages]\r\n13=OK\r\n");
  File(L"dutch.ini", "[Messages]\r\n13=**\r\n");
  EXPECT_EQ(LoadedFrom(L"dutch.ini").Texts[TextId::Ok], L"OK");
}

TEST(Language, AnEmptyTextIsNotMissing) {
  File(L"english.ini", "[Messages]\r\n13=OK\r\n");
  File(L"dutch.ini", "[Messages]\r\n13=\r\n");
  EXPECT_EQ(LoadedFrom(L"dutch.ini").Texts[TextId::Ok], L"");
}

TEST(Language, WhatEnglishLacksTooShowsItsNumber) {
  File(L"english.ini", "[Messages]\r\n13=OK\r\n");
  const Loaded loaded = LoadedFrom(L"english.ini");
  EXPECT_EQ(loaded.Texts[std::size_t{57}], L"**57**");
  EXPECT_EQ(loaded.Texts[std::size_t{300}], L"**300**");
}

TEST(Language, AMissingFileFallsBackToEnglish) {
  File(L"english.ini", "[Messages]\r\n13=OK\r\n");
  for (const wchar_t* name : {L"dutch.ini", L""}) {
    const Loaded loaded = LoadedFrom(name);
    EXPECT_EQ(loaded.Language, L"english.ini");
    EXPECT_EQ(loaded.Texts[TextId::Ok], L"OK");
  }
}

TEST(Language, AHiddenFileIsThere) {
  File(L"dutch.ini", "[Messages]\r\n13=Goed\r\n");
  Tree().Find(kFolder + L"\\dutch.ini")->Attributes |= platform::kHidden;
  EXPECT_EQ(LoadedFrom(L"dutch.ini").Texts[TextId::Ok], L"Goed");
}

TEST(Language, WithoutAnyFileEveryTextShowsItsNumber) {
  const Loaded loaded = LoadedFrom(L"dutch.ini");
  for (std::size_t number = 0; number < Messages::kCount; ++number) {
    EXPECT_EQ(loaded.Texts[number], L"**" + std::to_wstring(number) + L"**");
  }
}

TEST(Language, AnUnreadableOrMalformedFileHasNoTexts) {
  File(L"english.ini", "[Messages]\r\n13=OK\r\n");
  File(L"dutch.ini", std::string("\0[Messages\r\n13=x\r\n]=", 20));
  EXPECT_EQ(LoadedFrom(L"dutch.ini").Texts[TextId::Ok], L"OK");
  Fake().FailReads[kFolder + L"\\dutch.ini"] = fakes::AccessDenied();
  EXPECT_EQ(LoadedFrom(L"dutch.ini").Texts[TextId::Ok], L"OK");
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST(Language, AFileThatIsTooLargeIsToldWithItsNameAndTheLimit) {
  File(L"english.ini", "[Messages]\r\n13=OK\r\n172=%1 is over %2\r\n");
  File(L"dutch.ini", "[Messages]\r\n13=Goed\r\n" + std::string(std::size_t{16} * 1024 * 1024, ' '));
  EXPECT_EQ(LoadedFrom(L"dutch.ini").Texts[TextId::Ok], L"OK");
  ASSERT_EQ(Fake().Messages.size(), 1u);
  EXPECT_EQ(Fake().Messages[0].Text, kFolder + L"\\dutch.ini is over 16");
  EXPECT_TRUE(ListLanguages(kFolder).empty());
  EXPECT_EQ(Fake().Messages.size(), 1u) << "a list of languages leaves it out, silently";
}

TEST(Language, TextsEndAfter299Characters) {
  File(L"english.ini", "[Messages]\r\n0=" + std::string(299, 'a') + "\r\n1=" + std::string(299, 'b') +
                           "c\r\n2=" + std::string(5000, 'd') + "\r\n");
  const Loaded loaded = LoadedFrom(L"english.ini");
  EXPECT_EQ(loaded.Texts[TextId::Directory], std::wstring(299, L'a'));
  EXPECT_EQ(loaded.Texts[TextId::Filter], std::wstring(299, L'b'));
  EXPECT_EQ(loaded.Texts[TextId::OutputFormat], std::wstring(299, L'd'));
}

TEST(Language, BlanksAroundATextAreDropped) {
  File(L"english.ini", "[Messages]\r\n0=   a b   \r\n1=\"  quoted  \"\r\n");
  const Loaded loaded = LoadedFrom(L"english.ini");
  EXPECT_EQ(loaded.Texts[TextId::Directory], L"a b");
  EXPECT_EQ(loaded.Texts[TextId::Filter], L"quoted");
}

TEST(Language, ABackslashWithAnNIsALineBreak) {
  File(L"english.ini", "[Messages]\r\n0=one\\ntwo\\n\\nthree\r\n");
  EXPECT_EQ(LoadedFrom(L"english.ini").Texts[TextId::Directory], L"one\r\ntwo\r\n\r\nthree");
}

TEST(Language, Utf16FilesHoldEveryAlphabet) {
  File(L"english.ini", std::string("\xFF\xFE[\0M\0e\0s\0s\0a\0g\0e\0s\0]\0\r\0\n\0"
                                   "0\0=\0\x16\x04\x41\x01\r\0\n\0",
                                   38));
  EXPECT_EQ(LoadedFrom(L"english.ini").Texts[TextId::Directory], L"\u0416\u0141");
}

TEST(Language, Utf8AndBigEndianFilesAreReadAsWhatTheyAre) {
  const std::string files[] = {"[Messages]\r\n0=\xD0\x96\xC5\x81\r\n",
                               "\xEF\xBB\xBF[Messages]\r\n0=\xD0\x96\xC5\x81\r\n",
                               std::string("\xFE\xFF\0[\0M\0e\0s\0s\0a\0g\0e\0s\0]\0\r\0\n"
                                           "\0000\0=\x04\x16\x01\x41\0\r\0\n",
                                           38)};
  for (const std::string& file : files) {
    File(L"english.ini", file);
    EXPECT_EQ(LoadedFrom(L"english.ini").Texts[TextId::Directory], L"\u0416\u0141");
  }
}

TEST(Language, TheHelpFileIsNamedAfterTheFileUpToItsFirstDot) {
  File(L"my.lang.ini", "[Messages]\r\n");
  File(L"my.hlp", "");
  File(L"my.lang.hlp", "");
  EXPECT_EQ(LoadedFrom(L"my.lang.ini").Help, L"my.hlp");
}

TEST(Language, AFileNameWithoutADotIsItsOwnBase) {
  File(L"klingon", "[Messages]\r\n");
  File(L"klingon.hlp", "");
  EXPECT_EQ(LoadedFrom(L"klingon").Help, L"klingon.hlp");
}

TEST(Language, AMissingHelpFileFallsBackWithoutALook) {
  File(L"english.ini", "[Messages]\r\n");
  EXPECT_EQ(LoadedFrom(L"english.ini").Help, L"folvnt40.hlp");
}

TEST(Language, AFallBackToEnglishTakesItsHelpToo) {
  File(L"english.ini", "[Messages]\r\n");
  File(L"english.hlp", "");
  File(L"dutch.hlp", "");
  EXPECT_EQ(LoadedFrom(L"dutch.ini").Help, L"english.hlp");
}

TEST(ListLanguages, NamesEveryFileThatSaysItsLanguage) {
  File(L"english.ini", "[Messages]\r\nLanguage=English\r\nFlag=0\r\n");
  File(L"other.ini", "[Settings]\r\nLanguage=No\r\n");
  File(L"dutch.INI", "[messages]\r\nlanguage=Nederlands\r\nFLAG=1\r\n");
  File(L"error.ini", "[Messages]\r\nLanguage=(error)\r\n");
  File(L"plain.ini", "[Messages]\r\nLanguage=Plain\r\n");
  File(L"odd.ini", "[Messages]\r\nLanguage=Odd\r\nFlag=seven\r\n");
  File(L"long.ini", "[Messages]\r\nLanguage=" + std::string(150, 'x') + "\r\n");
  File(L"readme.txt", "[Messages]\r\nLanguage=Text\r\n");
  const std::vector<LanguageEntry> found = ListLanguages(kFolder);
  ASSERT_EQ(found.size(), 5u);
  EXPECT_EQ(found[0].FileName, L"english.ini");
  EXPECT_EQ(found[0].Name, L"English");
  EXPECT_EQ(found[0].Flag, 0);
  EXPECT_EQ(found[1].FileName, L"dutch.INI");
  EXPECT_EQ(found[1].Name, L"Nederlands");
  EXPECT_EQ(found[1].Flag, 1);
  EXPECT_EQ(found[2].Flag, 0) << "the default";
  EXPECT_EQ(found[3].Flag, 0) << "no number";
  EXPECT_EQ(found[4].Name, std::wstring(99, L'x'));
}

TEST(ListLanguages, AFlagIsThePositionThatItsTextBeginsWith) {
  const std::pair<const char*, int> rows[] = {
      {"0", 0},  {"7", 7},  {"12", 12}, {"12 of 20", 12},           {"007", 7}, {"9999", 9'999}, {"10000", 0},
      {"-1", 0}, {"x1", 0}, {"", 0},    {"12345678901234567890", 0}};
  for (const auto& [text, flag] : rows) {
    File(L"english.ini", std::string("[Messages]\r\nLanguage=English\r\nFlag=") + text + "\r\n");
    EXPECT_EQ(ListLanguages(kFolder).at(0).Flag, flag) << text;
  }
}

TEST(ListLanguages, AnUnreadableFileIsNotListed) {
  File(L"english.ini", "[Messages]\r\nLanguage=English\r\n");
  Fake().FailReads[kFolder + L"\\english.ini"] = fakes::AccessDenied();
  EXPECT_TRUE(ListLanguages(kFolder).empty());
}

TEST(WithPlaceholders, PutsEachTextInItsPlaceAndLooksIntoNoneOfThem) {
  EXPECT_EQ(WithPlaceholders(L"%2 of %1 (%3)", L"a", L"b", L"c"), L"b of a (c)");
  EXPECT_EQ(WithPlaceholders(L"%1%1", L"%2", L"x"), L"%2%2");
  EXPECT_EQ(WithPlaceholders(L"100% %0 %4 %", L"a"), L"100% %0 %4 %");
  EXPECT_EQ(WithPlaceholders(L"", L"a"), L"");
  EXPECT_EQ(WithPlaceholders(L"%", L"a"), L"%");
}

}  // namespace
}  // namespace folivant
