// The dialog in which the user chooses columns and depth of a listing.
#pragma once

namespace folivant {

namespace platform {
class Dialog;
}

/// Shows the dialog; OK changes columns and depth in mdlVars::Format and saves them. Returns whether OK was pressed.
bool ShowColumnsDialog(platform::Dialog& owner);

}  // namespace folivant
