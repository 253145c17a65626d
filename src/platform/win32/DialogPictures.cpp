// The pictures and the tips of a dialog's controls.
#include <algorithm>

#include "platform/win32/Dialog.h"
#include "platform/win32/Picture.h"
#include "platform/win32/WindowSystem.h"

namespace folivant::platform {
namespace {

constexpr int kLongestTip = 400;  // pixels at 96 per inch; a longer tip wraps

}  // namespace

void Dialog::SetToolTip(int control, const std::wstring& text) {
  if (toolTips_ == nullptr) {
    toolTips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                                CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, window_, nullptr,
                                GetModuleHandleW(nullptr), nullptr);
    SendMessageW(toolTips_, TTM_SETMAXTIPWIDTH, 0, Scaled(kLongestTip));
  }
  std::wstring shown = text;
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof(tool);
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = window_;
  tool.uId = reinterpret_cast<UINT_PTR>(Item(control));
  tool.lpszText = shown.data();
  SendMessageW(toolTips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  SendMessageW(toolTips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void Dialog::SetPicture(int control, int resource) {
  Picture& picture = pictures_[control];
  picture.Resource = resource;
  ShowPicture(control, picture);
}

void Dialog::ShowPicture(int control, Picture& picture) {
  OwnedBitmap loaded = LoadPicture(picture.Resource, DpiOf(window_));
  Send(control, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(loaded.Get()));
  picture.Bitmap = std::move(loaded);
  if (!filled_ && picture.Bitmap.IsOpen()) {
    GrowToPicture(control, SizeOfBitmap(picture.Bitmap.Get()));
  }
}

void Dialog::ShowPicturesAnew() {
  for (auto& [control, picture] : pictures_) {
    ShowPicture(control, picture);
  }
  Form_DpiChanged();
}

void Dialog::GrowToPicture(int control, SIZE picture) {
  RECT room{};
  GetClientRect(Item(control), &room);
  const SIZE missing{std::max<LONG>(picture.cx - room.right, 0), std::max<LONG>(picture.cy - room.bottom, 0)};
  if (missing.cx > 0 || missing.cy > 0) {
    Grow(control, missing);
  }
}

}  // namespace folivant::platform
