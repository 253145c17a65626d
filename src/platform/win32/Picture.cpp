#include "platform/win32/Picture.h"

namespace folivant::platform {
namespace {

OwnedBitmap Stretched(HBITMAP source, SIZE wanted) {
  const SIZE size = SizeOfBitmap(source);
  const HDC screen = GetDC(nullptr);
  const HDC from = CreateCompatibleDC(screen);
  const HDC to = CreateCompatibleDC(screen);
  OwnedBitmap made(CreateCompatibleBitmap(screen, wanted.cx, wanted.cy));
  const HGDIOBJ oldFrom = SelectObject(from, source);
  const HGDIOBJ oldTo = SelectObject(to, made.Get());
  SetStretchBltMode(to, HALFTONE);
  SetBrushOrgEx(to, 0, 0, nullptr);
  StretchBlt(to, 0, 0, wanted.cx, wanted.cy, from, 0, 0, size.cx, size.cy, SRCCOPY);
  SelectObject(from, oldFrom);
  SelectObject(to, oldTo);
  DeleteDC(from);
  DeleteDC(to);
  ReleaseDC(nullptr, screen);
  return made;
}

}  // namespace

SIZE SizeOfBitmap(HBITMAP bitmap) {
  BITMAP data{};
  GetObjectW(bitmap, sizeof(data), &data);
  return {data.bmWidth, data.bmHeight};
}

OwnedBitmap LoadPicture(int resource, int dpi) {
  const int drawnFor = dpi <= 96 ? 96 : dpi <= 144 ? 144 : 192;
  const int number = resource + (drawnFor == 96 ? 0 : drawnFor == 144 ? 1000 : 2000);
  OwnedBitmap drawn(static_cast<HBITMAP>(
      LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(number), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
  if (!drawn.IsOpen() || dpi == drawnFor) {
    return drawn;
  }
  const SIZE size = SizeOfBitmap(drawn.Get());
  return Stretched(drawn.Get(), {MulDiv(size.cx, dpi, drawnFor), MulDiv(size.cy, dpi, drawnFor)});
}

}  // namespace folivant::platform
