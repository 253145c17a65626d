// A printer with the job's settings put into the driver's terms.
#include "platform/win32/PrinterDevice.h"

#include <winspool.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <span>
#include <utility>

#include "platform/Printers.h"
#include "platform/win32/SystemError.h"

namespace folivant::platform {
namespace {

// The printer functions take names that they do not change as pointers to changeable text.
wchar_t* Changeable(const std::wstring& text) {
  return const_cast<wchar_t*>(text.c_str());
}

OwnedPrinter OpenPrinterNamed(const std::wstring& name) {
  HANDLE printer = nullptr;
  if (OpenPrinterW(Changeable(name), &printer, nullptr) == FALSE) {
    throw SystemError(FailedAction::Print, name, GetLastError());
  }
  return OwnedPrinter(printer);
}

/// All values of a capability that lists some, `perValue` numbers each; empty when the driver has none.
template <class Value>
std::vector<Value> Capabilities(const std::wstring& printer, WORD capability, std::size_t perValue = 1) {
  const int count = DeviceCapabilitiesW(printer.c_str(), nullptr, capability, nullptr, nullptr);
  std::vector<Value> values(count > 0 ? static_cast<std::size_t>(count) * perValue : 0);
  if (!values.empty()) {
    DeviceCapabilitiesW(printer.c_str(), nullptr, capability, reinterpret_cast<wchar_t*>(values.data()), nullptr);
  }
  return values;
}

struct Resolution {
  LONG X = 0;
  LONG Y = 0;
};

/// A driver that lists its resolutions gets one of them, the lowest for draft and the highest for high quality; drivers
/// that work in dots do not all understand the general quality codes.
std::optional<Resolution> ResolutionFor(const std::wstring& printer, std::int32_t quality) {
  constexpr double kDraft = -1;
  constexpr double kStepsToHigh = 3;
  const std::vector<LONG> numbers = Capabilities<LONG>(printer, DC_ENUMRESOLUTIONS, 2);
  std::vector<Resolution> resolutions;
  for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) {
    resolutions.push_back({numbers[i], numbers[i + 1]});
  }
  if (resolutions.empty()) {
    return std::nullopt;
  }
  std::sort(resolutions.begin(), resolutions.end(),
            [](const Resolution& a, const Resolution& b) { return std::pair(a.X, a.Y) < std::pair(b.X, b.Y); });
  const double share = std::clamp((kDraft - quality) / kStepsToHigh, 0.0, 1.0);
  return resolutions[static_cast<std::size_t>(std::lround(share * static_cast<double>(resolutions.size() - 1)))];
}

/// The paper source to ask for: the general code if the printer has it; otherwise, for "lower" and "middle", its own
/// second and third tray. Nothing for one that it does not have: it then takes what it is set to.
std::optional<short> PaperSourceFor(const std::wstring& printer, std::int32_t bin) {
  const std::vector<WORD> sources = Capabilities<WORD>(printer, DC_BINS);
  if (std::find(sources.begin(), sources.end(), bin) != sources.end()) {
    return static_cast<short>(bin);
  }
  std::vector<WORD> ownTrays;
  std::copy_if(sources.begin(), sources.end(), std::back_inserter(ownTrays),
               [](WORD source) { return source >= DMBIN_USER; });
  const bool hasPlace = bin == DMBIN_LOWER || bin == DMBIN_MIDDLE;
  const auto place = static_cast<std::size_t>(bin - DMBIN_UPPER);
  if (!hasPlace || place >= ownTrays.size()) {
    return std::nullopt;
  }
  return static_cast<short>(ownTrays[place]);
}

void PutIn(const PrintJob& job, const std::wstring& printer, DEVMODEW& mode) {
  mode.dmFields |= DM_ORIENTATION | DM_COPIES | DM_COLLATE | DM_DUPLEX | DM_PRINTQUALITY;
  mode.dmOrientation = job.Portrait ? DMORIENT_PORTRAIT : DMORIENT_LANDSCAPE;
  mode.dmCopies = static_cast<short>(std::clamp(job.Copies, 1, 9999));
  // Whether or not the driver claims to collate (DC_COLLATE): print servers do where some drivers say no.
  mode.dmCollate = DMCOLLATE_TRUE;
  mode.dmDuplex = static_cast<short>(std::clamp<std::int32_t>(job.Duplex, DMDUP_SIMPLEX, DMDUP_HORIZONTAL));
  if (const std::optional<Resolution> resolution = ResolutionFor(printer, job.Quality)) {
    mode.dmPrintQuality = static_cast<short>(resolution->X);
    mode.dmYResolution = static_cast<short>(resolution->Y);
    mode.dmFields |= DM_YRESOLUTION;
  } else {
    mode.dmPrintQuality = static_cast<short>(std::clamp<std::int32_t>(job.Quality, DMRES_HIGH, DMRES_DRAFT));
    mode.dmFields &= ~static_cast<DWORD>(DM_YRESOLUTION);
  }
  if (const std::optional<short> source = PaperSourceFor(printer, job.PaperBin)) {
    mode.dmDefaultSource = *source;
    mode.dmFields |= DM_DEFAULTSOURCE;
  }
}

/// DocumentProperties in its silent modes.
LONG AskDriver(const OwnedPrinter& printer, const std::wstring& name, DEVMODEW* out, DEVMODEW* in, DWORD mode) {
  const LONG answer = DocumentPropertiesW(nullptr, printer.Get(), Changeable(name), out, in, mode);
  const DWORD code = GetLastError();
  if (answer < 0) {
    throw SystemError(FailedAction::Print, name, code);
  }
  return answer;
}

}  // namespace

DeviceSettings::DeviceSettings(const std::wstring& printer, const PrintJob& job) {
  const OwnedPrinter opened = OpenPrinterNamed(printer);
  const LONG size = AskDriver(opened, printer, nullptr, nullptr, 0);
  std::vector<std::byte> wanted(static_cast<std::size_t>(size));
  bytes_.resize(wanted.size());
  auto* const wantedMode = reinterpret_cast<DEVMODEW*>(wanted.data());
  AskDriver(opened, printer, wantedMode, nullptr, DM_OUT_BUFFER);
  PutIn(job, printer, *wantedMode);
  // The driver drops what it cannot do.
  AskDriver(opened, printer, reinterpret_cast<DEVMODEW*>(bytes_.data()), wantedMode, DM_IN_BUFFER | DM_OUT_BUFFER);
}

std::wstring PrinterOf(const PrintJob& job) {
  if (!job.PrinterName.empty()) {
    return job.PrinterName;
  }
  const std::optional<std::wstring> name = DefaultPrinterName();
  if (!name) {
    throw SystemError(FailedAction::Print, {}, GetLastError());
  }
  return *name;
}

OwnedDeviceContext OpenPrinterContext(const std::wstring& printer, const PrintJob& job) {
  const DeviceSettings settings(printer, job);
  OwnedDeviceContext dc(CreateDCW(L"WINSPOOL", printer.c_str(), nullptr, &settings.Get()));
  const DWORD code = GetLastError();
  if (!dc.IsOpen()) {
    throw SystemError(FailedAction::Print, printer, code);
  }
  return dc;
}

PageArea AreaOf(HDC printer) {
  const auto horizontal = [printer](int index) {
    return GetDeviceCaps(printer, index) * kTwipsPerInch / GetDeviceCaps(printer, LOGPIXELSX);
  };
  const auto vertical = [printer](int index) {
    return GetDeviceCaps(printer, index) * kTwipsPerInch / GetDeviceCaps(printer, LOGPIXELSY);
  };
  PageArea area;
  area.Width = horizontal(HORZRES);
  area.Height = vertical(VERTRES);
  area.LeftOffset = horizontal(PHYSICALOFFSETX);
  area.TopOffset = vertical(PHYSICALOFFSETY);
  area.RightOffset = horizontal(PHYSICALWIDTH) - area.LeftOffset - area.Width;
  area.BottomOffset = vertical(PHYSICALHEIGHT) - area.TopOffset - area.Height;
  return area;
}

}  // namespace folivant::platform
