#include "app/UnattendedRun.h"

#include <exception>

namespace folivant {

UnattendedRun::UnattendedRun(const CommandLine& command)
    : command_(command), route_([this](const std::wstring& message) { Tell(message); }, [this] { return CanAsk(); }) {}

void UnattendedRun::OpenLog(const std::wstring& commandLine) {
  if (command_.Go && command_.LogFile) {
    log_.emplace(*command_.LogFile);
    log_->Begin(commandLine);
  }
}

void UnattendedRun::TellUnread(const UnreadPath& unread) {
  if (log_) {
    log_->TellUnread(unread);
  }
}

bool UnattendedRun::CanAsk() const {
  return !command_.Go || (!command_.Quiet && platform::CanShowWindows());
}

void UnattendedRun::Tell(const std::wstring& message) {
  if (log_) {
    try {
      log_->TellMessage(message);
    } catch (const std::exception&) {
      // It may be the message that the log cannot be written.
    }
  }
}

}  // namespace folivant
