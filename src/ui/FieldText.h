// How messages call the fields of windows. The numbers in them are base/Numbers.h.
#pragma once

#include <string>
#include <string_view>

namespace folivant {

/// A caption as the name of its field: without the mnemonic's "&" and without a colon and blanks at the end.
std::wstring FieldName(std::wstring_view caption);

}  // namespace folivant
