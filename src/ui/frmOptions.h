// The dialog in which the user edits the general settings.
#pragma once

#include <functional>
#include <memory>

#include "base/GeneralSettings.h"
#include "platform/PageSurface.h"
#include "ui/DialogContext.h"

namespace folivant {

namespace platform {
class Dialog;
}

/// What the dialog asks of whoever opens it.
struct OptionsCaller {
  /// Throws RuntimeError (UseMargins, UseFont) when no line of a listing with these settings stands on a page of
  /// `surface`, and (Print) when the printer does not answer.
  std::function<void(std::unique_ptr<platform::PageSurface> surface, const GeneralSettings& general)> CheckRoom;
  SaveRecord Save;  ///< of both records
  /// The page that was shown when the dialog was closed last, from 1.
  std::function<int()> LoadLastTab;
  std::function<void(int tab)> SaveLastTab;
};

/// Shows the dialog until it is closed. OK changes `general` and `printer` and saves them; the page that is shown is
/// stored however the dialog is closed.
void ShowOptionsDialog(platform::Dialog& owner, const DialogContext& context, GeneralSettings& general,
                       PrinterSettings& printer, const OptionsCaller& caller);

}  // namespace folivant
