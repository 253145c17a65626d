// What the controls of the printer dialog mean.
#pragma once

#include <string>

#include "base/GeneralSettings.h"
#include "res/Controls.h"
#include "ui/Binding.h"

namespace folivant {

// The order is the one in which the lists show them.
inline constexpr ListItem<std::int32_t> kQualities[] = {
    {Text::QualityDraft, -1}, {Text::QualityLow, -2}, {Text::QualityMedium, -3}, {Text::QualityHigh, -4}};
inline constexpr ListItem<std::int32_t> kPaperBins[] = {
    {Text::BinUpper, 1}, {Text::BinLower, 2}, {Text::BinMiddle, 3}, {Text::BinManual, 4}};

/// A printer that is gone and a number that nothing stands for are shown as nothing selected. Confirming that stores an
/// empty name, 0, and for the duplex mode the last one.
inline constexpr Binding<PrinterSettings> kPrinterControls[] = {
    {kWindow, Text::PrinterTitle},
    {cmbPrinter, Text::PrinterLabel, EditsItem<&PrinterSettings::PrinterName>},
    {cmbQuality, Text::Quality, Lists<&PrinterSettings::PrinterQuality, kQualities>},
    {cmbPaperBin, Text::PaperBin, Lists<&PrinterSettings::PrinterPaperBin, kPaperBins>},
    {fraDuplex, Text::Duplex},
    {optDuplex, Text::Simplex, Chooses<&PrinterSettings::PrinterDuplex, 1>},
    {optDuplex + 1, Text::DuplexVertical, Chooses<&PrinterSettings::PrinterDuplex, 2>},
    {optDuplex + 2, Text::DuplexHorizontal, Chooses<&PrinterSettings::PrinterDuplex, 3>},
    {cmdOK, Text::Ok},
    {cmdCancel, Text::Cancel},
};

/// The chosen printer as the user reads it: where there is none, the language's words for that. Lives as long as both.
inline const std::wstring& ShownPrinterName(const PrinterSettings& settings, const Messages& texts) {
  return settings.PrinterName == kNoPrinter ? texts[Text::NoPrinterName] : settings.PrinterName;
}

}  // namespace folivant
