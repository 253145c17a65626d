#include "app/ChosenPrinter.h"

#include <string>

#include "platform/MessageBox.h"
#include "platform/Printers.h"

namespace folivant {
namespace {

void ShowWarning(const std::wstring& text) {
  platform::ShowMessage(text, platform::BoxIcon::Exclamation, platform::BoxButtons::Ok);
}

}  // namespace

void ResolvePrinterName(PrinterSettings& settings) {
  if (settings.PrinterName == kNoPrinter) {
    settings.PrinterName = platform::DefaultPrinterName().value_or(kNoPrinter);
  }
}

bool FindPrinter(PrinterSettings& settings, const Messages& texts) {
  ResolvePrinterName(settings);
  if (platform::PrinterNames().empty()) {
    ShowWarning(texts[TextId::NoPrinter]);
    return false;
  }
  const std::wstring& name = settings.PrinterName;
  if (name == kNoPrinter || (name.empty() && !platform::DefaultPrinterName())) {
    ShowWarning(texts[TextId::NoPrinterChosen]);
    return false;
  }
  return true;
}

}  // namespace folivant
