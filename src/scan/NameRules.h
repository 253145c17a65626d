// How names and paths are spelled in listings.
#pragma once

#include <string>
#include <string_view>

namespace folivant {

/// A name all in capitals or all in small letters becomes "Capital followed by small letters", cut to 256 characters; a
/// mixed-case name is returned as it is.
std::wstring ProperName(std::wstring_view name);
/// The same for a name without NULs into a buffer of at least its length; returns how many characters were written.
std::size_t ProperNameInto(std::wstring_view name, wchar_t* out);

/// A path in its two spellings.
struct LongPath {
  std::wstring Shown;   ///< components re-cased by ProperName, drive letter in capitals
  std::wstring OnDisk;  ///< components as the file system spells them
};
/// `path` with each component replaced by its long name as stored on disk; both spellings are empty when the path is
/// neither "X:\..." nor "\\server\share..." or when a component does not exist. Server and share are not looked up. "."
/// and ".." are resolved, so that a script may say where its data lies beside itself. "/" separates like "\".
LongPath GetLongPath(std::wstring_view path);

/// Measures text in the unit of a window or page.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  virtual double WidthOf(std::wstring_view text) const = 0;
};
/// `path` shortened in its leading part with "..." until it is narrower than `width`, or "..." and the last component
/// when nothing else is left.
std::wstring FitPathToWidth(std::wstring_view path, double width, const TextMeasure& form);

}  // namespace folivant
