// What the controls of the format dialog mean.
#pragma once

#include <optional>

#include "res/Controls.h"
#include "scan/ListingFormat.h"
#include "ui/Binding.h"

namespace folivant {

/// The option buttons of the styles. The last one is also what a style without a button is read as.
inline constexpr Binding<ListingFormat> kStyleControls[] = {
    {optNoSub, TextId::NoSubdirectories, Chooses<&ListingFormat::ListingStyle, ListingStyle::NoSubdirectories>},
    {optSub, TextId::IncludeSubdirectories, Chooses<&ListingFormat::ListingStyle, ListingStyle::IncludeSubdirectories>},
    {optSubTree, TextId::TreeStyle, Chooses<&ListingFormat::ListingStyle, ListingStyle::TreeStyle>},
    {optTree, TextId::DirectoryView, Chooses<&ListingFormat::ListingStyle, ListingStyle::DirectoryView>},
    {optFind, TextId::FindWindowStyle, Chooses<&ListingFormat::ListingStyle, ListingStyle::FindWindow>},
    {optFull, TextId::FullPathList, Chooses<&ListingFormat::ListingStyle, ListingStyle::FullPathList>},
};
inline constexpr Binding<NoRecord> kFormatControls[] = {
    {kWindow, TextId::FormatTitle}, {fraStyle, TextId::Style}, {Command1, TextId::Columns}, {cmdOK, TextId::Ok},
    {cmdCancel, TextId::Cancel},    {cmdHelp, TextId::Help},
};

/// The number of the picture of a style; nothing for one that has no button.
inline std::optional<int> PreviewPictureOf(ListingStyle style) {
  const int code = static_cast<int>(style);
  const bool hasOne = code >= 0 && code <= static_cast<int>(ListingStyle::FindWindow);
  return hasOne ? std::optional(picStyles + code) : std::nullopt;
}

}  // namespace folivant
