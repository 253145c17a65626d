#include "platform/Printers.h"

#include "platform/win32/Win32.h"

#include <winspool.h>

namespace folivant::platform {

std::vector<std::wstring> PrinterNames() {
  constexpr DWORD kWhich = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
  constexpr DWORD kLevel = 4;  // names alone: the system answers from its registry and asks no printer
  DWORD size = 0;
  DWORD count = 0;
  EnumPrintersW(kWhich, nullptr, kLevel, nullptr, 0, &size, &count);
  std::vector<PRINTER_INFO_4W> printers(size / sizeof(PRINTER_INFO_4W) + 1);
  if (size == 0 ||
      !EnumPrintersW(kWhich, nullptr, kLevel, reinterpret_cast<BYTE*>(printers.data()), size, &size, &count)) {
    return {};
  }
  std::vector<std::wstring> names;
  for (DWORD i = 0; i < count; ++i) {
    names.emplace_back(printers[i].pPrinterName);
  }
  return names;
}

std::optional<std::wstring> DefaultPrinterName() {
  DWORD size = 0;  // characters with the terminator
  GetDefaultPrinterW(nullptr, &size);
  std::wstring name(size, L'\0');
  if (size == 0 || !GetDefaultPrinterW(name.data(), &size)) {
    return std::nullopt;
  }
  name.resize(size - 1);
  return name;
}

}  // namespace folivant::platform
