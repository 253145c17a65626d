// The command line as a record and the grammar that fills it. Applying it is StartUp's work.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "output/OutputKind.h"

namespace folivant {

/// Trims; if the text holds a double quote anywhere, removes one leading and one trailing quote and trims again.
std::wstring StripQuotes(const std::wstring& text);
/// The argument of the switch at the one-based `position`: everything after its two characters up to the next "/",
/// unquoted.
std::wstring GetSwitchArgument(const std::wstring& line, std::int32_t position);

/// Switches are small letters, found by their first occurrence anywhere in the line, in any order. An argument cannot
/// hold a "/".
struct CommandLine {
  bool HasSwitches = false;                ///< the line holds a "/"; otherwise it is one path, or empty
  std::wstring Path;                       ///< the whole line without its quotes; only without switches
  std::optional<std::wstring> FilterFile;  ///< "/f"
  std::optional<std::wstring> Directory;   ///< "/d"
  std::optional<wchar_t> OutputLetter;     ///< "/t": the third character after the slash, 0 where the line ends before
  std::optional<std::wstring> KindWord;    ///< "/k"
  std::optional<std::wstring> OutputFile;  ///< "/o"
  std::optional<std::wstring> LogFile;     ///< "/l", with the "+" in front that continues a log
  bool Go = false;                         ///< "/g"
  bool Quiet = false;                      ///< "/q"
};
CommandLine ReadCommandLine(const std::wstring& line);

/// `fileName` with the extension of its kind on a command line (output/OutputKinds.h) where it holds no dot anywhere.
std::wstring WithSwitchExtension(const std::wstring& fileName, OutputKind kind);

}  // namespace folivant
