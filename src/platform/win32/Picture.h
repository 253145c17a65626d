// Pictures of the windows, drawn for three resolutions: the number in the resources, and the numbers 1000 and 2000
// above it for 150 and 200 percent.
#pragma once

#include "platform/win32/Owned.h"

namespace folivant::platform {

SIZE SizeOfBitmap(HBITMAP bitmap);

/// The picture for `dpi` dots per inch: drawn for it, or made smaller from the next larger drawing.
OwnedBitmap LoadPicture(int resource, int dpi);

}  // namespace folivant::platform
