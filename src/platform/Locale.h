// The number and date habits of the user's locale. The host build answers as an English (United States) system.
#pragma once

#include <string>

namespace folivant::platform {

struct UserLocale {
  std::wstring ThousandsSeparator;  ///< ","
  std::wstring DecimalSeparator;    ///< "."
  std::wstring DateSeparator;       ///< "/"
};
/// Asked once per process.
const UserLocale& Locale();

/// A calendar day in the user's "Short Date" format.
std::wstring FormatShortDate(int year, int month, int day);

}  // namespace folivant::platform
