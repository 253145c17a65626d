// Whether every caption of a window fits into its control, at whatever resolution the system has.
#pragma once

#include <cstdlib>
#include <string>

#include "desktop/Desktop.h"

namespace folivant::desktop {

class FittingTexts {
 public:
  FittingTexts() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    screen_ = GetDC(nullptr);
    dpi_ = GetDeviceCaps(screen_, LOGPIXELSY);
    // The font of all windows of the program. A dialog's font has a whole number of points.
    LOGFONTW& font = metrics.lfMessageFont;
    font.lfHeight = -MulDiv(MulDiv(std::abs(font.lfHeight), 72, dpi_), dpi_, 72);
    font_ = CreateFontIndirectW(&font);
    SelectObject(screen_, font_);
  }
  ~FittingTexts() {
    ReleaseDC(nullptr, screen_);
    DeleteObject(font_);
  }
  FittingTexts(const FittingTexts&) = delete;
  FittingTexts& operator=(const FittingTexts&) = delete;

  /// Whether the system has the dots per inch that the caller of the tests names, 96 where it names none.
  void ExpectResolutionAskedFor() const {
    wchar_t asked[8] = L"96";
    GetEnvironmentVariableW(L"FOLIVANT_DPI", asked, 8);
    EXPECT_EQ(dpi_, std::stoi(asked));
  }

  /// Captions of buttons, labels and tabs, in pages too; labels that wrap have room for all lines. Labels that shorten
  /// their text are passed over, and so are bare option buttons.
  void ExpectNothingClipped(Window window, const std::wstring& where) const {
    for (HWND each = GetWindow(window.Handle(), GW_CHILD); each != nullptr; each = GetWindow(each, GW_HWNDNEXT)) {
      const Window control(each);
      if (control.ClassName() == L"#32770") {
        ExpectNothingClipped(control, where);
      } else if (control.ClassName() == L"SysTabControl32") {
        const HWND arrows = FindWindowExW(each, nullptr, L"msctls_updown32", nullptr);
        EXPECT_FALSE(IsWindowVisible(arrows)) << testing::PrintToString(where) << ": the tabs do not fit";
      } else if (Wraps(control)) {
        const RECT box = control.Rectangle();
        EXPECT_LE(HeightOf(control.Text(), box.right - box.left), box.bottom - box.top)
            << testing::PrintToString(where) << " " << testing::PrintToString(control.Text());
      } else if (const LONG needed = NeededWidth(control); needed > 0) {
        const RECT box = control.Rectangle();
        EXPECT_LE(needed, box.right - box.left)
            << testing::PrintToString(where) << " " << testing::PrintToString(control.Text());
      }
    }
  }

  /// In dots; `format` is what DrawText takes, such as DT_NOPREFIX.
  LONG WidthOf(const std::wstring& text, UINT format = 0) const {
    RECT box{};
    DrawTextW(screen_, text.c_str(), -1, &box, DT_CALCRECT | DT_SINGLELINE | format);
    return box.right;
  }

 private:
  static bool IsLabel(Window control) {
    const LONG_PTR style = GetWindowLongPtrW(control.Handle(), GWL_STYLE);
    return control.ClassName() == L"Static" && (style & WS_VISIBLE) != 0 && (style & SS_TYPEMASK) <= SS_RIGHT &&
           (style & SS_ELLIPSISMASK) == 0;
  }
  bool Wraps(Window control) const {
    const RECT box = control.Rectangle();
    return IsLabel(control) && box.bottom - box.top >= Scaled(25);
  }
  LONG HeightOf(const std::wstring& text, LONG width) const {
    RECT box{0, 0, width, 0};
    DrawTextW(screen_, text.c_str(), -1, &box, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    return box.bottom;
  }
  LONG Scaled(LONG length) const { return MulDiv(length, dpi_, 96); }

  /// 0 for what shows no caption on one line.
  LONG NeededWidth(Window control) const {
    const std::wstring kind = control.ClassName();
    const LONG_PTR style = GetWindowLongPtrW(control.Handle(), GWL_STYLE);
    const RECT box = control.Rectangle();
    const bool label = IsLabel(control) && !Wraps(control);
    const bool button = kind == L"Button" && box.right - box.left > Scaled(22);
    if (!label && !button) {
      return 0;
    }
    const bool push = (style & BS_TYPEMASK) <= BS_DEFPUSHBUTTON;
    return WidthOf(control.Text()) + Scaled(label ? 2 : push ? 8 : 16);
  }

  HFONT font_;
  HDC screen_;
  int dpi_ = 96;
};

}  // namespace folivant::desktop
