// The run-wide records, one instance each for the whole process. Start-up, the main window and the settings alone use
// this header; everybody else is handed what they need.
#pragma once

#include <string>

#include "base/GeneralSettings.h"
#include "output/OutputKind.h"
#include "scan/FilterSettings.h"
#include "scan/ListingFormat.h"
#include "scan/ListingRun.h"
#include "scan/NameRules.h"
#include "ui/DialogContext.h"
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

/// Of every dialog.
DialogContext MakeDialogContext();
/// A run of what these records say now, watched by `watcher`.
ListingRun MakeRun(Progress& watcher);

}  // namespace folivant::mdlVars
