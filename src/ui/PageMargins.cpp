#include "ui/PageMargins.h"

#include <utility>

#include "base/mdlFileRoutines.h"
#include "platform/RuntimeError.h"
#include "ui/FieldText.h"

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

std::wstring MarginsText(const GeneralSettings& general, const Messages& texts) {
  const std::pair<Text, float> margins[] = {{Text::MarginLeft, general.MarginLeft},
                                            {Text::MarginTop, general.MarginTop},
                                            {Text::MarginRight, general.MarginRight},
                                            {Text::MarginBottom, general.MarginBottom}};
  std::wstring text;
  for (const auto& [caption, margin] : margins) {
    text += text.empty() ? L"" : L"; ";
    text += ReplaceAll(texts[caption], L"&", L"") + L' ' + SingleText(margin);
  }
  return text + L' ' + texts[general.Inches ? Text::UnitInches : Text::UnitMillimeter];
}

PageMargins MinimumMargins(const platform::PageArea& area, bool inches) {
  const double unit = TwipsPerUnit(inches);
  return {area.LeftOffset / unit, area.RightOffset / unit, area.TopOffset / unit, area.BottomOffset / unit};
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

std::unique_ptr<platform::PageSurface> SurfaceOf(const PrinterSettings& printer, bool portrait) {
  try {
    return platform::OpenPageSurface(PrintJobOf(printer, portrait));
  } catch (const RuntimeError&) {
    return nullptr;
  }
}

}  // namespace folivant
