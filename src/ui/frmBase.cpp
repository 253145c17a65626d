#include "ui/frmBase.h"

#include "platform/Files.h"
#include "platform/MessageBox.h"
#include "platform/win32/Shell.h"
#include "ui/ErrorText.h"

namespace folivant {

void frmBase::ShowHelp() {
  if (platform::PathExists(context_.HelpFile)) {
    platform::OpenHelpFile(Window(), context_.HelpFile);
  } else {
    platform::OpenDocument(Window(), context_.ManualFile);
  }
}

void frmBase::ShowProblem(const std::exception& problem) noexcept {
  try {
    if (const auto* field = dynamic_cast<const FieldError*>(&problem)) {
      const int control = field->Control();
      platform::ShowMessage(ProblemOf(*this, *field, Texts()), platform::BoxIcon::Exclamation,
                            platform::BoxButtons::Ok);
      ShowField(control);
      SetFocusTo(control);
    } else {
      ShowError(problem, Texts());
    }
  } catch (const std::exception&) {
    // No memory even for telling: the window stays, which is all that can be done.
  }
}

}  // namespace folivant
