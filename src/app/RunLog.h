// The log of a run from the command line: what was asked for, what went wrong and how it ended, for those who look at
// it the next morning. UTF-8; a line is a time in UTC, an event and its values, separated by tabs. Events and the names
// of values are the same in every language; a log without the event "end" is that of a run that was killed.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/LogFile.h"
#include "scan/ListingRun.h"

namespace folivant {

class RunLog {
 public:
  /// `argument` is what the command line gives: a file, which is continued where "+" stands before it. Throws
  /// RuntimeError (CreateFile).
  explicit RunLog(std::wstring_view argument);

  // Each throws RuntimeError (WriteFile): a log that cannot be written is no log.
  void Begin(const std::wstring& commandLine);
  void TellListing(const ListingRun& run);
  void TellUnread(const UnreadPath& unread);
  void TellMessage(const std::wstring& text);
  void TellCounts(const ListingRun& run);
  void TellOutputFile(const std::wstring& path);
  void TellPrinter(const std::wstring& name);
  void End(int status);

 private:
  void Write(std::wstring_view event, std::initializer_list<std::wstring> values);

  platform::LogFile file_;
};

}  // namespace folivant
