#include "ui/Binding.h"

#include "base/mdlFileRoutines.h"
#include "res/Controls.h"
#include "ui/Language.h"

namespace folivant {
namespace {

/// The control that carries the caption of `control`.
int CaptionedBy(const Controls& controls, int control) {
  return controls.Has(LABEL_OF(control)) ? LABEL_OF(control) : control;
}

}  // namespace

std::wstring FieldNameOf(const Controls& controls, int control) {
  std::wstring name = Trim(ReplaceAll(controls.TextOf(CaptionedBy(controls, control)), L"&", L""));
  // French has a blank that does not break before the colon.
  name.erase(name.find_last_not_of(L": \u00A0") + 1);
  return name;
}

std::wstring ProblemOf(const Controls& controls, const FieldError& error, const Messages& texts) {
  const std::wstring field = FieldNameOf(controls, error.Control());
  const std::optional<ValueLimits>& limits = error.Limits();
  return limits ? WithPlaceholders(texts[TextId::NumberOutOfRange], field, limits->Lowest, limits->Highest)
                : WithPlaceholders(texts[TextId::NotANumber], field);
}

void SetCaption(Controls& controls, int control, const std::wstring& caption) {
  controls.SetText(CaptionedBy(controls, control), caption);
}

}  // namespace folivant
