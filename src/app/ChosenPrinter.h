// The printer that a run prints on: the chosen one, or the system's default.
#pragma once

#include "base/GeneralSettings.h"
#include "ui/Messages.h"

namespace folivant {

/// Puts the system's default printer in place of "(no printer)". Asking the system costs more than a short listing, so
/// it is done where a printer is first needed; without any printer the name stays.
void ResolvePrinterName(PrinterSettings& settings);
/// The same, before a run to the printer: whether there is one to print on. Otherwise a message has said why not.
bool FindPrinter(PrinterSettings& settings, const Messages& texts);

}  // namespace folivant
