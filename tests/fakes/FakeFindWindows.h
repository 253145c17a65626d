// Other programs' windows in memory, and a user who answers the dialog in which a Find window is chosen. Emptied before
// each test. A list view reads its requests from bytes, as a real one does, and counts every call that crosses into it.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "fakes/FakePlatform.h"
#include "platform/FindWindows.h"
#include "shell/FindChoice.h"

namespace folivant::fakes {

struct FakeWindow {
  platform::WindowHandle Handle = 0;
  std::wstring Class;
  std::uint32_t Style = 0;
  std::wstring Title;
  std::vector<FakeWindow> Children;

  // A list view and the program that owns it
  platform::RecordLayout Layout = platform::RecordLayout::Bits64;
  std::vector<std::vector<std::string>> Rows = {};  ///< five ANSI texts each
  std::optional<FakeFailure> Refuses = {};          ///< the owner may not be opened
  std::optional<int> DiesAtCall = {};               ///< the call, from 1, that finds the owner gone
  std::optional<std::int64_t> ClaimedRows = {};     ///< what it answers in place of the number of its rows
  std::optional<std::int32_t> SilentFrom = {};      ///< the row, from 0, from which on it gives no text
};

/// A mapping as other programs see it.
struct FakeMapping {
  std::wstring File;
  std::vector<std::byte> Bytes;
  bool Closed = false;
};

struct FakeFindWindows {
  std::vector<FakeWindow> TopLevel;  ///< topmost first
  std::map<std::wstring, FakeMapping> Mappings;
  int Calls = 0;            ///< Write, Read and Send together
  int GetItemMessages = 0;  ///< requests for a cell
  int Blocks = 0;           ///< of memory reserved in owners

  // The dialog
  int DialogsShown = 0;
  int DialogsOpen = 0;
  /// What the user does, one thing each time that events are let through.
  std::deque<std::function<void(FindChoice&)>> User;
  int EventRounds = 0;

  FakeWindow* Find(platform::WindowHandle handle);
};

FakeFindWindows& FindWindows();

/// A Find window with the given rows; its handle is `handle`, those of the two windows inside follow it.
FakeWindow FindWindow(platform::WindowHandle handle, std::wstring title, std::vector<std::vector<std::string>> rows);

}  // namespace folivant::fakes
