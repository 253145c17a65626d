// What surrounds a run of "/g": its log, and the rule that it never waits for somebody who is not there.
#pragma once

#include <optional>
#include <string>

#include "app/CommandLine.h"
#include "app/RunLog.h"
#include "platform/MessageBox.h"
#include "scan/Progress.h"

namespace folivant {

/// While it lives, messages go to the log and, where nothing may be shown, to standard error. Without "/g" it does
/// nothing.
class UnattendedRun final : public Progress {
 public:
  explicit UnattendedRun(const CommandLine& command);

  /// Throws RuntimeError (CreateFile).
  void OpenLog(const std::wstring& commandLine);
  /// Null when none is kept.
  RunLog* Log() { return log_ ? &*log_ : nullptr; }

  // Progress
  void ShowDirectory(std::wstring_view) override {}
  void SetProgress(std::int32_t) override {}
  void LetEventsThrough() override {}
  void TellUnread(const UnreadPath& unread) override;
  bool Cancelled() const override { return false; }
  bool CanCancel() const override { return false; }
  /// Not with "/q", and not where no window could be seen.
  bool CanAsk() const override;

 private:
  void Tell(const std::wstring& message);

  const CommandLine& command_;
  std::optional<RunLog> log_;
  platform::MessageRoute route_;
};

}  // namespace folivant
