// The dialog in which the user chooses the listing style; it leads to the columns.
#pragma once

#include "scan/ListingFormat.h"
#include "ui/DialogContext.h"

namespace folivant {

namespace platform {
class Dialog;
}

/// Style and columns are confirmed in a dialog each, and each is stored at once.
struct FormatSaves {
  SaveRecord Style;
  SaveRecord Columns;
};

/// Shows the dialog until it is closed. OK changes the style in `format`; the columns dialog that it leads to changes
/// the rest, which stays changed when this dialog is cancelled.
void ShowFormatDialog(platform::Dialog& owner, const DialogContext& context, ListingFormat& format,
                      const FormatSaves& saves);

}  // namespace folivant
