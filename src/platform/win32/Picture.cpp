#include "platform/win32/Picture.h"

namespace folivant::platform {
namespace {

OwnedBitmap Stretched(HBITMAP source, SIZE wanted) {
  const SIZE size = SizeOfBitmap(source);
  const WindowContext screen(nullptr);
  const OwnedDeviceContext from(CreateCompatibleDC(screen.Get()));
  const OwnedDeviceContext to(CreateCompatibleDC(screen.Get()));
  OwnedBitmap made(CreateCompatibleBitmap(screen.Get(), wanted.cx, wanted.cy));
  const Selection read(from.Get(), source);
  const Selection drawn(to.Get(), made.Get());
  SetStretchBltMode(to.Get(), HALFTONE);
  SetBrushOrgEx(to.Get(), 0, 0, nullptr);
  StretchBlt(to.Get(), 0, 0, wanted.cx, wanted.cy, from.Get(), 0, 0, size.cx, size.cy, SRCCOPY);
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
