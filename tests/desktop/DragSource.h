// A window that files can be dragged from, with a real mouse.
#pragma once

#include <string>

#include "desktop/Desktop.h"

namespace folivant::desktop {

/// Drags a file or folder onto the middle of a window or control, and returns the effect that the target reported:
/// DROPEFFECT_COPY or another one; DROPEFFECT_NONE when nothing was dropped.
DWORD DragTo(const std::wstring& path, Window target);

}  // namespace folivant::desktop
