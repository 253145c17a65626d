// Lists of SHA-256 sums: UTF-8 without a mark, "HASH  path" for every file, as sha256sum checks them.
#pragma once

#include <memory>

#include "scan/ListingWriter.h"

namespace folivant {

std::unique_ptr<ListingWriter> MakeSha256Writer();

}  // namespace folivant
