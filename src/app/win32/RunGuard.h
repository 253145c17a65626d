// What the user sees of the main window while a listing is made.
#pragma once

#include <memory>

#include "platform/win32/Dialog.h"
#include "scan/Progress.h"
#include "ui/DialogContext.h"

namespace folivant {

/// Makes a window inert, with the wait cursor and the progress window over it, for as long as it lives.
class RunGuard {
 public:
  /// `running` is true meanwhile, from before the progress window opens; it and `window` outlive the guard.
  RunGuard(platform::Dialog& window, const DialogContext& context, bool& running);
  ~RunGuard();
  RunGuard(const RunGuard&) = delete;
  RunGuard& operator=(const RunGuard&) = delete;
  folivant::Progress& Progress() { return *progress_; }

 private:
  class Inert {
   public:
    Inert(platform::Dialog& window, bool& running);
    ~Inert();
    Inert(const Inert&) = delete;
    Inert& operator=(const Inert&) = delete;
    void Enable(BOOL enabled) const { EnableWindow(window_.Window(), enabled); }

   private:
    platform::Dialog& window_;
    bool& running_;
  };

  Inert inert_;
  std::unique_ptr<folivant::Progress> progress_;
};

}  // namespace folivant
