#include "app/CopyListing.h"

#include <string>

#include "app/mdlVars.h"
#include "platform/Clipboard.h"
#include "scan/mdlScan.h"

namespace folivant {

void CopyListing(OutputDriver& output, FoundRowSource& rows, Progress& watcher) {
  std::wstring text;
  ListingRun run = mdlVars::MakeRun(watcher);
  run.OutputText = &text;
  output.Choose(OutputKind::Text);
  RunListing(run, output, rows);
  if (!run.Cancelled) {
    platform::CopyToClipboard(text);
  }
}

}  // namespace folivant
