// The save dialog in which the user says what file a listing goes to, and as what kind.
#pragma once

#include "output/mdlPrint.h"
#include "platform/win32/Win32.h"
#include "ui/Messages.h"

namespace folivant {

/// Opens on the process's current directory.
class CDTextfile final : public DestinationChooser {
 public:
  /// `owner` may be null. Both outlive the dialog.
  CDTextfile(HWND owner, const Messages& texts) : owner_(owner), texts_(texts) {}
  std::optional<Choice> AskForFile(const Choice& preset) override;

 private:
  HWND owner_;
  const Messages& texts_;
};

}  // namespace folivant
