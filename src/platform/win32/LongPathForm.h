// Paths in the form that the file functions take.
#pragma once

#include <string>
#include <string_view>

namespace folivant::platform {

/// `path`, with "\\?\" in front where the file functions would cut it down otherwise: when it is about as long as
/// MAX_PATH or longer, and when a component ends in a dot or a blank. (Other systems make such names, and a listing
/// meets them.)
std::wstring LongPathForm(std::wstring_view path);

}  // namespace folivant::platform
