#include "ui/PrinterChoice.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

const std::vector<std::wstring> kPrinters = {L"Laser", L"Ink"};

PrinterSettings Settings(std::wstring name, std::int32_t duplex, std::int32_t quality, std::int32_t bin) {
  return {std::move(name), 7, duplex, quality, bin};
}

TEST(PrinterChoice, NothingChosenIsWhatListsSayWithoutASelection) {
  EXPECT_EQ(kNothingChosen, -1);
}

TEST(PrinterChoice, TheNameForNoPrinterIsShownInTheUsersLanguage) {
  Messages texts;
  texts.Set(static_cast<std::size_t>(Text::NoPrinterName), L"(kein Drucker)");
  EXPECT_EQ(ShownPrinterName(Settings(L"(no printer)", 1, -2, 1), texts), L"(kein Drucker)");
  EXPECT_EQ(ShownPrinterName(Settings(L"Ink", 1, -2, 1), texts), L"Ink");
  EXPECT_EQ(ShownPrinterName(Settings(L"", 1, -2, 1), texts), L"");
}

TEST(PrinterChoice, EveryCodeHasItsEntryAndComesBack) {
  for (int quality = -1; quality >= -4; --quality) {
    for (int bin = 1; bin <= 4; ++bin) {
      for (int duplex = 1; duplex <= 3; ++duplex) {
        PrinterSettings settings = Settings(L"Ink", duplex, quality, bin);
        const PrinterChoice choice = ChoiceFor(settings, kPrinters);
        EXPECT_EQ(choice.Printer, 1);
        EXPECT_EQ(choice.Quality, -1 - quality);
        EXPECT_EQ(choice.PaperBin, bin - 1);
        EXPECT_EQ(choice.Duplex, duplex - 1);
        settings = {};
        ApplyChoice(choice, kPrinters, settings);
        EXPECT_EQ(settings.PrinterName, L"Ink");
        EXPECT_EQ(settings.PrinterQuality, quality);
        EXPECT_EQ(settings.PrinterPaperBin, bin);
        EXPECT_EQ(settings.PrinterDuplex, duplex);
      }
    }
  }
}

TEST(PrinterChoice, HighQualityIsTheLastEntryAndStaysMinusFour) {
  PrinterSettings settings = Settings(L"Laser", 1, -4, 1);
  const PrinterChoice choice = ChoiceFor(settings, kPrinters);
  EXPECT_EQ(choice.Quality, 3);
  ApplyChoice(choice, kPrinters, settings);
  EXPECT_EQ(settings.PrinterQuality, -4);
}

TEST(PrinterChoice, APrinterThatIsGoneIsNotChosenAndLeavesAnEmptyName) {
  PrinterSettings settings = Settings(L"Gone", 1, -2, 1);
  const PrinterChoice choice = ChoiceFor(settings, kPrinters);
  EXPECT_EQ(choice.Printer, kNothingChosen);
  ApplyChoice(choice, kPrinters, settings);
  EXPECT_EQ(settings.PrinterName, L"");
}

TEST(PrinterChoice, NamesAreComparedExactly) {
  EXPECT_EQ(ChoiceFor(Settings(L"laser", 1, -2, 1), kPrinters).Printer, kNothingChosen);
}

TEST(PrinterChoice, CopiesAreNotTouched) {
  PrinterSettings settings = Settings(L"Laser", 1, -2, 1);
  ApplyChoice({1, 0, 0, 0}, kPrinters, settings);
  EXPECT_EQ(settings.PrinterCopies, 7);
}

TEST(PrinterChoice, NumbersThatNoEntryStandsForChooseNothing) {
  for (const std::int32_t odd : {600, 0, -5}) {
    const PrinterChoice choice = ChoiceFor(Settings(L"Laser", 4, odd, 5), kPrinters);
    EXPECT_EQ(choice.Quality, kNothingChosen);
    EXPECT_EQ(choice.PaperBin, kNothingChosen);
    EXPECT_EQ(choice.Duplex, kNothingChosen);
  }
}

TEST(PrinterChoice, WithNeitherOfTheFirstTwoModesTheThirdIsTaken) {
  PrinterSettings settings;
  ApplyChoice({0, 0, 0, kNothingChosen}, kPrinters, settings);
  EXPECT_EQ(settings.PrinterDuplex, 3);
}

}  // namespace
}  // namespace folivant
