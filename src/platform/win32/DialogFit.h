// Sizes that follow the texts: which width a control's caption needs, and how a design is widened for it.
#pragma once

#include <string>

#include "platform/win32/Win32.h"

namespace folivant::platform {

/// The width of one line of `text` in the font of `window`, in pixels; "&" marks the next letter and takes no room.
int WidthOfCaption(HWND window, const std::wstring& text);
/// The same of text in which "&" is a letter like any other, such as a path.
int WidthOfPlainText(HWND window, const std::wstring& text);

/// The width that the control needs to show its caption (or, for a combo box, its longest item) on one line, in pixels;
/// 0 for controls that have none, that may wrap, or that shorten it themselves.
int NeededWidth(HWND control);

/// Widens the children of `parent` until every caption fits: room is inserted at the right edge of each one that is too
/// narrow, what spans that place grows and what lies to the right of it moves. Returns by how much the parent has to
/// grow; the parent itself is not touched.
SIZE FitChildren(HWND parent);

/// Makes one child larger and moves or grows its siblings likewise.
void GrowChild(HWND parent, HWND child, SIZE by);

}  // namespace folivant::platform
