// One listing run: what it is made with, who watches it, and what it learns on its way. The walk and the writer get it;
// nobody below start-up and the main window knows where its records live.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "base/GeneralSettings.h"
#include "scan/FilterSettings.h"
#include "scan/ListingFormat.h"
#include "scan/NamePatterns.h"
#include "scan/NameRules.h"
#include "scan/Progress.h"
#include "ui/Messages.h"

namespace folivant {

struct RunTotals {
  Currency TotalSize;
  std::int32_t TotalFiles = 0;
  std::int32_t TotalDirs = 0;
};

/// Made anew for every run. The records outlive it.
struct ListingRun {
  const Messages& Texts;
  const GeneralSettings& General;
  const PrinterSettings& Printer;
  const FilterSettings& Filter;
  const ListingFormat& Format;
  const LongPath& Start;           ///< the directory that is listed; in style 6 the file that names the paths
  const std::wstring& OutputFile;  ///< the file that is written, as a full path; of no meaning for the printer
  /// Such as "yyyy/mm/dd". Kept by the caller between runs: a "DateFormat" without a meaning leaves it as it was.
  std::wstring& DatePattern;
  Progress& Watcher;
  /// Where the writers of text put the listing instead of into the file, as UTF-16 with the same lines; null for a run
  /// to the file.
  std::wstring* OutputText = nullptr;

  // Prepared at the start of the run.
  NamePatterns Patterns = {};    ///< of Filter.FilterName
  std::int64_t LocalOffset = 0;  ///< of platform/Clock.h: all times of a run shift alike

  // Learned on the way.
  RunTotals Totals = {};
  bool Cancelled = false;
  std::vector<UnreadPath> Unread = {};  ///< in the order in which they were tried; most listings are silent about them

  void AddUnread(std::wstring_view path, const SystemReason& reason) {
    Unread.push_back({std::wstring(path), reason});
    Watcher.TellUnread(Unread.back());
  }
  /// Whether the user has cancelled the run. Asked only at the points where a run may stop.
  bool IsCancelled() {
    Cancelled = Cancelled || Watcher.Cancelled();
    return Cancelled;
  }
};

}  // namespace folivant
