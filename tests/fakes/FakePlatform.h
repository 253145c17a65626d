// The third body of the platform seam: everything in memory, set by the test and the same on every machine. A listener
// resets it, and the run-wide records of mdlVars, before each test; a test needs no fixture for that.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "fakes/FakeTree.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Locale.h"
#include "platform/MessageBox.h"

namespace folivant::fakes {

/// A failure to inject: the system's number and words.
struct FakeFailure {
  std::uint32_t Code = 0;
  std::wstring Text;
};
FakeFailure AccessDenied();  ///< 5
FakeFailure DiskFull();      ///< 112

/// A message box that was shown.
struct ShownMessage {
  std::wstring Text;
  platform::BoxIcon Icon = platform::BoxIcon::Exclamation;
  platform::BoxButtons Buttons = platform::BoxButtons::Ok;
  platform::BoxDefault Preset = platform::BoxDefault::First;
};

struct FakePlatform {
  FakeTree Tree;

  // Clock
  platform::CalendarTime Now{2001, 2, 3, 4, 5, 6};
  std::int64_t LocalOffsetMinutes = 0;  ///< local time minus UTC
  std::uint32_t TimerMilliseconds = 0;
  platform::TimerPeriods TimerPeriods{1, 65535};

  // Folders and volumes
  std::wstring CurrentDirectory = L"C:\\Work";
  std::wstring TemporaryDirectory = L"C:\\Temp\\";
  std::wstring ProgramFolder = L"C:\\Program Files\\Folivant";
  std::optional<std::wstring> SendToFolder;
  std::map<std::wstring, std::wstring> Labels;            ///< by root: "C:\"
  std::map<std::wstring, platform::DiskSpace> FreeSpace;  ///< by root, network paths whole; else unknown

  // How often the walk asked for what costs time
  int IdentitiesAsked = 0;
  int ShortNamesAsked = 0;  ///< enumerations

  // Stores: section and key to value
  std::map<std::pair<std::wstring, std::wstring>, std::wstring> Store;
  std::optional<FakeFailure> FailStoreWrites;
  std::function<void()> OnStoreRead = [] {};  ///< called before each value is read; what it throws comes out of it

  // Files: failures by full path, as it is given to the call
  std::map<std::wstring, FakeFailure> FailReads;
  std::map<std::wstring, FakeFailure> FailReplaces;  ///< ReplaceFile leaves the old content
  std::map<std::wstring, FakeFailure> FailCreates;   ///< OutputFile::Open and TruncateFile
  std::map<std::wstring, FakeFailure> FailCloses;    ///< OutputFile::Close
  std::optional<std::uint64_t> DiskFullAfter;        ///< bytes that OutputFile::Write may write from now on
  int OpenOutputFiles = 0;                           ///< output files open at this moment

  // Message boxes: an answer is taken from Answers for each box, in order; when there is none, Ok, No or Cancel.
  std::vector<ShownMessage> Messages;
  std::deque<platform::BoxAnswer> Answers;
  bool CanShowWindows = true;               ///< false: neither box nor dialog
  std::vector<std::wstring> StandardError;  ///< its lines
  std::array<wchar_t, 40> LastMessage{};    ///< the beginning of the last one, kept without memory of its own

  std::optional<std::wstring> Clipboard;     ///< nothing while no text has been put there
  std::optional<FakeFailure> FailClipboard;  ///< another program holds it

  platform::UserLocale Locale{L",", L".", L"/"};

  void Reset();
  /// The bytes of the file at `path`; fails the test when it is not there.
  std::string Content(std::wstring_view path);
};

FakePlatform& Fake();
inline FakeTree& Tree() {
  return Fake().Tree;
}

}  // namespace folivant::fakes
