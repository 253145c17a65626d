// The writer of plain, tab-delimited and CSV text. All three are one layout, that of a fixed-width listing; the
// delimited ones trim every field and put a separator after it, the last one of a line included.
#pragma once

#include <memory>

#include "scan/ListingWriter.h"

namespace folivant {

inline constexpr wchar_t kPlainText = L'\0';  ///< no separator: fields keep their padding
inline constexpr wchar_t kTabDelimited = L'\t';
inline constexpr wchar_t kCsv = L';';  ///< fields are never quoted, on purpose

std::unique_ptr<ListingWriter> MakeTextWriter(wchar_t separator);

}  // namespace folivant
