#include "ui/frmBase.h"

#include "platform/Files.h"
#include "platform/MessageBox.h"
#include "platform/win32/Shell.h"
#include "ui/ErrorText.h"
#include "ui/Language.h"

namespace folivant {
namespace {

/// The number that stands in `control`, or what is wrong with it.
template <class Number, class Limits>
Number NumberIn(int control, const NumberRead<Number>& read, Limits limits) {
  if (!read.Value) {
    throw FieldError(control, read.OutOfRange ? std::optional<ValueLimits>(limits()) : std::nullopt);
  }
  return *read.Value;
}

}  // namespace

std::int32_t frmBase::WholeNumberOf(int control, WholeRange range) const {
  return NumberIn(control, ReadWhole(TextOf(control), NumberSource::Typed, range),
                  [range] { return LimitsAsTyped(range); });
}

std::int32_t frmBase::LeadingWholeNumberOf(int control, WholeRange range, WholeRange told) const {
  return NumberIn(control, ReadLeadingWhole(TextOf(control), range), [told] { return LimitsAsTyped(told); });
}

float frmBase::SingleOf(int control) const {
  return NumberIn(control, ReadFraction<float>(TextOf(control), NumberSource::Typed), SingleLimits);
}

void frmBase::SetCaption(int control, Text caption) {
  SetText(Has(LABEL_OF(control)) ? LABEL_OF(control) : control, Texts()[caption]);
}

std::wstring frmBase::FieldNameOf(int control) const {
  return FieldName(TextOf(Has(LABEL_OF(control)) ? LABEL_OF(control) : control));
}

std::wstring frmBase::ProblemOf(const FieldError& error) const {
  const std::wstring field = FieldNameOf(error.Control());
  const std::optional<ValueLimits>& limits = error.Limits();
  return limits ? WithPlaceholders(Texts()[Text::NumberOutOfRange], field, limits->Lowest, limits->Highest)
                : WithPlaceholders(Texts()[Text::NotANumber], field);
}

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
      platform::ShowMessage(ProblemOf(*field), platform::BoxIcon::Exclamation, platform::BoxButtons::Ok);
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
