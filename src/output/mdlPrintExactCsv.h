// Exact CSV files: RFC 4180 in UTF-8 with its mark, one row per entry under one row of field names, and nothing else.
#pragma once

#include <memory>

#include "scan/ListingWriter.h"

namespace folivant {

std::unique_ptr<ListingWriter> MakeExactCsvWriter();

}  // namespace folivant
