#include "ui/frmBase.h"

#include <limits>

#include "app/mdlVars.h"
#include "platform/Files.h"
#include "platform/MessageBox.h"
#include "platform/win32/Shell.h"
#include "ui/ErrorText.h"
#include "ui/Language.h"

namespace folivant {

std::int32_t frmBase::WholeNumberOf(int control) const {
  const auto number = ParseWholeNumber(TextOf(control));
  if (!number) {
    throw FieldError(control);
  }
  return *number;
}

float frmBase::SingleOf(int control) const {
  const auto number = ParseSingle(TextOf(control));
  if (!number) {
    throw FieldError(control);
  }
  return *number;
}

std::int16_t frmBase::ShortNumberOf(int control) const {
  const std::int32_t number = WholeNumberOf(control);
  if (number < std::numeric_limits<std::int16_t>::min() || number > std::numeric_limits<std::int16_t>::max()) {
    throw FieldError(control);
  }
  return static_cast<std::int16_t>(number);
}

void frmBase::SetCaption(int control, Text caption) {
  SetText(Has(LABEL_OF(control)) ? LABEL_OF(control) : control, mdlVars::Texts[caption]);
}

std::wstring frmBase::FieldNameOf(int control) const {
  return FieldName(TextOf(Has(LABEL_OF(control)) ? LABEL_OF(control) : control));
}

void frmBase::ShowHelp() {
  if (platform::PathExists(mdlVars::HelpFile)) {
    platform::OpenHelpFile(Window(), mdlVars::HelpFile);
  } else {
    platform::OpenDocument(Window(), mdlVars::ManualFile);
  }
}

void frmBase::ShowProblem(const std::exception& problem) noexcept {
  try {
    if (const auto* field = dynamic_cast<const FieldError*>(&problem)) {
      const int control = field->Control();
      platform::ShowMessage(WithPlaceholders(mdlVars::Texts[Text::NotANumber], FieldNameOf(control)),
                            platform::BoxIcon::Exclamation, platform::BoxButtons::Ok);
      ShowField(control);
      SetFocusTo(control);
    } else {
      ShowError(problem, mdlVars::Texts);
    }
  } catch (const std::exception&) {
    // Out of memory while telling so: the window stays, which is all that can be done.
  }
}

}  // namespace folivant
