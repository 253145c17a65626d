// The dialog in which the user edits the filter and the sort order.
#pragma once

#include "scan/FilterSettings.h"
#include "ui/DialogContext.h"

namespace folivant {

namespace platform {
class Dialog;
}

/// Shows the dialog until it is closed. OK changes `filter` and calls `save`.
void ShowFilterDialog(platform::Dialog& owner, const DialogContext& context, FilterSettings& filter,
                      const SaveRecord& save);

}  // namespace folivant
