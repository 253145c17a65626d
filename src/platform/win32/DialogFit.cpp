#include "platform/win32/DialogFit.h"

#include <algorithm>
#include <vector>

#include "platform/win32/Dialog.h"

namespace folivant::platform {
namespace {

enum class Kind { Other, PushButton, CheckOrOption, Frame, Label, Combo };

// Room around a caption, in dots at 96 per inch.
constexpr int kButtonPadding = 20;
constexpr int kCheckPadding = 22;
constexpr int kFramePadding = 22;
constexpr int kComboPadding = 30;
constexpr int kWidestCombo = 300;

std::wstring CaptionOf(HWND control) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(control)), L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(control, text.data(), static_cast<int>(text.size()) + 1)));
  return text;
}

std::wstring ClassOf(HWND control) {
  wchar_t name[32] = {};
  GetClassNameW(control, name, 32);
  return name;
}

int LineHeight(HWND control) {
  RECT box{};
  const HDC screen = GetDC(control);
  const HGDIOBJ old = SelectObject(screen, reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)));
  DrawTextW(screen, L"X", 1, &box, DT_CALCRECT | DT_SINGLELINE);
  SelectObject(screen, old);
  ReleaseDC(control, screen);
  return static_cast<int>(box.bottom);
}

Kind KindOfButton(LONG_PTR style) {
  switch (style & BS_TYPEMASK) {
    case BS_PUSHBUTTON:
    case BS_DEFPUSHBUTTON:
      return Kind::PushButton;
    case BS_GROUPBOX:
      return Kind::Frame;
    case BS_OWNERDRAW:
      return Kind::Other;
    default:
      return Kind::CheckOrOption;
  }
}

Kind KindOfLabel(HWND control, LONG_PTR style) {
  const LONG_PTR type = style & SS_TYPEMASK;
  const bool isText = type == SS_LEFT || type == SS_CENTER || type == SS_RIGHT || type == SS_LEFTNOWORDWRAP;
  RECT box{};
  GetClientRect(control, &box);
  const bool mayWrap = 2 * box.bottom > 3 * LineHeight(control);
  return isText && !mayWrap && (style & SS_ELLIPSISMASK) == 0 ? Kind::Label : Kind::Other;
}

Kind KindOf(HWND control) {
  const std::wstring name = ClassOf(control);
  const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
  if (name == L"Button") {
    return KindOfButton(style);
  }
  if (name == L"Static") {
    return KindOfLabel(control, style);
  }
  return name == L"ComboBox" ? Kind::Combo : Kind::Other;
}

int WidestItem(HWND combo) {
  int widest = 0;
  const auto count = SendMessageW(combo, CB_GETCOUNT, 0, 0);
  for (LRESULT i = 0; i < count; ++i) {
    const auto length = SendMessageW(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(i), 0);
    std::wstring text(static_cast<std::size_t>(std::max<LRESULT>(length, 0)) + 1, L'\0');
    SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    widest = std::max(widest, WidthOfCaption(combo, text));
  }
  return widest;
}

struct Placed {
  HWND Control;
  RECT Box;
  Kind Which;
};

std::vector<Placed> ChildrenOf(HWND parent) {
  std::vector<Placed> children;
  for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    Placed placed{child, {}, KindOf(child)};
    GetWindowRect(child, &placed.Box);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&placed.Box), 2);
    children.push_back(placed);
  }
  return children;
}

bool KeepsItsWidth(const Placed& placed) {
  if (placed.Which != Kind::Other || ClassOf(placed.Control) != L"Static") {
    return false;
  }
  const LONG_PTR type = GetWindowLongPtrW(placed.Control, GWL_STYLE) & SS_TYPEMASK;
  return type == SS_BITMAP || type == SS_ICON;
}

void InsertRoom(std::vector<Placed>& children, LONG at, LONG room) {
  for (Placed& child : children) {
    if (child.Box.left >= at) {
      child.Box.left += room;
      child.Box.right += room;
    } else if (child.Box.right >= at && !KeepsItsWidth(child)) {
      child.Box.right += room;
    }
  }
}

/// For a combo box the height with its list, which is what setting its size means.
LONG HeightToSet(const Placed& placed) {
  if (placed.Which != Kind::Combo) {
    return placed.Box.bottom - placed.Box.top;
  }
  RECT dropped{};
  SendMessageW(placed.Control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
  return dropped.bottom - dropped.top;
}

}  // namespace

int WidthOfCaption(HWND window, const std::wstring& text) {
  RECT box{};
  const HDC screen = GetDC(window);
  const HGDIOBJ old = SelectObject(screen, reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)));
  DrawTextW(screen, text.c_str(), static_cast<int>(text.size()), &box, DT_CALCRECT | DT_SINGLELINE);
  SelectObject(screen, old);
  ReleaseDC(window, screen);
  return static_cast<int>(box.right);
}

int NeededWidth(HWND control) {
  const auto padded = [control](int width, int padding) { return width + MulDiv(padding, DpiOf(control), 96); };
  switch (KindOf(control)) {
    case Kind::PushButton:
      return padded(WidthOfCaption(control, CaptionOf(control)), kButtonPadding);
    case Kind::CheckOrOption:
      return padded(WidthOfCaption(control, CaptionOf(control)), kCheckPadding);
    case Kind::Frame:
      return padded(WidthOfCaption(control, CaptionOf(control)), kFramePadding);
    case Kind::Label:
      return WidthOfCaption(control, CaptionOf(control));
    case Kind::Combo:
      return std::min(padded(WidestItem(control), kComboPadding), MulDiv(kWidestCombo, DpiOf(control), 96));
    case Kind::Other:
      break;
  }
  return 0;
}

SIZE FitChildren(HWND parent) {
  std::vector<Placed> children = ChildrenOf(parent);
  LONG grown = 0;
  // By index: inserting room moves the boxes of children still to come.
  for (std::size_t i = 0; i < children.size(); ++i) {
    const LONG missing = NeededWidth(children[i].Control) - (children[i].Box.right - children[i].Box.left);
    if (missing > 0) {
      InsertRoom(children, children[i].Box.right, missing);
      grown += missing;
    }
  }
  if (grown > 0) {
    for (const Placed& child : children) {
      SetWindowPos(child.Control, nullptr, child.Box.left, child.Box.top, child.Box.right - child.Box.left,
                   HeightToSet(child), SWP_NOZORDER | SWP_NOACTIVATE);
    }
  }
  return {grown, 0};
}

}  // namespace folivant::platform
