#include "scan/FormatChoice.h"

#include "res/Controls.h"

namespace folivant {

ListingStyle StyleOf(const StyleButtons& buttons) {
  return buttons.NoSub     ? ListingStyle::NoSubdirectories
         : buttons.Sub     ? ListingStyle::IncludeSubdirectories
         : buttons.SubTree ? ListingStyle::TreeStyle
         : buttons.Tree    ? ListingStyle::DirectoryView
         : buttons.Find    ? ListingStyle::FindWindow
                           : ListingStyle::FullPathList;
}

std::optional<int> PreviewPictureOf(ListingStyle style) {
  const int code = static_cast<int>(style);
  return code >= 0 && code <= static_cast<int>(ListingStyle::FindWindow) ? std::optional(picStyles + code)
                                                                         : std::nullopt;
}

}  // namespace folivant
