#include "platform/Printers.h"

namespace folivant::platform {

std::vector<std::wstring> PrinterNames() {
  return {};
}

std::optional<std::wstring> DefaultPrinterName() {
  return std::nullopt;
}

}  // namespace folivant::platform
