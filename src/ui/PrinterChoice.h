// What the printer dialog shows for the printer settings, and the settings for what it shows. Positions count from 0;
// kNothingChosen stands for a list or group in which nothing is selected.
#pragma once

#include <string>
#include <vector>

#include "base/GeneralSettings.h"
#include "ui/Messages.h"

namespace folivant {

inline constexpr int kNothingChosen = -1;

struct PrinterChoice {
  int Printer = kNothingChosen;   ///< in the list of printers
  int Quality = kNothingChosen;   ///< draft, low, medium, high
  int PaperBin = kNothingChosen;  ///< upper, lower, middle, manual
  int Duplex = kNothingChosen;    ///< simplex, vertical, horizontal
};

/// The chosen printer as the user reads it: where there is none, the language's words for that. Lives as long as both.
const std::wstring& ShownPrinterName(const PrinterSettings& settings, const Messages& texts);

/// A printer that is not among `printers`, letter by letter, and a number that no entry stands for choose nothing.
PrinterChoice ChoiceFor(const PrinterSettings& settings, const std::vector<std::wstring>& printers);
/// Changes name, quality, bin and duplex mode; the copies stay. Without a chosen printer the name becomes empty.
void ApplyChoice(const PrinterChoice& choice, const std::vector<std::wstring>& printers, PrinterSettings& settings);

}  // namespace folivant
