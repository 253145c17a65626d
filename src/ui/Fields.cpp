#include "ui/Fields.h"

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

std::int32_t WholeNumberOf(const Controls& controls, int control, WholeRange range) {
  return NumberIn(control, ReadWhole(controls.TextOf(control), NumberSource::Typed, range),
                  [range] { return LimitsAsTyped(range); });
}

float SingleOf(const Controls& controls, int control) {
  return NumberIn(control, ReadFraction<float>(controls.TextOf(control), NumberSource::Typed), SingleLimits);
}

std::int32_t LeadingWholeNumberOf(const Controls& controls, int control, WholeRange range, WholeRange told) {
  return NumberIn(control, ReadLeadingWhole(controls.TextOf(control), range), [told] { return LimitsAsTyped(told); });
}

void FillField(Controls& controls, int control, bool value) {
  controls.SetChecked(control, value);
}
void FillField(Controls& controls, int control, const std::wstring& value) {
  controls.SetText(control, value);
}
void FillField(Controls& controls, int control, std::int32_t value) {
  controls.SetText(control, WholeText(value));
}
void FillField(Controls& controls, int control, float value) {
  controls.SetText(control, SingleText(value));
}

void ReadField(const Controls& controls, int control, bool& value) {
  value = controls.Checked(control);
}
void ReadField(const Controls& controls, int control, std::wstring& value) {
  value = controls.TextOf(control);
}
void ReadField(const Controls& controls, int control, std::int32_t& value) {
  value = WholeNumberOf(controls, control);
}
void ReadField(const Controls& controls, int control, float& value) {
  value = SingleOf(controls, control);
}

}  // namespace folivant
