// What the capture asks of the dialog in which the user picks a Find window. frmFind answers it in the Windows program;
// the host build has no windows, and a test plays the user.
#pragma once

#include <memory>

#include "shell/FindChoice.h"
#include "ui/DialogContext.h"

namespace folivant {

class FindDialog {
 public:
  virtual ~FindDialog() = default;
  /// Shows the candidates, the first one selected, and returns at once. Choosing and cancelling go to the choice, and
  /// the dialog closes.
  virtual void Show() = 0;
  /// Waits a moment for events and lets them run; those of every other window too.
  virtual void LetEventsThrough() = 0;
};

/// Makes the dialog, not yet visible. The choice outlives it.
std::unique_ptr<FindDialog> OpenFindDialog(FindChoice& choice, const DialogContext& context);

}  // namespace folivant
