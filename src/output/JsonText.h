// Text as JSON: what stands between the quotes of a string. It can always be read back exactly.
#pragma once

#include <string>
#include <string_view>

namespace folivant {

/// `text` in quotes, as UTF-8. Quotes, backslashes, control characters and unpaired halves of surrogate pairs are
/// escaped; everything else stands as it is.
void AppendJsonString(std::wstring_view text, std::string& out);

}  // namespace folivant
