// Pictures of the windows, drawn for three resolutions: the number in the resources, and the numbers 1000 and 2000
// above it for 150 and 200 percent.
#pragma once

#include "platform/win32/OwnedWindows.h"

namespace folivant::platform {

/// Its width and height in pixels; zeros without a bitmap.
SIZE SizeOfBitmap(HBITMAP bitmap);

/// The picture for `dpi` dots per inch: drawn for it, or stretched from the nearest drawing. Empty when there is none.
OwnedBitmap LoadPicture(int resource, int dpi);

}  // namespace folivant::platform
