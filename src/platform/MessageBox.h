// Questions and messages to the user. A command-line run shows nothing else.
#pragma once

#include <string>

namespace folivant::platform {

enum class BoxIcon { Exclamation, Question, Information };
enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class BoxAnswer { Ok, Yes, No, Cancel };
enum class BoxDefault { First, Second };

/// A modal message box titled "Folivant", owned by the thread's active window if there is one. The host build writes
/// the text to standard error and answers Ok, No or Cancel: the choice that changes nothing.
BoxAnswer ShowMessage(const std::wstring& text, BoxIcon icon, BoxButtons buttons,
                      BoxDefault preset = BoxDefault::First);

}  // namespace folivant::platform
