#include "app/BadSettings.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

class BadSettingsTest : public testing::Test {
 protected:
  BadSettingsTest() {
    Set(TextId::BadSetting, L"%1: %2 is %3.");
    Set(TextId::ValidValues, L"From %1 to %2.");
    Set(TextId::BadSettings, L"In %1:");
    Set(TextId::MoreBadSettings, L"and %1 more");
  }
  void Set(TextId number, const wchar_t* text) { Texts.Set(static_cast<std::size_t>(number), text); }

  Messages Texts;
};

TEST_F(BadSettingsTest, OneIsASentenceWithItsRange) {
  EXPECT_EQ(BadSettingsText({{L"C:\\a.fvf", L"Inches", L"maybe", {}}}, Texts), L"C:\\a.fvf: Inches is maybe.");
  EXPECT_EQ(BadSettingsText({{L"C:\\a.fvf", L"TextWidth", L"12000", ValueLimits{L"0", L"9,999"}}}, Texts),
            L"C:\\a.fvf: TextWidth is 12000.\r\nFrom 0 to 9,999.");
}

TEST_F(BadSettingsTest, SeveralStandBelowTheirPlaceEachWithItsRange) {
  EXPECT_EQ(BadSettingsText({{L"One", L"SubLevel", L"deep", {}},
                             {L"One", L"TextWidth", L"12000", ValueLimits{L"0", L"9,999"}},
                             {L"Two", L"Inches", L"maybe", {}}},
                            Texts),
            L"In One:\r\n\r\nSubLevel=deep\r\nTextWidth=12000   (0 - 9,999)\r\n\r\nIn Two:\r\n\r\nInches=maybe");
}

TEST_F(BadSettingsTest, OfVeryManyTheFirstTenAreShownAndLongValuesAreCut) {
  const std::vector<BadSetting> bad(12, {L"P", L"Key", std::wstring(61, L'x'), {}});
  std::wstring expected = L"In P:\r\n";
  for (int i = 0; i < 10; ++i) {
    expected += L"\r\nKey=" + std::wstring(60, L'x') + L"...";
  }
  EXPECT_EQ(BadSettingsText(bad, Texts), expected + L"\r\nand 2 more");
  EXPECT_EQ(BadSettingsText({bad.begin(), bad.begin() + 11}, Texts), expected + L"\r\nand 1 more");
  EXPECT_EQ(BadSettingsText({bad.begin(), bad.begin() + 10}, Texts), expected);
}

}  // namespace
}  // namespace folivant
