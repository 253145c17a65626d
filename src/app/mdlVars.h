// The run-wide records, one instance each for the whole process. Only the run driver, the command line, the settings
// and the windows use this header; the listing engine gets what it needs as parameters.
#pragma once

#include <cstdint>
#include <string>

#include "base/GeneralSettings.h"
#include "output/ListingRun.h"
#include "output/OutputKind.h"
#include "scan/FilterSettings.h"
#include "scan/ListingFormat.h"
#include "scan/ScanTree.h"
#include "ui/Messages.h"

namespace folivant::mdlVars {

extern GeneralSettings General;
extern PrinterSettings Printer;
extern FilterSettings Filter;
extern ListingFormat Format;
extern OutputTarget OutputTo;
extern ScanTree Tree;  ///< its StartPath is the current directory of the program

extern folivant::OutputKind OutputKind;
extern std::wstring OutputFile;
extern std::wstring DatePattern;
extern std::int16_t PageNumber;

extern std::wstring FilterFile;
extern bool
    UseFilterFile;  ///< redirects file-capable settings to FilterFile; raised around one complete load or save only

extern Messages Texts;
extern std::wstring HelpFile;    ///< full path
extern std::wstring ManualFile;  ///< full path of the page that stands in for it

/// The records above as writers see them.
ListingRun& Run();

}  // namespace folivant::mdlVars
