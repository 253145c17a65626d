// The one place where a RuntimeError becomes the sentence that the user reads.
#pragma once

#include <string>

#include "platform/RuntimeError.h"
#include "ui/Messages.h"

namespace folivant {

/// Cannot write "D:\list.txt": The disk is full. (112)
std::wstring ErrorText(const RuntimeError& error, const Messages& texts);
/// Shows it in a message box.
void ShowError(const RuntimeError& error, const Messages& texts);

}  // namespace folivant
