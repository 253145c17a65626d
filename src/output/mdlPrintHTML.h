// The writer of HTML pages: headings and tables, with a link from a subdirectory's row to its own table when
// subdirectories are included. The missing end tags, the rows behind a table's end and the unescaped names are by
// design.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "scan/ListingWriter.h"

namespace folivant {

/// Appends the link target of `name` in `directory`, or of the directory itself for an empty name: the path with
/// trailing backslash, in lower case, with "\", ":", "'", "#" and blanks encoded. The code of the apostrophe is not the
/// usual one; it only has to be the same at both ends of a link.
void AppendAnchor(std::wstring_view directory, std::wstring_view name, std::wstring& out);

std::unique_ptr<ListingWriter> MakeHtmlWriter();

}  // namespace folivant
