// The dialog in which the user picks the printer, its quality, paper bin and duplex mode.
#pragma once

#include "base/GeneralSettings.h"
#include "ui/DialogContext.h"

namespace folivant {

namespace platform {
class Dialog;
}

/// Shows the dialog; OK changes `settings`, all but the copies, and saves nothing. Returns whether OK was pressed. To
/// be opened only when there is a printer.
bool ShowPrinterDialog(platform::Dialog& owner, const DialogContext& context, PrinterSettings& settings);

}  // namespace folivant
