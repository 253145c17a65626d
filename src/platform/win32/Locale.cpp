#include "platform/Locale.h"

#include "platform/win32/Win32.h"

namespace folivant::platform {
namespace {

std::wstring Ask(LCTYPE what, const wchar_t* otherwise) {
  wchar_t text[16];
  const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, what, text, static_cast<int>(std::size(text)));
  return length > 0 ? text : otherwise;
}

}  // namespace

const UserLocale& Locale() {
  static const UserLocale locale{Ask(LOCALE_STHOUSAND, L","), Ask(LOCALE_SDECIMAL, L"."), Ask(LOCALE_SDATE, L"/")};
  return locale;
}

std::wstring FormatShortDate(int year, int month, int day) {
  SYSTEMTIME date{};
  date.wYear = static_cast<WORD>(year);
  date.wMonth = static_cast<WORD>(month);
  date.wDay = static_cast<WORD>(day);
  wchar_t text[80];
  const int length =
      GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &date, nullptr, text, static_cast<int>(std::size(text)));
  return length > 0 ? text : L"";
}

}  // namespace folivant::platform
