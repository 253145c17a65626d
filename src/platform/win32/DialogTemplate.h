// Dialog templates of the resources, in the font that the user has chosen for all windows.
#pragma once

#include <vector>

#include "platform/win32/Win32.h"

namespace folivant::platform {

/// A dialog template with the system's message font in place of its own, so that dialog units follow that font. Throws
/// when there is no such resource.
std::vector<DWORD> TemplateWithSystemFont(int resource);

/// The same bytes as the system takes them; valid as long as `made`.
inline const DLGTEMPLATE* AsTemplate(const std::vector<DWORD>& made) {
  return reinterpret_cast<const DLGTEMPLATE*>(made.data());
}

}  // namespace folivant::platform
