#include "ui/Margins.h"

#include <gtest/gtest.h>

#include "base/mdlFileRoutines.h"
#include "fakes/RecordingSurface.h"

namespace folivant {
namespace {

class PageMargins : public ::testing::Test {
 protected:
  PageMargins() {
    fakes::Printer().Reset();
    fakes::Printer().Area = {11000, 15000, 360, 480, 600, 720};
  }
};

TEST_F(PageMargins, InchesAndMillimetresBecomeTwips) {
  EXPECT_EQ(TwipsPerUnit(true), 1440);
  EXPECT_DOUBLE_EQ(TwipsPerUnit(false) * 25.4, 1440);
  GeneralSettings general;
  general.MarginLeft = 1;
  general.MarginRight = 0.5;
  general.MarginTop = 2;
  general.MarginBottom = 0.25;
  general.Inches = true;
  EXPECT_EQ(MarginsInTwips(general), (Margins{1440, 2880, 720, 360}));
  general.Inches = false;
  EXPECT_NEAR(MarginsInTwips(general).Left, 56.693, 0.001);
}

TEST_F(PageMargins, MinimaAreTheUnprintableBandsInTheCurrentUnit) {
  EXPECT_EQ(MinimumMargins(fakes::Printer().Area, true), (Margins{0.25, 480 / 1440.0, 600 / 1440.0, 0.5}));
  EXPECT_DOUBLE_EQ(MinimumMargins(fakes::Printer().Area, false).Left, 6.35);
  EXPECT_DOUBLE_EQ(MinimumMargins(fakes::Printer().Area, false).Bottom, 12.7);
}

TEST_F(PageMargins, MinimaComeFromTheChosenPrinterInItsOrientation) {
  const PrinterSettings printer{L"Laser", 1, 1, -2, 1};
  EXPECT_EQ(MinimumMargins(SurfaceOf(printer, true)->Area(), true).Left, 0.25);
  // Turned to the left, the sheet's lower border comes to the left.
  EXPECT_EQ(MinimumMargins(SurfaceOf(printer, false)->Area(), true).Left, 0.5);
  EXPECT_TRUE(fakes::Printer().Jobs.empty()) << "nothing reaches the printer";
}

TEST_F(PageMargins, WithoutThePrinterThereIsNothingToMeasureOn) {
  fakes::Printer().Failure = fakes::PrinterFailure::Open;
  EXPECT_EQ(SurfaceOf({L"Gone", 1, 1, -2, 1}, true), nullptr);
}

TEST_F(PageMargins, MessagesNameThemAsTheOptionsDo) {
  Messages texts;
  const std::pair<TextId, const wchar_t*> rows[] = {
      {TextId::MarginLeft, L"&Gauche :"}, {TextId::MarginTop, L"&Haut :"}, {TextId::MarginRight, L"&Droite :"},
      {TextId::MarginBottom, L"&Bas :"},  {TextId::UnitInches, L"po"},     {TextId::UnitMillimeter, L"mm"}};
  for (const auto& [number, text] : rows) {
    texts.Set(static_cast<std::size_t>(number), text);
  }
  GeneralSettings general;
  general.MarginLeft = 20;
  general.MarginTop = 12.7F;
  general.MarginRight = 0;
  general.MarginBottom = -3;
  EXPECT_EQ(MarginsText(general, texts), L"Gauche : 20; Haut : 12.7; Droite : 0; Bas : -3 mm");
  general.Inches = true;
  EXPECT_EQ(MarginsText(general, texts), L"Gauche : 20; Haut : 12.7; Droite : 0; Bas : -3 po");
}

TEST_F(PageMargins, AMinimumIsRoundedUpToTheStepOfItsUnit) {
  EXPECT_NEAR(RoundToStep(0.123, 0.01, Rounding::Up), 0.13, 1e-9);
  EXPECT_NEAR(RoundToStep(4.2, 1, Rounding::Up), 5, 1e-9);
  EXPECT_NEAR(RoundToStep(MinimumMargins(fakes::Printer().Area, false).Left, 1, Rounding::Up), 7, 1e-9);
}

constexpr Margins kMinimum{.Left = 5, .Top = 4.2F, .Right = 6, .Bottom = 7};

TEST(MarginsSuffice, AMarginEqualToItsMinimumPasses) {
  EXPECT_TRUE(MarginsSuffice(kMinimum, kMinimum));
  EXPECT_TRUE(MarginsSuffice({20, 15, 20, 20}, kMinimum));
}

TEST(MarginsSuffice, OneSmallMarginIsEnoughToFail) {
  EXPECT_FALSE(MarginsSuffice({4.99F, 15, 20, 20}, kMinimum));
  EXPECT_FALSE(MarginsSuffice({20, 4.1F, 20, 20}, kMinimum));
  EXPECT_FALSE(MarginsSuffice({20, 15, 5, 20}, kMinimum));
  EXPECT_FALSE(MarginsSuffice({20, 15, 20, 0}, kMinimum));
}

TEST(RaisedMargins, RoundsUpToAMillimetre) {
  EXPECT_EQ(RaisedMargins({0, 0, 0, 0}, kMinimum, false), (Margins{5, 5, 6, 7}));
}

TEST(RaisedMargins, RoundsUpToAHundredthOfAnInch) {
  const Margins minimum{.Left = 0.123F, .Top = 0.25F, .Right = 0.5F, .Bottom = 0.201F};
  EXPECT_EQ(RaisedMargins({0, 0, 0, 0}, minimum, true), (Margins{0.13F, 0.25F, 0.5F, 0.21F}));
}

TEST(RaisedMargins, LeavesMarginsThatSuffice) {
  EXPECT_EQ(RaisedMargins({20.3F, 0, 6, 7.7F}, kMinimum, false), (Margins{20.3F, 5, 6, 7.7F}));
  EXPECT_EQ(RaisedMargins(kMinimum, kMinimum, false), kMinimum) << "not even to a whole millimetre";
}

}  // namespace
}  // namespace folivant
