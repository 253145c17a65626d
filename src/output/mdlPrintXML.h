// The writer of XML documents: a block that tells how the listing was made, then directory and file elements. By design
// there is no declaration, and names are not escaped: one with "&" or "<" makes the document ill-formed.
#pragma once

#include <memory>

#include "scan/ListingWriter.h"

namespace folivant {

/// The writer remembers the directories that a cancelled run left open: its next run begins by closing them.
std::unique_ptr<ListingWriter> MakeXmlWriter();

}  // namespace folivant
