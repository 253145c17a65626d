// What the option buttons of the format dialog mean.
#pragma once

#include <optional>

#include "scan/ListingFormat.h"

namespace folivant {

struct StyleButtons {
  bool NoSub = false, Sub = false, SubTree = false, Tree = false, Find = false;
};
/// FullPathList when none of these buttons is set: its own button is not asked.
ListingStyle StyleOf(const StyleButtons& buttons);

/// The number of the picture of a style; nothing for the style that has none.
std::optional<int> PreviewPictureOf(ListingStyle style);

}  // namespace folivant
