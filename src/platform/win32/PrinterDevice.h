// A printer's device: its settings as the driver keeps them, made to fit a job, and the measures of its sheet.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/PageSurface.h"
#include "platform/win32/OwnedWindows.h"

namespace folivant::platform {

/// A driver's DEVMODE, which is longer than the structure by what the driver keeps for itself.
class DeviceSettings {
 public:
  /// The printer's own settings with those of `job` put in. Throws RuntimeError (Print).
  DeviceSettings(const std::wstring& printer, const PrintJob& job);
  const DEVMODEW& Get() const { return *reinterpret_cast<const DEVMODEW*>(bytes_.data()); }

 private:
  std::vector<std::byte> bytes_;
};

/// The job's printer, or the default printer when the job names none. Throws RuntimeError (Print) when there is none.
std::wstring PrinterOf(const PrintJob& job);
/// Throws RuntimeError (Print).
OwnedDeviceContext OpenPrinterContext(const std::wstring& printer, const PrintJob& job);
PageArea AreaOf(HDC printer);

}  // namespace folivant::platform
