#include "base/mdlFileRoutines.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"

namespace folivant {
namespace {

using namespace std::string_literals;

TEST(WithBackslashes, TurnsEverySlash) {
  EXPECT_EQ(WithBackslashes(L"C:/data\\sub/f.txt"), L"C:\\data\\sub\\f.txt");
  EXPECT_EQ(WithBackslashes(L"//server/share"), L"\\\\server\\share");
  EXPECT_EQ(WithBackslashes(L""), L"");
}

TEST(MdlFileRoutinesTest, StripNullsCutsAtTheFirstNulAndTrims) {
  EXPECT_EQ(StripNulls(L"text"), L"text");
  EXPECT_EQ(StripNulls(L"  text \0more\0"s), L"text");
  EXPECT_EQ(StripNulls(L"\0text"s), L"");
  EXPECT_EQ(StripNulls(L"   "), L"");
  EXPECT_EQ(StripNulls(L"\ttext\t"), L"\ttext\t");  // blanks alone are trimmed
}

TEST(MdlFileRoutinesTest, AddBackslashAddsOneWhereNoneIs) {
  EXPECT_EQ(AddBackslash(L"C:\\"), L"C:\\");
  EXPECT_EQ(AddBackslash(L"C:\\Temp"), L"C:\\Temp\\");
  EXPECT_EQ(AddBackslash(L""), L"\\");
}

TEST(MdlFileRoutinesTest, FormatSizeFixedUnitsSwitchesUnitsAtTenThousand) {
  const std::pair<std::uint64_t, std::wstring> rows[] = {
      {0, L"0 b "},
      {999, L"999 b "},
      {1'023, L"1,023 b "},
      {9'999, L"9,999 b "},
      {10'000, L"9 kb"},
      {10'239'999, L"9,999 kb"},
      {10'240'000, L"9 Mb"},
      {10'737'418'240, L"10 Gb"},  // 10,240 Mb
      {10'000ULL << 30, L"9 Tb"},
      {500ULL << 40, L"500 Tb"},
  };
  for (const auto& [bytes, expected] : rows) {
    EXPECT_EQ(FormatSizeFixedUnits(Currency::FromWhole(bytes)), expected) << bytes;
  }
}

TEST(MdlFileRoutinesTest, FormatSizeFixedUnitsGroupsAsTheUserDoes) {
  fakes::Fake().Locale.ThousandsSeparator = L".";
  EXPECT_EQ(FormatSizeFixedUnits(Currency::FromWhole(1'234)), L"1.234 b ");
}

TEST(MdlFileRoutinesTest, ReplaceAllDoesNotSearchReplacements) {
  EXPECT_EQ(ReplaceAll(L"a-b-c", L"-", L"--"), L"a--b--c");
  EXPECT_EQ(ReplaceAll(L"aaa", L"aa", L"a"), L"aa");
  EXPECT_EQ(ReplaceAll(L"abc", L"b", L""), L"ac");
  EXPECT_EQ(ReplaceAll(L"abc", L"x", L"y"), L"abc");
  EXPECT_EQ(ReplaceAll(L"abc", L"", L"y"), L"abc");
  EXPECT_EQ(ReplaceAll(L"Abc", L"a", L"y"), L"Abc");
}

TEST(MdlFileRoutinesTest, LastPositionCountsFromOne) {
  EXPECT_EQ(LastPosition(L"a\\b\\c", L"\\"), 4);
  EXPECT_EQ(LastPosition(L"abc", L"a"), 1);
  EXPECT_EQ(LastPosition(L"abc", L"x"), 0);
  EXPECT_EQ(LastPosition(L"", L"x"), 0);
  EXPECT_EQ(LastPosition(std::wstring(32'766, L'.') + L"x", L"x"), 32'767);
}

TEST(MdlFileRoutinesTest, PathsAreSplitAtTheirLastSeparator) {
  EXPECT_EQ(GetExtension(L"readme"), L"readme");
  EXPECT_EQ(GetExtension(L"a.b.txt"), L"txt");
  EXPECT_EQ(GetExtension(L"a."), L"");
  EXPECT_EQ(GetExtension(L"a.txt\0\0"s), L"txt");
  EXPECT_EQ(GetFileName(L"C:\\Data\\a.txt"), L"a.txt");
  EXPECT_EQ(GetFileName(L"a.txt"), L"a.txt");
  EXPECT_EQ(GetFileName(L"C:\\Data\\"), L"");
  EXPECT_EQ(GetFolder(L"C:\\Data\\a.txt"), L"C:\\Data");
  EXPECT_EQ(GetFolder(L"a.txt"), L"");
  EXPECT_EQ(GetFolder(L"\\a.txt"), L"");
}

TEST(MdlFileRoutinesTest, BoundsAreKept) {
  EXPECT_EQ(MinValue(2, 3), 2);
  EXPECT_EQ(MaxValue(2, 3), 3);
  EXPECT_EQ(Clamp(5, 1, 3), 3);
  EXPECT_EQ(Clamp(-5, 1, 3), 1);
  EXPECT_EQ(Clamp(2, 1, 3), 2);
  EXPECT_EQ(Clamp(2.5, 1.0, 2.0), 2.0);
}

TEST(MdlFileRoutinesTest, PositiveModIsNeverNegative) {
  EXPECT_EQ(PositiveMod(7, 3), 1);
  EXPECT_EQ(PositiveMod(-7, 3), 2);
  EXPECT_EQ(PositiveMod(-6, 3), 0);
}

TEST(MdlFileRoutinesTest, RepeatTextRepeats) {
  EXPECT_EQ(RepeatText(3, L"ab"), L"ababab");
  EXPECT_EQ(RepeatText(0, L"ab"), L"");
  EXPECT_EQ(RepeatText(-1, L"ab"), L"");
}

TEST(MdlFileRoutinesTest, FileExistsForNormalFilesOnly) {
  fakes::Tree()
      .Dir(L"C:\\Data")
      .File(L"plain.txt")
      .File(L"readonly.txt")
      .AddAttributes(platform::kReadOnly)
      .File(L"hidden.txt")
      .AddAttributes(platform::kHidden)
      .File(L"system.txt")
      .AddAttributes(platform::kSystem)
      .Folder(L"folder");
  EXPECT_TRUE(FileExists(L"C:\\Data\\plain.txt"));
  EXPECT_TRUE(FileExists(L"C:\\Data\\readonly.txt"));
  EXPECT_FALSE(FileExists(L"C:\\Data\\hidden.txt"));
  EXPECT_FALSE(FileExists(L"C:\\Data\\system.txt"));
  EXPECT_FALSE(FileExists(L"C:\\Data\\folder"));
  EXPECT_FALSE(FileExists(L"C:\\Data\\missing.txt"));
  EXPECT_FALSE(FileExists(L""));
}

TEST(MdlFileRoutinesTest, RoundToStepRoundsInTheGivenDirection) {
  EXPECT_DOUBLE_EQ(RoundToStep(2.1, 0.5, Rounding::Down), 2);
  EXPECT_DOUBLE_EQ(RoundToStep(2.1, 0.5, Rounding::Up), 2.5);
  EXPECT_DOUBLE_EQ(RoundToStep(2.1, 0.5, Rounding::Nearest), 2);
  EXPECT_DOUBLE_EQ(RoundToStep(2.25, 0.5, Rounding::Nearest), 2.5);
  EXPECT_DOUBLE_EQ(RoundToStep(2.0, 0.5, Rounding::Up), 2);
  EXPECT_DOUBLE_EQ(RoundToStep(2.000'001, 0.5, Rounding::Up), 2);  // a hair above a step stays there
}

}  // namespace
}  // namespace folivant
