// The printers of this system. The host build has none.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace folivant::platform {

/// Device names of the printers, local ones and connections, in the order of the system.
std::vector<std::wstring> PrinterNames();
/// Nothing when no printer is installed. Asks the print spooler, which can take longer than a short listing.
std::optional<std::wstring> DefaultPrinterName();

}  // namespace folivant::platform
