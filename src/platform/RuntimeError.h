// The exception with which the program reports a failure. It is thrown where the failure is seen and caught at the edge
// of an event handler or of a command-line run, where ErrorText (ui/ErrorText.h) turns it into the sentence that the
// user reads. Exceptions of libraries have no such sentence: their words are for developers.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace folivant {

/// What could not be done. ErrorText has one language text for each.
enum class FailedAction {
  CreateFile,
  ReadFile,
  WriteFile,
  WriteSetting,
  Print,
  StartProgram,
  ReadWindow,     ///< the list of another program's window
  UseMargins,     ///< they leave no room on a page
  UseFont,        ///< no line in it stands on a page
  OpenWindow,     ///< one of the program's own; it has no object
  UseClipboard,   ///< it has no object
  ListPaths,      ///< a file whose lines hold no path
  ReadLargeFile,  ///< a file beyond what is read whole; the limit in megabytes stands in for the system's words
};

class RuntimeError : public std::exception {
 public:
  /// `object` is the full file name, setting, printer or window that the action was tried on; `systemText` and
  /// `systemCode` are the operating system's own words and number, empty and 0 when the system was not involved.
  RuntimeError(FailedAction action, std::wstring object, std::wstring systemText, std::uint32_t systemCode)
      : action_(action), object_(std::move(object)), systemText_(std::move(systemText)), systemCode_(systemCode) {}

  const char* what() const noexcept override { return "folivant::RuntimeError"; }
  FailedAction Action() const { return action_; }
  const std::wstring& Object() const { return object_; }
  const std::wstring& SystemText() const { return systemText_; }
  std::uint32_t SystemCode() const { return systemCode_; }
  /// Whether the user broke it off in a window of the system's own, such as the one in which a PDF printer asks for a
  /// file name or that in which a program asks for an administrator: nobody needs to be told.
  bool EndedByUser() const {
    constexpr std::uint32_t kCancelled = 1223;
    constexpr std::uint32_t kPrintCancelled = 63;
    const bool asks = action_ == FailedAction::Print || action_ == FailedAction::StartProgram;
    return asks && (systemCode_ == kCancelled || systemCode_ == kPrintCancelled);
  }

 private:
  FailedAction action_;
  std::wstring object_;
  std::wstring systemText_;
  std::uint32_t systemCode_;
};

}  // namespace folivant
