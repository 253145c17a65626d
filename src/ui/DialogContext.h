// What a dialog is handed besides the record that it edits.
#pragma once

#include <functional>
#include <string>

#include "ui/Messages.h"

namespace folivant {

/// The texts of the language, and where its help lies. What it names outlives every dialog.
struct DialogContext {
  const Messages& Texts;
  const std::wstring& HelpFile;    ///< full path
  const std::wstring& ManualFile;  ///< full path; opened where there is no help file
};

/// Stores a record that a dialog has just changed. A dialog calls it on OK, before it closes: what it throws is shown
/// over the dialog, which then stays open.
using SaveRecord = std::function<void()>;

}  // namespace folivant
