// The progress window of a run that was started from the main window.
#pragma once

#include <memory>

#include "scan/Progress.h"
#include "ui/DialogContext.h"

namespace folivant {

namespace platform {
class Dialog;
}

/// Shows the window over `owner` and returns at once; it goes when the object does.
std::unique_ptr<Progress> OpenProgressWindow(platform::Dialog& owner, const DialogContext& context);

}  // namespace folivant
