#include "output/NameShortening.h"

#include <algorithm>
#include <cmath>

#include "base/Lengths.h"

namespace folivant {
namespace {

constexpr std::wstring_view kDots = L"...";

/// The start of `text` that leaves room for the dots in `width`, and the dots.
std::wstring CutTo(std::wstring_view text, double width, const NameMeasure& measure) {
  const double room = width - measure.WidthOf(kDots);
  std::wstring cut(text.substr(0, measure.Fit(text, room)));
  return cut += kDots;
}

}  // namespace

std::size_t CharacterMeasure::Characters(double width) {
  return width > 0 ? static_cast<std::size_t>(std::nearbyint(width)) : 0;
}

std::size_t CharacterMeasure::Fit(std::wstring_view text, double width) const {
  return std::min(text.size(), Characters(width));
}

std::size_t DrawnMeasure::Fit(std::wstring_view text, double width) const {
  return LargestFitting(text.size(),
                        [&](std::size_t count) { return !IsLonger(form_.WidthOf(text.substr(0, count)), width); });
}

std::wstring ShortenName(std::wstring_view name, double width, const NameMeasure& measure) {
  if (!IsLonger(measure.WidthOf(name), width)) {
    return std::wstring(name);
  }
  const std::wstring_view base = name.substr(0, name.rfind(L'.'));
  std::wstring extension(name.substr(base.size()));
  if (IsLonger(measure.WidthOf(extension), width / 3)) {
    extension = CutTo(extension, width / 3, measure);
  }
  return CutTo(base, width - measure.WidthOf(extension), measure) + extension;
}

std::wstring FitHeading(std::wstring_view heading, double width, const TextMeasure& form) {
  if (IsShorter(form.WidthOf(heading), width)) {
    return std::wstring(heading);
  }
  std::wstring fitted = FitPathToWidth(heading, width, form);
  if (IsShorter(form.WidthOf(fitted), width)) {
    return fitted;
  }
  const auto end = [&](std::size_t kept) { return std::wstring(kDots) += heading.substr(heading.size() - kept); };
  return end(
      LargestFitting(heading.size(), [&](std::size_t kept) { return IsShorter(form.WidthOf(end(kept)), width); }));
}

}  // namespace folivant
