// The rule by which a name that is too long for its column loses its middle, whatever the column is measured in:
// characters in a text file, the printer's text width on a page. And the rule for headings on a page.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "scan/NameRules.h"

namespace folivant {

/// What a column of names is measured in.
class NameMeasure {
 public:
  virtual ~NameMeasure() = default;
  virtual double WidthOf(std::wstring_view text) const = 0;
  /// How many leading characters of `text` go into `width`; 0 for a width below zero.
  virtual std::size_t Fit(std::wstring_view text, double width) const = 0;
};

/// Every character is one wide; a fractional width is rounded to the nearest integer, halves to even.
class CharacterMeasure final : public NameMeasure {
 public:
  double WidthOf(std::wstring_view text) const override { return static_cast<double>(text.size()); }
  std::size_t Fit(std::wstring_view text, double width) const override;
  /// The characters that a column of `width` has, 0 for a width below zero.
  static std::size_t Characters(double width);
};

/// As wide as `form` draws it. `form` is used, not owned.
class DrawnMeasure final : public NameMeasure {
 public:
  explicit DrawnMeasure(const TextMeasure& form) : form_(form) {}
  double WidthOf(std::wstring_view text) const override { return form_.WidthOf(text); }
  std::size_t Fit(std::wstring_view text, double width) const override;

 private:
  const TextMeasure& form_;
};

/// `name` if it is no wider than `width`; otherwise the start of what stands before its last dot, "...", and its
/// extension with the dot, which is itself cut and given "..." when it takes more than a third of the width. The result
/// may be too wide for a very small width.
std::wstring ShortenName(std::wstring_view name, double width, const NameMeasure& measure);

/// `heading`, some words and a path, made narrower than `width` as one text by FitPathToWidth. A last component that is
/// too wide even alone then loses its beginning, so that its end is always there.
std::wstring FitHeading(std::wstring_view heading, double width, const TextMeasure& form);

}  // namespace folivant
