#include "scan/NameRules.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"

namespace folivant {
namespace {

TEST(ProperNameTest, RecasesNamesOfOneCaseOnly) {
  const std::pair<std::wstring, std::wstring> rows[] = {
      {L"README.TXT", L"Readme.txt"},
      {L"readme.txt", L"Readme.txt"},
      {L"ReadMe.txt", L"ReadMe.txt"},
      {L"aZ", L"aZ"},
      {L"zA", L"zA"},
      {L"a", L"A"},
      {L"A", L"A"},
      {L"123.456", L"123.456"},
      {L"", L""},
      {L"_readme", L"_readme"},
      {L"a@[`{b", L"A@[`{b"},  // the neighbours of the letters
      {L"A@[`{B", L"A@[`{b"},
      {L"\x00C9\x00E9", L"\x00C9\x00E9"},
      {L"\x00E9\x00C9", L"\x00E9\x00C9"},
      {L"\x00E4rger", L"\x00C4rger"},
      {L"\x00C4RGER", L"\x00C4rger"},
      {L"\x00C4rGER", L"\x00C4rGER"},
      {L"stra\x00DF"
       L"e",
       L"Stra\x00DF"
       L"e"},
      {std::wstring(L"README\0\0\0", 9), L"Readme"},
      {std::wstring(300, L'a'), L"A" + std::wstring(255, L'a')},
      {L"B" + std::wstring(299, L'a'), L"B" + std::wstring(299, L'a')},
  };
  for (const auto& [name, expected] : rows) {
    EXPECT_EQ(ProperName(name), expected);
  }
}

class GetLongPathTest : public testing::Test {
 protected:
  GetLongPathTest() {
    fakes::Tree().Dir(L"C:\\Program Files\\TOOLS\\MixedCase");
    fakes::Tree().Dir(L"\\\\SERVER\\share\\Docs");
  }
};

TEST_F(GetLongPathTest, SpellsComponentsAsOnDiskAndRecasesThem) {
  const std::pair<std::wstring, std::wstring> rows[] = {
      {L"c:\\program files", L"C:\\Program Files"},
      {L"c:\\program files\\", L"C:\\Program Files"},
      {L"c:\\PROGRAM FILES\\tools\\MIXEDCASE", L"C:\\Program Files\\Tools\\MixedCase"},
      {L"c:\\", L"C:\\"},
      {L"c:\\\\anything", L"C:\\"},  // an empty component ends the path
      {L"c:\\program files\\\\tools", L"C:\\Program Files"},
  };
  for (const auto& [path, expected] : rows) {
    EXPECT_EQ(GetLongPath(path).Shown, expected);
  }
  EXPECT_EQ(GetLongPath(L"c:\\program files\\tools").OnDisk, L"C:\\Program Files\\TOOLS");
}

TEST_F(GetLongPathTest, ResolvesDots) {
  const std::pair<std::wstring, std::wstring> rows[] = {
      {L"c:\\program files\\tools\\..\\TOOLS\\mixedcase", L"C:\\Program Files\\Tools\\MixedCase"},
      {L"c:\\program files\\.\\tools\\.", L"C:\\Program Files\\Tools"},
      {L"c:\\program files\\tools\\..\\..\\", L"C:\\"},
      {L"c:\\..\\program files\\tools\\..", L"C:\\Program Files"},  // a root has no parent
      {L"\\\\server\\share\\docs\\..\\..\\docs", L"\\\\Server\\Share\\Docs"},
      {L"c:\\missing\\..\\program files", L""},
  };
  for (const auto& [path, expected] : rows) {
    EXPECT_EQ(GetLongPath(path).Shown, expected);
  }
  EXPECT_EQ(GetLongPath(L"c:\\program files\\tools\\mixedcase\\..").OnDisk, L"C:\\Program Files\\TOOLS");
}

TEST_F(GetLongPathTest, TakesASlashForABackslash) {
  const std::pair<std::wstring, std::wstring> rows[] = {
      {L"c:/program files/tools", L"C:\\Program Files\\Tools"},
      {L"c:\\program files/tools\\mixedcase", L"C:\\Program Files\\Tools\\MixedCase"},
      {L"c:/program files\\tools/../tools/", L"C:\\Program Files\\Tools"},
      {L"c:/", L"C:\\"},
      {L"//server/share/docs", L"\\\\Server\\Share\\Docs"},
      {L"c:/program files/missing", L""},
  };
  for (const auto& [path, expected] : rows) {
    EXPECT_EQ(GetLongPath(path).Shown, expected) << testing::PrintToString(path);
  }
  EXPECT_EQ(GetLongPath(L"c:\\program files/tools").OnDisk, L"C:\\Program Files\\TOOLS");
}

TEST_F(GetLongPathTest, AnswersNothingForAPathThatIsNotUsable) {
  for (const wchar_t* path : {L"", L"c", L"c:", L"c:data", L"data", L"\\data", L"c:\\missing",
                              L"c:\\program files\\missing\\tools", L"\\\\", L"\\\\server"}) {
    EXPECT_EQ(GetLongPath(path).Shown, L"") << testing::PrintToString(path);
    EXPECT_EQ(GetLongPath(path).OnDisk, L"") << testing::PrintToString(path);
  }
}

TEST_F(GetLongPathTest, ServerAndShareAreRecasedButNotLookedUp) {
  EXPECT_EQ(GetLongPath(L"\\\\OTHER\\data").Shown, L"\\\\Other\\Data");
  EXPECT_EQ(GetLongPath(L"\\\\OTHER\\data\\").Shown, L"\\\\Other\\Data\\");
  EXPECT_EQ(GetLongPath(L"\\\\OTHER\\data").OnDisk, L"\\\\OTHER\\data");
}

TEST_F(GetLongPathTest, FoldersOfAShareAreLookedUp) {
  EXPECT_EQ(GetLongPath(L"\\\\server\\share\\DOCS").Shown, L"\\\\Server\\Share\\Docs");
  EXPECT_EQ(GetLongPath(L"\\\\server\\share\\missing").Shown, L"");
}

/// Every character is one unit wide.
class CharacterCount final : public TextMeasure {
 public:
  double WidthOf(std::wstring_view text) const override {
    ++Measured;
    return static_cast<double>(text.size());
  }
  mutable int Measured = 0;
};

TEST(FitPathToWidthTest, ShortensTheLeadingPartUntilThePathIsNarrower) {
  const std::wstring path = L"C:\\Program Files\\Folivant\\list.txt";  // 34 characters
  const CharacterCount form;
  EXPECT_EQ(FitPathToWidth(path, 35, form), path);
  EXPECT_EQ(FitPathToWidth(path, 34, form), L"C:\\Program Files\\Foli...\\list.txt");
  EXPECT_EQ(FitPathToWidth(path, 14, form), L"C...\\list.txt");
  EXPECT_EQ(FitPathToWidth(path, 13, form), L"...\\list.txt");
  EXPECT_EQ(FitPathToWidth(path, 3, form), L"...\\list.txt");  // still too wide, but nothing is left to drop
}

TEST(FitPathToWidthTest, AShorteningThatIsLongerThanThePathIsTried) {
  // "C:\Da...\x" is wider than "C:\Data\x": three dots take the place of two letters at least.
  const CharacterCount form;
  EXPECT_EQ(FitPathToWidth(L"C:\\Data\\x", 9, form), L"C:\\...\\x");
}

TEST(FitPathToWidthTest, LongPathsAreNotMeasuredOncePerCharacter) {
  const CharacterCount form;
  const std::wstring path = L"C:\\" + std::wstring(30'000, L'd') + L"\\x";
  EXPECT_EQ(FitPathToWidth(path, 20, form), L"C:\\" + std::wstring(11, L'd') + L"...\\x");
  EXPECT_LT(form.Measured, 30);
}

}  // namespace
}  // namespace folivant
