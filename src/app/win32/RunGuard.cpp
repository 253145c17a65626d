#include "app/win32/RunGuard.h"

#include "scan/frmProgress.h"

namespace folivant {

RunGuard::Inert::Inert(platform::Dialog& window, bool& running) : window_(window), running_(running) {
  running_ = true;
  SetCursor(LoadCursorW(nullptr, IDC_WAIT));
  Enable(FALSE);
}

RunGuard::Inert::~Inert() {
  Enable(TRUE);
  SetCursor(LoadCursorW(nullptr, IDC_ARROW));
  running_ = false;
}

RunGuard::RunGuard(platform::Dialog& window, const DialogContext& context, bool& running)
    : inert_(window, running), progress_(OpenProgressWindow(window, context)) {}

// Enabled first: otherwise another program's window would come to the front when the progress window goes.
RunGuard::~RunGuard() {
  inert_.Enable(TRUE);
}

}  // namespace folivant
