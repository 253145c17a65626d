#include "ui/PageMargins.h"

#include "platform/RuntimeError.h"

namespace folivant {
namespace {

constexpr double kMillimetresPerInch = 25.4;

}  // namespace

double TwipsPerUnit(bool inches) {
  return inches ? platform::kTwipsPerInch : platform::kTwipsPerInch / kMillimetresPerInch;
}

PageMargins MarginsInTwips(const GeneralSettings& general) {
  const double unit = TwipsPerUnit(general.Inches);
  return {general.MarginLeft * unit, general.MarginRight * unit, general.MarginTop * unit, general.MarginBottom * unit};
}

PageMargins MinimumMargins(const platform::PageArea& area, bool inches) {
  const double unit = TwipsPerUnit(inches);
  return {area.LeftOffset / unit, area.RightOffset / unit, area.TopOffset / unit, area.BottomOffset / unit};
}

PageMargins MinimumMarginsOf(const PrinterSettings& printer, bool portrait, bool inches) {
  try {
    return MinimumMargins(platform::OpenPageSurface(PrintJobOf(printer, portrait))->Area(), inches);
  } catch (const RuntimeError&) {
    return {};
  }
}

platform::PrintJob PrintJobOf(const PrinterSettings& printer, bool portrait) {
  platform::PrintJob job;
  job.PrinterName = printer.PrinterName;
  job.Portrait = portrait;
  job.Copies = printer.PrinterCopies;
  job.Duplex = printer.PrinterDuplex;
  job.Quality = printer.PrinterQuality;
  job.PaperBin = printer.PrinterPaperBin;
  return job;
}

}  // namespace folivant
