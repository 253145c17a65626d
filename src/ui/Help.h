// Where the help of a language lies.
#pragma once

#include <string>

namespace folivant {

/// What ShowHelp opens when there is no help file, as today's Windows has no viewer for one: the manual of the
/// language, "help\<language>.html" in the program's folder, or the English one. `language` is the language file's
/// name. Found once, with the texts: a language chosen later counts from the next start.
std::wstring ManualFile(const std::wstring& programFolder, const std::wstring& language);

}  // namespace folivant
