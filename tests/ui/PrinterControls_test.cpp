#include "ui/PrinterControls.h"

#include <gtest/gtest.h>

#include "fakes/DialogTable.h"
#include "fakes/FakeControls.h"

namespace folivant {
namespace {

using fakes::FakeControls;
using fakes::With;

FakeControls Filled(const PrinterSettings& settings) {
  FakeControls controls;
  SetTexts<PrinterSettings>(controls, kPrinterControls, Messages());
  controls.Items[cmbPrinter] = {L"Laser", L"Ink"};
  Fill<PrinterSettings>(controls, kPrinterControls, settings);
  return controls;
}

PrinterSettings ReadBack(const FakeControls& controls) {
  PrinterSettings settings = With(&PrinterSettings::PrinterCopies, 7);
  Read<PrinterSettings>(controls, kPrinterControls, settings);
  EXPECT_EQ(settings.PrinterCopies, 7) << "are chosen elsewhere";
  return settings;
}

TEST(PrinterControls, NameEachControlOnce) {
  fakes::ExpectNoControlTwice(kPrinterControls);
}

TEST(PrinterControls, EveryCodeHasItsEntryAndComesBack) {
  for (int quality = -1; quality >= -4; --quality) {
    for (int bin = 1; bin <= 4; ++bin) {
      for (int duplex = 1; duplex <= 3; ++duplex) {
        const FakeControls controls =
            Filled({.PrinterName = L"Ink", .PrinterDuplex = duplex, .PrinterQuality = quality, .PrinterPaperBin = bin});
        EXPECT_EQ(controls.Selected(cmbPrinter), 1);
        EXPECT_EQ(controls.Selected(cmbQuality), -1 - quality) << "from draft to high";
        EXPECT_EQ(controls.Selected(cmbPaperBin), bin - 1);
        EXPECT_EQ(controls.CheckedButtons, std::set<int>{optDuplex + duplex - 1});
        const PrinterSettings back = ReadBack(controls);
        EXPECT_EQ(back.PrinterName, L"Ink");
        EXPECT_EQ(back.PrinterQuality, quality);
        EXPECT_EQ(back.PrinterPaperBin, bin);
        EXPECT_EQ(back.PrinterDuplex, duplex);
      }
    }
  }
}

TEST(PrinterControls, APrinterThatIsGoneIsNotChosenAndLeavesAnEmptyName) {
  for (const std::wstring name : {L"Gone", L"laser", L""}) {
    const FakeControls controls = Filled({.PrinterName = name});
    EXPECT_EQ(controls.Selected(cmbPrinter), platform::kNothingSelected);
    EXPECT_EQ(ReadBack(controls).PrinterName, L"");
  }
}

TEST(PrinterControls, NumbersThatNoEntryStandsForChooseNothing) {
  for (const std::int32_t odd : {600, 0, -5}) {
    const FakeControls controls =
        Filled({.PrinterName = L"Laser", .PrinterDuplex = 4, .PrinterQuality = odd, .PrinterPaperBin = 5});
    EXPECT_EQ(controls.Selected(cmbQuality), platform::kNothingSelected);
    EXPECT_EQ(controls.Selected(cmbPaperBin), platform::kNothingSelected);
    EXPECT_EQ(controls.CheckedButtons, std::set<int>());
    const PrinterSettings back = ReadBack(controls);
    EXPECT_EQ(back.PrinterQuality, 0);
    EXPECT_EQ(back.PrinterPaperBin, 0);
    EXPECT_EQ(back.PrinterDuplex, 3) << "whatever is neither of the first two";
  }
}

TEST(ShownPrinterName, IsInTheUsersLanguageWhereThereIsNoPrinter) {
  Messages texts;
  texts.Set(static_cast<std::size_t>(TextId::NoPrinterName), L"(kein Drucker)");
  EXPECT_EQ(ShownPrinterName({.PrinterName = L"(no printer)"}, texts), L"(kein Drucker)");
  EXPECT_EQ(ShownPrinterName({.PrinterName = L"Ink"}, texts), L"Ink");
  EXPECT_EQ(ShownPrinterName({}, texts), L"");
}

}  // namespace
}  // namespace folivant
