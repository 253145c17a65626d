// All that a writer may read of the run that it writes. The records belong to mdlVars (or to a test) and outlive it.
#pragma once

#include <cstdint>
#include <string>

#include "base/GeneralSettings.h"
#include "output/OutputKind.h"
#include "scan/FilterSettings.h"
#include "scan/ListingFormat.h"
#include "scan/Progress.h"
#include "scan/ScanTree.h"
#include "ui/Messages.h"

namespace folivant {

struct ListingRun {
  const Messages& Texts;
  const GeneralSettings& General;
  const PrinterSettings& Printer;
  const FilterSettings& Filter;
  const ListingFormat& Format;
  const ScanTree& Tree;
  const folivant::OutputKind& OutputKind;
  const std::wstring& OutputFile;
  const std::wstring& DatePattern;  ///< the run's date pattern, such as "yyyy/mm/dd"
  std::int16_t& PageNumber;         ///< advanced by the page writer alone; 0 in the file writers
  Progress* Watcher =
      nullptr;  ///< during a run, for a writer that takes long over one event and may be cancelled in it
};

}  // namespace folivant
