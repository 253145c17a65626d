// What a listing run asks of whoever watches it. The progress window implements it; a command-line run uses NoProgress.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/SystemReason.h"

namespace folivant {

/// A directory or file that could not be read.
struct UnreadPath {
  std::wstring Path;  ///< on disk
  SystemReason Reason;
};

class Progress {
 public:
  virtual ~Progress() = default;
  /// Called once per directory, before it is read, with its path as shown.
  virtual void ShowDirectory(std::wstring_view path) = 0;
  /// Adds a finished share, in percent points of the whole run.
  virtual void SetProgress(std::int32_t share) = 0;
  /// Called for every entry: must cost next to nothing most of the time, and may run event handlers that cancel the
  /// run.
  virtual void LetEventsThrough() = 0;
  /// Whether the user has cancelled the run. Asked only at the points where a run may stop.
  virtual bool Cancelled() const = 0;
  /// Called for each directory or file that could not be read, at once.
  virtual void TellUnread(const UnreadPath&) {}
  /// False when nobody watches, so that a wait for the user would never end.
  virtual bool CanCancel() const { return true; }
  /// False when nobody could answer a question, so that none may be asked.
  virtual bool CanAsk() const { return true; }
};

class NoProgress : public Progress {
 public:
  void ShowDirectory(std::wstring_view) override {}
  void SetProgress(std::int32_t) override {}
  void LetEventsThrough() override {}
  bool Cancelled() const override { return false; }
  bool CanCancel() const override { return false; }
};

}  // namespace folivant
