// Page margins between their settings, in inches or millimetres from the paper's edge, and the page surface's twips.
#pragma once

#include <memory>
#include <string>

#include "base/GeneralSettings.h"
#include "platform/PageSurface.h"
#include "ui/Messages.h"

namespace folivant {

/// In whatever unit a function says.
struct Margins {
  double Left = 0;
  double Top = 0;
  double Right = 0;
  double Bottom = 0;
  bool operator==(const Margins&) const = default;
};

/// 1,440 twips in an inch, 25.4 millimetres in an inch.
double TwipsPerUnit(bool inches);
/// The four margin settings in twips from the paper's edge.
Margins MarginsInTwips(const GeneralSettings& general);
/// The margin settings as messages name them: "Left: 20; Top: 15; Right: 20; Bottom: 20 mm".
std::wstring MarginsText(const GeneralSettings& general, const Messages& texts);
/// The bands that a sheet of `area` cannot carry, in inches or millimetres: no margin can be smaller.
Margins MinimumMargins(const platform::PageArea& area, bool inches);
/// Whether every margin is at least its minimum, both in single precision, which is that of the settings.
bool MarginsSuffice(const Margins& margins, const Margins& minimum);
/// Each margin below its minimum replaced by that minimum, rounded up to 0.01 inches or 1 millimetre; the others as
/// they are.
Margins RaisedMargins(const Margins& margins, const Margins& minimum, bool inches);
/// The job that the printer settings describe.
platform::PrintJob PrintJobOf(const PrinterSettings& printer, bool portrait);
/// The surface of such a job, to measure on; nothing when there is no such printer, so that nothing keeps a user
/// without one from confirming the options.
std::unique_ptr<platform::PageSurface> SurfaceOf(const PrinterSettings& printer, bool portrait);

}  // namespace folivant
