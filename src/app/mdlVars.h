// The run-wide records, one instance each for the whole process. Only the run driver, the command line, the settings
// and the windows use this header; the listing engine gets what it needs as parameters.
#pragma once

#include <string>

#include "base/GeneralSettings.h"
#include "output/OutputKind.h"
#include "scan/FilterSettings.h"
#include "scan/ListingFormat.h"
#include "scan/ListingRun.h"
#include "scan/NameRules.h"
#include "ui/Messages.h"

namespace folivant::mdlVars {

extern GeneralSettings General;
extern PrinterSettings Printer;
extern FilterSettings Filter;
extern ListingFormat Format;
extern OutputTarget OutputTo;
extern LongPath Start;  ///< the directory to list; with a file as argument, the file that names the paths

extern folivant::OutputKind OutputKind;
extern std::wstring OutputFile;
extern std::wstring DatePattern;

extern std::wstring FilterFile;
extern bool
    UseFilterFile;  ///< redirects file-capable settings to FilterFile; raised around one complete load or save only

extern Messages Texts;
extern std::wstring HelpFile;    ///< full path
extern std::wstring ManualFile;  ///< full path of the page that stands in for it

/// A run of what these records say now, watched by `watcher`.
ListingRun MakeRun(Progress& watcher);

}  // namespace folivant::mdlVars
