#include "output/PageMargins.h"

namespace folivant {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kMillimetresPerInch = 25.4;

}  // namespace

double TwipsPerUnit(bool inches) {
  return inches ? kTwipsPerInch : kTwipsPerInch / kMillimetresPerInch;
}

PageMargins MarginsInTwips(const GeneralSettings& general) {
  const double unit = TwipsPerUnit(general.Inches);
  return {general.MarginLeft * unit, general.MarginRight * unit, general.MarginTop * unit, general.MarginBottom * unit};
}

PageMargins MinimumMargins(const platform::PageArea& area, bool inches) {
  const double unit = TwipsPerUnit(inches);
  return {area.LeftOffset / unit, area.RightOffset / unit, area.TopOffset / unit, area.BottomOffset / unit};
}

}  // namespace folivant
