// The dialog in which the user edits the general settings.
#pragma once

namespace folivant {

namespace platform {
class Dialog;
}

/// Shows the dialog; OK changes mdlVars::General and mdlVars::Printer and saves them. Returns whether OK was pressed.
bool ShowOptionsDialog(platform::Dialog& owner);

}  // namespace folivant
