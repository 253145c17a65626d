// The dialog in which the user chooses columns and depth of a listing.
#pragma once

#include "scan/ListingFormat.h"
#include "ui/DialogContext.h"

namespace folivant {

namespace platform {
class Dialog;
}

/// Shows the dialog until it is closed. OK changes columns and depth in `format` and calls `save`.
void ShowColumnsDialog(platform::Dialog& owner, const DialogContext& context, ListingFormat& format,
                       const SaveRecord& save);

}  // namespace folivant
