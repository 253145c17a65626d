#include "app/mdlVars.h"

namespace folivant::mdlVars {

GeneralSettings General;
PrinterSettings Printer;
FilterSettings Filter;
ListingFormat Format;
OutputTarget OutputTo = OutputTarget::Printer;
LongPath Start;

folivant::OutputKind OutputKind = folivant::OutputKind::Text;
std::wstring OutputFile;
std::wstring DatePattern;

std::wstring FilterFile;
bool UseFilterFile = false;

Messages Texts;
std::wstring HelpFile;
std::wstring ManualFile;

DialogContext MakeDialogContext() {
  return {.Texts = Texts, .HelpFile = HelpFile, .ManualFile = ManualFile};
}

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

}  // namespace folivant::mdlVars
