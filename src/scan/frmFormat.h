// The dialog in which the user chooses the listing style; it leads to the columns.
#pragma once

namespace folivant {

namespace platform {
class Dialog;
}

/// Shows the dialog; OK changes the style in mdlVars::Format and saves it. Returns whether OK was pressed.
bool ShowFormatDialog(platform::Dialog& owner);

}  // namespace folivant
