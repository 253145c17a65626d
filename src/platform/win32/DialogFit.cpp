// Widens controls and their dialog where a language's captions need more room than the template gives them.
#include "platform/win32/DialogFit.h"

#include <algorithm>
#include <vector>

#include "platform/win32/OwnedWindows.h"
#include "platform/win32/WindowSystem.h"

namespace folivant::platform {
namespace {

enum class Kind { Other, PushButton, CheckOrOption, Frame, Label, Combo };

// Room around a caption, in pixels at 96 per inch.
constexpr int kButtonPadding = 20;
constexpr int kCheckPadding = 22;
constexpr int kFramePadding = 22;
constexpr int kComboPadding = 30;
constexpr int kLabelPadding = 2;  // a text may be drawn a dot wider than it measures: the colon would go
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

/// The box that one line of `text` takes in the window's font.
RECT Measure(HWND window, const std::wstring& text, UINT format) {
  RECT box{};
  const WindowContext screen(window);
  const Selection font(screen.Get(), reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)));
  DrawTextW(screen.Get(), text.c_str(), static_cast<int>(text.size()), &box, DT_CALCRECT | DT_SINGLELINE | format);
  return box;
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

/// A check box or option button that is hardly wider than its mark; its text is for screen readers.
bool IsBare(HWND control) {
  RECT box{};
  GetClientRect(control, &box);
  return box.right < MulDiv(kCheckPadding, DpiOf(control), 96);
}

Kind KindOfLabel(HWND control, LONG_PTR style) {
  const LONG_PTR type = style & SS_TYPEMASK;
  const bool isText = type == SS_LEFT || type == SS_CENTER || type == SS_RIGHT || type == SS_LEFTNOWORDWRAP;
  RECT box{};
  GetClientRect(control, &box);
  const bool mayWrap = 2 * box.bottom > 3 * Measure(control, L"X", 0).bottom;
  const bool shown = (style & WS_VISIBLE) != 0;
  return isText && shown && !mayWrap && (style & SS_ELLIPSISMASK) == 0 ? Kind::Label : Kind::Other;
}

Kind KindOf(HWND control) {
  const std::wstring name = ClassOf(control);
  const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
  if (name == L"Button") {
    const Kind kind = KindOfButton(style);
    return kind == Kind::CheckOrOption && IsBare(control) ? Kind::Other : kind;
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

LONG WidthOf(const RECT& box) {
  return box.right - box.left;
}

// Buttons of a row that stand no further apart than this belong together, in pixels at 96 per inch.
constexpr int kButtonGap = 16;

/// Moves a button, and with it the neighbours to its left that stand close to it in the same row.
void MoveButtonRow(std::vector<Placed>& children, Placed last, LONG room) {
  const LONG gap = MulDiv(kButtonGap, DpiOf(last.Control), 96);
  LONG edge = last.Box.right;
  for (bool found = true; found;) {
    found = false;
    for (Placed& child : children) {
      const bool joins = child.Box.right <= edge && child.Box.right >= edge - gap;
      if (child.Which == Kind::PushButton && child.Box.top == last.Box.top && joins && WidthOf(child.Box) > 0) {
        edge = child.Box.left;
        OffsetRect(&child.Box, room, 0);
        found = true;
        break;
      }
    }
  }
}

/// Widens by `room` at the column `at`: what lies to its right moves, what spans it grows. Only a button that needs the
/// room makes other buttons grow; otherwise they keep their size and their place at the right edge.
void InsertColumns(std::vector<Placed>& children, LONG at, LONG room, bool forButton) {
  for (Placed& child : children) {
    if (child.Box.left >= at) {
      OffsetRect(&child.Box, room, 0);
    } else if (child.Box.right >= at && !KeepsItsWidth(child) && (forButton || child.Which != Kind::PushButton)) {
      child.Box.right += room;
    }
  }
  const auto isLast = [&](const Placed& child) {
    return !forButton && child.Which == Kind::PushButton && child.Box.left < at && child.Box.right >= at;
  };
  for (auto last = std::find_if(children.begin(), children.end(), isLast); last != children.end();
       last = std::find_if(last + 1, children.end(), isLast)) {
    const Placed button = *last;
    MoveButtonRow(children, button, room);
  }
}

void InsertRows(std::vector<Placed>& children, LONG at, LONG room) {
  for (Placed& child : children) {
    if (child.Box.top >= at) {
      OffsetRect(&child.Box, 0, room);
    } else if (child.Box.bottom >= at && child.Which == Kind::Other && !KeepsItsWidth(child)) {
      child.Box.bottom += room;
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

void Apply(const std::vector<Placed>& children) {
  for (const Placed& child : children) {
    SetWindowPos(child.Control, nullptr, child.Box.left, child.Box.top, WidthOf(child.Box), HeightToSet(child),
                 SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

}  // namespace

int WidthOfCaption(HWND window, const std::wstring& text) {
  return static_cast<int>(Measure(window, text, 0).right);
}

int WidthOfPlainText(HWND window, const std::wstring& text) {
  return static_cast<int>(Measure(window, text, DT_NOPREFIX).right);
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
      return padded(WidthOfCaption(control, CaptionOf(control)), kLabelPadding);
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
      InsertColumns(children, children[i].Box.right, missing, children[i].Which == Kind::PushButton);
      grown += missing;
    }
  }
  if (grown > 0) {
    Apply(children);
  }
  return {grown, 0};
}

void GrowChild(HWND parent, HWND child, SIZE by) {
  std::vector<Placed> children = ChildrenOf(parent);
  const auto target =
      std::find_if(children.begin(), children.end(), [&](const Placed& each) { return each.Control == child; });
  const RECT box = target->Box;
  InsertColumns(children, box.right, by.cx, false);
  InsertRows(children, box.bottom, by.cy);
  target->Box = {box.left, box.top, box.right + by.cx, box.bottom + by.cy};  // whatever kind it is
  Apply(children);
}

}  // namespace folivant::platform
