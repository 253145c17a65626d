// Margins in the units of settings, of messages and of paper, and what a printer makes of them.
#include "ui/Margins.h"

#include <utility>

#include "base/mdlFileRoutines.h"
#include "platform/RuntimeError.h"

namespace folivant {
namespace {

constexpr double kMillimetresPerInch = 25.4;

bool Suffices(double margin, double minimum) {
  return static_cast<float>(margin) >= static_cast<float>(minimum);
}

double Raised(double margin, double minimum, double step) {
  if (Suffices(margin, minimum)) {
    return margin;
  }
  return static_cast<float>(RoundToStep(static_cast<float>(minimum), step, Rounding::Up));
}

}  // namespace

double TwipsPerUnit(bool inches) {
  return inches ? platform::kTwipsPerInch : platform::kTwipsPerInch / kMillimetresPerInch;
}

Margins MarginsInTwips(const GeneralSettings& general) {
  const double unit = TwipsPerUnit(general.Inches);
  return {.Left = general.MarginLeft * unit,
          .Top = general.MarginTop * unit,
          .Right = general.MarginRight * unit,
          .Bottom = general.MarginBottom * unit};
}

std::wstring MarginsText(const GeneralSettings& general, const Messages& texts) {
  const std::pair<TextId, float> margins[] = {{TextId::MarginLeft, general.MarginLeft},
                                              {TextId::MarginTop, general.MarginTop},
                                              {TextId::MarginRight, general.MarginRight},
                                              {TextId::MarginBottom, general.MarginBottom}};
  std::wstring text;
  for (const auto& [caption, margin] : margins) {
    text += text.empty() ? L"" : L"; ";
    text += ReplaceAll(texts[caption], L"&", L"") + L' ' + SingleText(margin);
  }
  return text + L' ' + texts[general.Inches ? TextId::UnitInches : TextId::UnitMillimeter];
}

Margins MinimumMargins(const platform::PageArea& area, bool inches) {
  const double unit = TwipsPerUnit(inches);
  return {.Left = area.LeftOffset / unit,
          .Top = area.TopOffset / unit,
          .Right = area.RightOffset / unit,
          .Bottom = area.BottomOffset / unit};
}

bool MarginsSuffice(const Margins& margins, const Margins& minimum) {
  return Suffices(margins.Left, minimum.Left) && Suffices(margins.Top, minimum.Top) &&
         Suffices(margins.Right, minimum.Right) && Suffices(margins.Bottom, minimum.Bottom);
}

Margins RaisedMargins(const Margins& margins, const Margins& minimum, bool inches) {
  const double step = inches ? 0.01 : 1.0;
  return {.Left = Raised(margins.Left, minimum.Left, step),
          .Top = Raised(margins.Top, minimum.Top, step),
          .Right = Raised(margins.Right, minimum.Right, step),
          .Bottom = Raised(margins.Bottom, minimum.Bottom, step)};
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
