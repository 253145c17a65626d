// Questions and messages to the user. A command-line run shows nothing else.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace folivant::platform {

enum class BoxIcon { Exclamation, Question, Information };
enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class BoxAnswer { Ok, Yes, No, Cancel };
enum class BoxDefault { First, Second };

/// A modal message box titled "Folivant", owned by the thread's active window if there is one. Where it must not or
/// cannot be shown the text goes to standard error, and the answer is the one that changes nothing: Ok, No or Cancel.
BoxAnswer ShowMessage(const std::wstring& text, BoxIcon icon, BoxButtons buttons,
                      BoxDefault preset = BoxDefault::First);

/// While one lives, every message is told to `listener` first, and shown only while `mayShow` allows it. One at a time.
class MessageRoute {
 public:
  MessageRoute(std::function<void(const std::wstring& text)> listener, std::function<bool()> mayShow);
  ~MessageRoute();
  MessageRoute(const MessageRoute&) = delete;
  MessageRoute& operator=(const MessageRoute&) = delete;
};

/// What ShowMessage shows; nothing when there is nowhere to show it. The host build never has anywhere.
std::optional<BoxAnswer> ShowBox(const std::wstring& text, BoxIcon icon, BoxButtons buttons, BoxDefault preset);
/// Whether a window of this process could be seen. False in a service, and in a task of a user who is not logged on: a
/// box there would wait for ever.
bool CanShowWindows();
/// A line to a console or to whatever takes the program's standard error, as UTF-8; nothing where there is neither.
void WriteStandardError(std::wstring_view text);

}  // namespace folivant::platform
