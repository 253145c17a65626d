// The dialog in which the user edits the filter and the sort order.
#pragma once

namespace folivant {

namespace platform {
class Dialog;
}

/// Shows the dialog; OK changes mdlVars::Filter and saves it. Returns whether OK was pressed.
bool ShowFilterDialog(platform::Dialog& owner);

}  // namespace folivant
