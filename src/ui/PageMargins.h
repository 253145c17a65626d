// Page margins between their settings, in inches or millimetres from the paper's edge, and the page surface's twips.
#pragma once

#include "base/GeneralSettings.h"
#include "platform/PageSurface.h"

namespace folivant {

struct PageMargins {
  double Left = 0;
  double Right = 0;
  double Top = 0;
  double Bottom = 0;
  bool operator==(const PageMargins&) const = default;
};

/// 1,440 twips in an inch, 25.4 millimetres in an inch.
double TwipsPerUnit(bool inches);
/// The four margin settings in twips from the paper's edge.
PageMargins MarginsInTwips(const GeneralSettings& general);
/// The bands that a sheet of `area` cannot carry, in inches or millimetres: no margin can be smaller.
PageMargins MinimumMargins(const platform::PageArea& area, bool inches);
/// The same for a sheet of that printer in that orientation; all zero when there is no such printer, so that nothing
/// keeps a user without one from confirming the options.
PageMargins MinimumMarginsOf(const PrinterSettings& printer, bool portrait, bool inches);

/// The job that the printer settings describe.
platform::PrintJob PrintJobOf(const PrinterSettings& printer, bool portrait);

}  // namespace folivant
