#include "platform/Locale.h"

namespace folivant::platform {

const UserLocale& Locale() {
  static const UserLocale locale{L",", L".", L"/"};
  return locale;
}

std::wstring FormatShortDate(int year, int month, int day) {
  return std::to_wstring(month) + L'/' + std::to_wstring(day) + L'/' + std::to_wstring(year);
}

}  // namespace folivant::platform
