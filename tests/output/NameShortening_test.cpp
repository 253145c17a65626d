#include "output/NameShortening.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

std::wstring InCharacters(std::wstring_view name, double width) {
  return ShortenName(name, width, CharacterMeasure());
}

TEST(ShortenName, LeavesAFittingNameAlone) {
  EXPECT_EQ(InCharacters(L"exactly8", 8), L"exactly8");
  EXPECT_EQ(InCharacters(L"", 0), L"");
}

TEST(ShortenName, KeepsTheExtension) {
  EXPECT_EQ(InCharacters(L"averyveryveryverylongfilenamewithtext.txt", 32), L"averyveryveryverylongfile....txt");
}

TEST(ShortenName, CutsTheTailOfANameWithoutDot) {
  EXPECT_EQ(InCharacters(L"abcdefghijklmnop", 10), L"abcdefg...");
}

TEST(ShortenName, SplitsAtTheLastDot) {
  EXPECT_EQ(InCharacters(L"archive.tar.of.everything.gz", 15), L"archive.t....gz");
}

TEST(ShortenName, CutsAnExtensionOfMoreThanAThird) {
  // A third of 32 is 10.67: an extension of 11 characters keeps its first round(7.67) = 8.
  EXPECT_EQ(InCharacters(L"a-base-that-is-long-enough.extension1", 32), L"a-base-that-is-lon....extensi...");
  // A third of 12 is 4: an extension of exactly 4 stays whole.
  EXPECT_EQ(InCharacters(L"base-that-is-long.ext", 12), L"base-....ext");
}

TEST(ShortenName, RoundsHalvesToEven) {
  // 22.5 / 3 - 3 = 4.5 gives 4 characters of the extension, 25.5 / 3 - 3 = 5.5 gives 6.
  EXPECT_EQ(InCharacters(L"name.abcdefghijklmnopqrstuvwxyz", 22.5), L"name....abc...");
  EXPECT_EQ(InCharacters(L"name.abcdefghijklmnopqrstuvwxyz", 25.5), L"name....abcde...");
  // 16.5 - 4 - 3 = 9.5 gives 10 characters of the base, 17.5 - 4 - 3 = 10.5 as well.
  EXPECT_EQ(InCharacters(L"abcdefghijklmnopqrst.txt", 16.5), L"abcdefghij....txt");
  EXPECT_EQ(InCharacters(L"abcdefghijklmnopqrst.txt", 17.5), L"abcdefghij....txt");
}

TEST(ShortenName, ComparesWithTheFractionItself) {
  EXPECT_EQ(InCharacters(L"sixteen letters!", 16.3), L"sixteen letters!");
  EXPECT_EQ(InCharacters(L"sixteen letters!", 15.7), L"sixteen lette...");
}

TEST(ShortenName, CountsWidthsBelowZeroAsZero) {
  EXPECT_EQ(InCharacters(L"name.txt", 0), L"......");
  EXPECT_EQ(InCharacters(L"name.txt", 5), L"......");
  EXPECT_EQ(InCharacters(L"name", 2), L"...");
}

TEST(CharacterMeasure, HasNoCharactersBelowZero) {
  EXPECT_EQ(CharacterMeasure::Characters(-4.5), 0U);
  EXPECT_EQ(CharacterMeasure::Characters(0), 0U);
  EXPECT_EQ(CharacterMeasure::Characters(0.5), 0U);
  EXPECT_EQ(CharacterMeasure::Characters(0.7), 1U);
  EXPECT_EQ(CharacterMeasure::Characters(1), 1U);
  EXPECT_EQ(CharacterMeasure::Characters(2.5), 2U);
  EXPECT_EQ(CharacterMeasure::Characters(3.5), 4U);
}

/// Dots are 1 wide, everything else 2.
class NarrowDots final : public TextMeasure {
 public:
  double WidthOf(std::wstring_view text) const override {
    double width = 0;
    for (const wchar_t c : text) {
      width += c == L'.' ? 1 : 2;
    }
    return width;
  }
};

TEST(ShortenName, MeasuresDrawnNames) {
  const NarrowDots form;
  const DrawnMeasure measure(form);
  // "abcdefghij.txt" is 27 wide. ".txt" (7) is no more than a third of 21; the dots take 3, which leaves 11 for the
  // base.
  EXPECT_EQ(ShortenName(L"abcdefghij.txt", 27, measure), L"abcdefghij.txt");
  EXPECT_EQ(ShortenName(L"abcdefghij.txt", 21, measure), L"abcde....txt");
  // A third of 18 is 6: 3 of it are left for the extension, which is its dot and one letter.
  EXPECT_EQ(ShortenName(L"abcdefghij.txt", 18, measure), L"abcd....t...");
  EXPECT_EQ(ShortenName(L"abcdefghij.txt", 0, measure), L"......");
}

}  // namespace
}  // namespace folivant
