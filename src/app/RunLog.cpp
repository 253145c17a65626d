#include "app/RunLog.h"

#include <algorithm>

#include "base/mdlFileRoutines.h"
#include "output/EntryFormatting.h"
#include "platform/Clock.h"
#include "platform/FindFiles.h"
#include "res/Version.h"
#include "scan/FileDates.h"
#include "ui/ValueText.h"

namespace folivant {
namespace {

std::wstring PathOf(std::wstring_view argument) {
  return std::wstring(argument.substr(argument.starts_with(L'+') ? 1 : 0));
}

std::wstring TimeText(const platform::CalendarTime& time) {
  return PaddedText(time.Year, 4) + L'-' + PaddedText(time.Month, 2) + L'-' + PaddedText(time.Day, 2) + L'T' +
         PaddedText(time.Hour, 2) + L':' + PaddedText(time.Minute, 2) + L':' + PaddedText(time.Second, 2) + L'Z';
}

/// On one line and in one field, whatever a text holds.
std::wstring AsField(std::wstring text) {
  text = ReplaceAll(text, L"\r\n", L" ");
  std::replace_if(
      text.begin(), text.end(), [](wchar_t c) { return c < L' '; }, L' ');
  return text;
}

std::wstring ReasonText(const SystemReason& reason) {
  return reason.Text.empty() ? L"" : reason.Text + L" (" + std::to_wstring(reason.Code) + L")";
}

}  // namespace

RunLog::RunLog(std::wstring_view argument)
    : file_(PathOf(argument), argument.starts_with(L'+') ? platform::LogStart::Append : platform::LogStart::Anew) {}

void RunLog::Write(std::wstring_view event, std::initializer_list<std::wstring> values) {
  std::wstring line = TimeText(CalendarTimeOf(platform::UtcNow()));
  line.append(L"\t").append(event);
  for (const std::wstring& value : values) {
    line += L'\t' + AsField(value);
  }
  file_.WriteLine(line);
}

void RunLog::Begin(const std::wstring& commandLine) {
  Write(L"start", {L"Folivant " VERSION_TEXT, commandLine});
}

void RunLog::TellListing(const ListingRun& run) {
  const auto code = [](auto value) { return std::to_wstring(static_cast<int>(value)); };
  Write(L"listing", {run.Start.OnDisk, L"style=" + code(run.Format.ListingStyle), L"depth=" + code(run.Format.SubLevel),
                     L"order=" + code(run.Filter.OrderBy) + (run.Filter.OrderAZ ? L"" : L" descending"),
                     L"filter=" + FilterDescription(run.Filter, run.Texts)});
}

void RunLog::TellUnread(const UnreadPath& unread) {
  Write(L"unread", {unread.Path, ReasonText(unread.Reason)});
}

void RunLog::TellMessage(const std::wstring& text) {
  Write(L"message", {text});
}

void RunLog::TellCounts(const ListingRun& run) {
  Write(L"counts",
        {L"files=" + std::to_wstring(run.Totals.TotalFiles), L"directories=" + std::to_wstring(run.Totals.TotalDirs),
         L"bytes=" + std::to_wstring(run.Totals.TotalSize.Whole()), L"unread=" + std::to_wstring(run.Unread.size())});
}

void RunLog::TellOutputFile(const std::wstring& path) {
  const auto written = platform::FindEntry(path);
  Write(L"output", {path, L"bytes=" + std::to_wstring(written ? written->Data.Size : 0)});
}

void RunLog::TellPrinter(const std::wstring& name) {
  Write(L"output", {name, L"printer"});
}

void RunLog::End(int status) {
  Write(L"end", {L"status=" + std::to_wstring(status)});
}

}  // namespace folivant
