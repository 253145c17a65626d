// The records that a listing run reads, each the test's own.
#pragma once

#include <string>

#include "scan/ListingRun.h"
#include "ui/DialogContext.h"

namespace folivant::fakes {

struct RunRecords {
  Messages Texts;
  GeneralSettings General;
  PrinterSettings Printer;
  FilterSettings Filter;
  ListingFormat Format;
  LongPath Start{L"C:\\Data", L"C:\\Data"};
  std::wstring OutputFile = L"C:\\Out\\list";
  std::wstring DatePattern = L"yyyy/mm/dd";
  std::wstring HelpFile;
  std::wstring ManualFile;
  DialogContext Context{Texts, HelpFile, ManualFile};  ///< of the dialogs that a run opens
  NoProgress Nobody;

  RunRecords() = default;
  RunRecords(const RunRecords&) = delete;  // the context names them
  RunRecords& operator=(const RunRecords&) = delete;

  /// A run of these records, which outlive it.
  ListingRun MakeRun(Progress& watcher) {
    return {.Texts = Texts,
            .General = General,
            .Printer = Printer,
            .Filter = Filter,
            .Format = Format,
            .Start = Start,
            .OutputFile = OutputFile,
            .DatePattern = DatePattern,
            .Watcher = watcher};
  }
  ListingRun MakeRun() { return MakeRun(Nobody); }
};

}  // namespace folivant::fakes
