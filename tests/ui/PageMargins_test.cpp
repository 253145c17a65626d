#include "ui/PageMargins.h"

#include <gtest/gtest.h>

#include "base/mdlFileRoutines.h"
#include "fakes/RecordingSurface.h"

namespace folivant {
namespace {

class Margins : public ::testing::Test {
 protected:
  Margins() {
    fakes::Printer().Reset();
    fakes::Printer().Area = {11000, 15000, 360, 480, 600, 720};
  }
};

TEST_F(Margins, InchesAndMillimetresBecomeTwips) {
  EXPECT_EQ(TwipsPerUnit(true), 1440);
  EXPECT_DOUBLE_EQ(TwipsPerUnit(false) * 25.4, 1440);
  GeneralSettings general;
  general.MarginLeft = 1;
  general.MarginRight = 0.5;
  general.MarginTop = 2;
  general.MarginBottom = 0.25;
  general.Inches = true;
  EXPECT_EQ(MarginsInTwips(general), (PageMargins{1440, 720, 2880, 360}));
  general.Inches = false;
  EXPECT_NEAR(MarginsInTwips(general).Left, 56.693, 0.001);
}

TEST_F(Margins, MinimaAreTheUnprintableBandsInTheCurrentUnit) {
  EXPECT_EQ(MinimumMargins(fakes::Printer().Area, true), (PageMargins{0.25, 600 / 1440.0, 480 / 1440.0, 0.5}));
  EXPECT_DOUBLE_EQ(MinimumMargins(fakes::Printer().Area, false).Left, 6.35);
  EXPECT_DOUBLE_EQ(MinimumMargins(fakes::Printer().Area, false).Bottom, 12.7);
}

TEST_F(Margins, MinimaComeFromTheChosenPrinterInItsOrientation) {
  const PrinterSettings printer{L"Laser", 1, 1, -2, 1};
  EXPECT_EQ(MinimumMargins(SurfaceOf(printer, true)->Area(), true).Left, 0.25);
  // Turned to the left, the sheet's lower border comes to the left.
  EXPECT_EQ(MinimumMargins(SurfaceOf(printer, false)->Area(), true).Left, 0.5);
  EXPECT_TRUE(fakes::Printer().Jobs.empty()) << "nothing reaches the printer";
}

TEST_F(Margins, WithoutThePrinterThereIsNothingToMeasureOn) {
  fakes::Printer().Failure = fakes::PrinterFailure::Open;
  EXPECT_EQ(SurfaceOf({L"Gone", 1, 1, -2, 1}, true), nullptr);
}

TEST_F(Margins, MessagesNameThemAsTheOptionsDo) {
  Messages texts;
  const std::pair<Text, const wchar_t*> rows[] = {{Text::MarginLeft, L"&Gauche :"},  {Text::MarginTop, L"&Haut :"},
                                                  {Text::MarginRight, L"&Droite :"}, {Text::MarginBottom, L"&Bas :"},
                                                  {Text::UnitInches, L"po"},         {Text::UnitMillimeter, L"mm"}};
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

TEST_F(Margins, AMinimumIsRoundedUpToTheStepOfItsUnit) {
  EXPECT_NEAR(RoundToStep(0.123, 0.01, Rounding::Up), 0.13, 1e-9);
  EXPECT_NEAR(RoundToStep(4.2, 1, Rounding::Up), 5, 1e-9);
  EXPECT_NEAR(RoundToStep(MinimumMargins(fakes::Printer().Area, false).Left, 1, Rounding::Up), 7, 1e-9);
}

}  // namespace
}  // namespace folivant
