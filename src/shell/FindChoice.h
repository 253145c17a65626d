// Which open Find window is to be listed: the candidates, the choice, and the list view inside the chosen one. frmFind
// shows it, mdlFind waits for it.
#pragma once

#include <string>
#include <vector>

#include "platform/FindWindows.h"

namespace folivant {

struct FindCandidate {
  std::wstring Title;
  platform::WindowHandle Window = 0;
};

struct FindChoice {
  static constexpr platform::WindowHandle kPending = 0;
  static constexpr platform::WindowHandle kCancelled = -1;

  std::vector<FindCandidate> Candidates;
  /// Choice pending, cancelled, or the list view to read.
  platform::WindowHandle FindListHandle = kPending;
  std::wstring FindWindowTitle;
  bool Chosen = false;  ///< a window was chosen, whether or not it holds a list view

  bool IsPending() const { return FindListHandle == kPending; }
  bool IsCancelled() const { return FindListHandle == kCancelled; }

  /// Looks for open Find windows, topmost first.
  void FindCandidates();
  /// Takes the candidate at `row`, from 0. Where it lacks the windows that a Find window has inside, the choice stays
  /// pending: the window may still be building them, and the wait ends with a Cancel.
  void Choose(int row);
  void Cancel() { FindListHandle = kCancelled; }
};

}  // namespace folivant
