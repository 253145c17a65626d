// What start-up asks of the main window. frmMain answers it in the Windows program; the host build has no window.
#pragma once

namespace folivant {

/// Shows the main window with the settings as they are and runs it until it is closed. Returns the exit status.
int ShowMainWindow();
/// The save dialog of a command-line run without "/o". False when the user cancels.
bool AskForOutputFile();

}  // namespace folivant
