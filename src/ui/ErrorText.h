// The one place where an exception becomes the sentence that the user reads.
#pragma once

#include <exception>
#include <string>

#include "platform/RuntimeError.h"
#include "ui/Messages.h"

namespace folivant {

/// Cannot write "D:\list.txt": The disk is full. (112)
std::wstring ErrorText(const RuntimeError& error, const Messages& texts);
/// Shows it in a message box, unless the user ended the action. Memory that has run out has a text of its own, for
/// which nothing is allocated here; every other exception is a mistake of the program and has one text, because the
/// words of a library say nothing to a user.
void ShowError(const std::exception& error, const Messages& texts);

}  // namespace folivant
