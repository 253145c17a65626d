// The one place where a RuntimeError becomes the sentence that the user reads.
#pragma once

#include <exception>
#include <string>

#include "platform/RuntimeError.h"
#include "ui/Messages.h"

namespace folivant {

/// Cannot write "D:\list.txt": The disk is full. (112)
std::wstring ErrorText(const RuntimeError& error, const Messages& texts);
/// Shows it in a message box, unless the user ended the action. Of another exception, such as memory that has run out,
/// its own words are all there is.
void ShowError(const std::exception& error, const Messages& texts);

}  // namespace folivant
