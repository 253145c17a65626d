#include "ui/PrinterChoice.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace folivant {
namespace {

constexpr int kQualities = 4;
constexpr int kPaperBins = 4;
constexpr int kDuplexModes = 3;

int PositionAmong(int entries, std::int32_t position) {
  return position >= 0 && position < entries ? position : kNothingChosen;
}

}  // namespace

const std::wstring& ShownPrinterName(const PrinterSettings& settings, const Messages& texts) {
  return settings.PrinterName == kNoPrinter ? texts[Text::NoPrinterName] : settings.PrinterName;
}

PrinterChoice ChoiceFor(const PrinterSettings& settings, const std::vector<std::wstring>& printers) {
  const auto printer = std::find(printers.begin(), printers.end(), settings.PrinterName);
  PrinterChoice choice;
  choice.Printer = printer == printers.end() ? kNothingChosen : static_cast<int>(printer - printers.begin());
  // One's complement: -1 (draft) is the first entry, -4 (high) the last.
  choice.Quality = PositionAmong(kQualities, ~settings.PrinterQuality);
  choice.PaperBin = PositionAmong(kPaperBins, settings.PrinterPaperBin - 1);
  choice.Duplex = PositionAmong(kDuplexModes, settings.PrinterDuplex - 1);
  return choice;
}

void ApplyChoice(const PrinterChoice& choice, const std::vector<std::wstring>& printers, PrinterSettings& settings) {
  settings.PrinterName =
      choice.Printer == kNothingChosen ? std::wstring() : printers.at(static_cast<std::size_t>(choice.Printer));
  settings.PrinterQuality = ~choice.Quality;
  settings.PrinterPaperBin = choice.PaperBin + 1;
  // Whatever is neither of the first two is the third.
  settings.PrinterDuplex = choice.Duplex == 0 ? 1 : choice.Duplex == 1 ? 2 : 3;
}

}  // namespace folivant
