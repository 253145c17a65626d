// Paths in the form that the file functions take.
#pragma once

#include <string>
#include <string_view>

namespace folivant::platform {

/// `path`, with "\\?\" in front where the file functions would cut it down otherwise: when it is about as long as
/// MAX_PATH or longer, and when a component ends in a dot or a blank. (Other systems make such names, and a listing
/// meets them.)
std::wstring LongPathForm(std::wstring_view path);

/// The same for an entry of a directory, whatever its name: one that is called like a device ("nul.txt"; other systems
/// make such names, too) is a file, and neither size nor content are those of the device.
std::wstring EntryPathForm(std::wstring_view path);

}  // namespace folivant::platform
