// Input of the file lists: the rows of an open shell Find window (style 5), or of a file that holds one path per line
// (style 6).
#pragma once

#include <string>

#include "scan/FoundRows.h"
#include "ui/DialogContext.h"

namespace folivant {

class FindCapture final : public FoundRowSource {
 public:
  /// `context` is that of the dialog in which the user picks a Find window.
  explicit FindCapture(const DialogContext& context) : context_(context) {}

  FoundRows PrintFromFind(ListingRun& run) override;
  /// The heading of the list is the title of the Find window that was listed last, on purpose; empty before the first.
  FoundRows PrintFromFileList(ListingRun& run) override;

 private:
  DialogContext context_;
  std::wstring findWindowTitle_;
};

}  // namespace folivant
