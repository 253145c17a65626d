#include "app/ChosenPrinter.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"
#include "fakes/FakeSession.h"

namespace folivant {
namespace {

using fakes::Fake;

class ChosenPrinter : public testing::Test {
 protected:
  ChosenPrinter() {
    texts.Set(static_cast<std::size_t>(TextId::NoPrinter), L"No printer is installed.");
    texts.Set(static_cast<std::size_t>(TextId::NoPrinterChosen), L"No printer is chosen.");
  }

  PrinterSettings settings;
  Messages texts;
};

TEST_F(ChosenPrinter, TheDefaultPrinterStandsInForNone) {
  fakes::Session().Printers = {L"Laser", L"Ink"};
  settings.PrinterName = kNoPrinter;
  ResolvePrinterName(settings);
  EXPECT_EQ(settings.PrinterName, L"Laser");
  settings.PrinterName = L"Ink";
  ResolvePrinterName(settings);
  EXPECT_EQ(settings.PrinterName, L"Ink");
}

TEST_F(ChosenPrinter, WithoutAnyPrinterTheNameStays) {
  settings.PrinterName = kNoPrinter;
  ResolvePrinterName(settings);
  EXPECT_EQ(settings.PrinterName, L"(no printer)");
}

TEST_F(ChosenPrinter, ARunFindsThePrinterOrSaysWhyNot) {
  settings.PrinterName = L"Gone";
  EXPECT_FALSE(FindPrinter(settings, texts));
  ASSERT_EQ(Fake().Messages.size(), 1U);
  EXPECT_EQ(Fake().Messages[0].Text, L"No printer is installed.");
  fakes::Session().Printers = {L"Laser"};
  EXPECT_TRUE(FindPrinter(settings, texts)) << "a printer that is gone is told when the run opens it";
  EXPECT_EQ(Fake().Messages.size(), 1U);
}

TEST_F(ChosenPrinter, AnEmptyNameStandsForTheDefaultPrinter) {
  fakes::Session().Printers = {L"Laser"};
  settings.PrinterName.clear();
  EXPECT_TRUE(FindPrinter(settings, texts));
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST_F(ChosenPrinter, WhereNoneIsChosenAndNoneIsTheDefaultARunSaysSo) {
  fakes::Session().Printers = {L"Laser"};
  fakes::Session().HasDefaultPrinter = false;
  for (const wchar_t* name : {kNoPrinter, L""}) {
    settings.PrinterName = name;
    Fake().Messages.clear();
    EXPECT_FALSE(FindPrinter(settings, texts));
    ASSERT_EQ(Fake().Messages.size(), 1U);
    EXPECT_EQ(Fake().Messages[0].Text, L"No printer is chosen.");
  }
}

}  // namespace
}  // namespace folivant
