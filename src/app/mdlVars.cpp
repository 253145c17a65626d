#include "app/mdlVars.h"

namespace folivant::mdlVars {

GeneralSettings General;
PrinterSettings Printer;
FilterSettings Filter;
ListingFormat Format;
OutputTarget OutputTo = OutputTarget::Printer;
ScanTree Tree;

folivant::OutputKind OutputKind = folivant::OutputKind::Text;
std::wstring OutputFile;
std::wstring DatePattern;
std::int16_t PageNumber = 0;

std::wstring FilterFile;
bool UseFilterFile = false;

Messages Texts;
std::wstring HelpFile;
std::wstring ManualFile;

ListingRun& Run() {
  static ListingRun run{Texts, General, Printer, Filter, Format, Tree, OutputKind, OutputFile, DatePattern, PageNumber};
  return run;
}

}  // namespace folivant::mdlVars
