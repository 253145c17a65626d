// JSON Lines files: UTF-8 without a mark, one object on a line: what is listed, each entry, and what came of it.
#pragma once

#include <memory>

#include "scan/ListingWriter.h"

namespace folivant {

std::unique_ptr<ListingWriter> MakeJsonWriter();

}  // namespace folivant
