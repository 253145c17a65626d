// What the controls of the printer dialog mean.
#pragma once

#include <string>

#include "base/GeneralSettings.h"
#include "res/Controls.h"
#include "ui/Binding.h"

namespace folivant {

// The order is the one in which the lists show them.
inline constexpr ListItem<std::int32_t> kQualities[] = {
    {TextId::QualityDraft, -1}, {TextId::QualityLow, -2}, {TextId::QualityMedium, -3}, {TextId::QualityHigh, -4}};
inline constexpr ListItem<std::int32_t> kPaperBins[] = {
    {TextId::BinUpper, 1}, {TextId::BinLower, 2}, {TextId::BinMiddle, 3}, {TextId::BinManual, 4}};

/// A printer that is gone and a number that nothing stands for are shown as nothing selected. Confirming that stores an
/// empty name, 0, and for the duplex mode the last one.
inline constexpr Binding<PrinterSettings> kPrinterControls[] = {
    {kWindow, TextId::PrinterTitle},
    {cmbPrinter, TextId::PrinterLabel, EditsItem<&PrinterSettings::PrinterName>},
    {cmbQuality, TextId::Quality, Lists<&PrinterSettings::PrinterQuality, kQualities>},
    {cmbPaperBin, TextId::PaperBin, Lists<&PrinterSettings::PrinterPaperBin, kPaperBins>},
    {fraDuplex, TextId::Duplex},
    {optDuplex, TextId::Simplex, Chooses<&PrinterSettings::PrinterDuplex, 1>},
    {optDuplex + 1, TextId::DuplexVertical, Chooses<&PrinterSettings::PrinterDuplex, 2>},
    {optDuplex + 2, TextId::DuplexHorizontal, Chooses<&PrinterSettings::PrinterDuplex, 3>},
    {cmdOK, TextId::Ok},
    {cmdCancel, TextId::Cancel},
};

/// The chosen printer as the user reads it: where there is none, the language's words for that. Lives as long as both.
inline const std::wstring& ShownPrinterName(const PrinterSettings& settings, const Messages& texts) {
  return settings.PrinterName == kNoPrinter ? texts[TextId::NoPrinterName] : settings.PrinterName;
}

}  // namespace folivant
