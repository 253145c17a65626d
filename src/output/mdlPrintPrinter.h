// The page writer (output kind 5): it draws a listing on the pages of a printer, with header, footer and column
// captions on every page. Columns are those of the text writer; where things stand is the page layout's matter.
#pragma once

#include <memory>

#include "scan/ListingWriter.h"

namespace folivant {

/// Its first event throws RuntimeError (Print, UseMargins, UseFont) before a job begins when nothing could be printed.
std::unique_ptr<ListingWriter> MakePrinterWriter();

}  // namespace folivant
