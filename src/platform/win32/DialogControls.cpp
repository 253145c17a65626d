// What a dialog does with its controls: each is found by its number and sent the messages of its class.
#include <algorithm>

#include "platform/win32/Dialog.h"

namespace folivant::platform {
namespace {

/// The messages of a list, which are others for list boxes than for combo boxes.
struct ListMessages {
  UINT Add, Count, TextLength, Text, Select, Selected;
};
constexpr ListMessages kListBox = {LB_ADDSTRING, LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT, LB_SETCURSEL, LB_GETCURSEL};
constexpr ListMessages kComboBox = {CB_ADDSTRING, CB_GETCOUNT,  CB_GETLBTEXTLEN,
                                    CB_GETLBTEXT, CB_SETCURSEL, CB_GETCURSEL};

const ListMessages& MessagesOf(HWND list) {
  wchar_t name[16] = {};
  GetClassNameW(list, name, 16);
  return lstrcmpiW(name, L"ListBox") == 0 ? kListBox : kComboBox;
}

}  // namespace

bool Dialog::Has(int control) const {
  return Item(control) != nullptr;
}

std::wstring Dialog::TextOf(int control) const {
  const HWND item = Item(control);
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(item)), L'\0');
  const int copied = GetWindowTextW(item, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(copied));
  return text;
}

void Dialog::SetText(int control, const std::wstring& text) {
  SetWindowTextW(Item(control), text.c_str());
}

bool Dialog::Checked(int button) const {
  return Send(button, BM_GETCHECK) == BST_CHECKED;
}

void Dialog::SetChecked(int button, bool checked) {
  Send(button, BM_SETCHECK, checked ? WPARAM{BST_CHECKED} : WPARAM{BST_UNCHECKED});
}

void Dialog::Enable(int control, bool enabled) {
  EnableWindow(Item(control), enabled);
}

void Dialog::SetFocusTo(int control) {
  SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(control)), TRUE);
  focusGiven_ = true;
}

LRESULT Dialog::Send(int control, UINT message, WPARAM wParam, LPARAM lParam) const {
  return SendMessageW(Item(control), message, wParam, lParam);
}

void Dialog::Choose(std::span<const int> buttons, int button) {
  // Arrow keys and Tab enter a group at its chosen button, or at the first one.
  const bool any = std::find(buttons.begin(), buttons.end(), button) != buttons.end();
  const int entrance = any ? button : buttons.front();
  for (const int each : buttons) {
    SetChecked(each, each == button);
    const HWND item = Item(each);
    const LONG_PTR style = GetWindowLongPtrW(item, GWL_STYLE);
    SetWindowLongPtrW(item, GWL_STYLE, each == entrance ? style | WS_TABSTOP : style & ~LONG_PTR{WS_TABSTOP});
  }
}

void Dialog::AddItem(int list, const std::wstring& text) {
  Send(list, MessagesOf(Item(list)).Add, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

std::vector<std::wstring> Dialog::ItemsOf(int list) const {
  const ListMessages& messages = MessagesOf(Item(list));
  std::vector<std::wstring> items(static_cast<std::size_t>(std::max<LRESULT>(Send(list, messages.Count), 0)));
  for (WPARAM position = 0; std::wstring & text : items) {
    const LRESULT length = Send(list, messages.TextLength, position);
    text.resize(static_cast<std::size_t>(std::max<LRESULT>(length, 0)) + 1);
    Send(list, messages.Text, position++, reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
  }
  return items;
}

void Dialog::Select(int list, int position) {
  Send(list, MessagesOf(Item(list)).Select, static_cast<WPARAM>(position));
}

int Dialog::Selected(int list) const {
  static_assert(LB_ERR == kNothingSelected && CB_ERR == kNothingSelected);
  return static_cast<int>(Send(list, MessagesOf(Item(list)).Selected));
}

void Dialog::SetDay(int picker, const CalendarTime& day) {
  SYSTEMTIME shown{};
  shown.wYear = static_cast<WORD>(day.Year);
  shown.wMonth = static_cast<WORD>(day.Month);
  shown.wDay = static_cast<WORD>(day.Day);
  Send(picker, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&shown));
}

CalendarTime Dialog::DayOf(int picker) const {
  SYSTEMTIME shown{};
  Send(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&shown));
  return {shown.wYear, shown.wMonth, shown.wDay};
}

}  // namespace folivant::platform
