// Private-profile (INI) text: reading and editing with the semantics of the Windows profile functions, without a system
// call. Whole files go through it, because one profile call per key costs more than a whole language file.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/TextEncoding.h"

namespace folivant::platform {

/// Section and key names ignore letter case; the first section and the first key of a name count. Blanks around names
/// and values are dropped, then one pair of equal quotes around a value. Lines that begin with ";" and lines without
/// "=" are kept but never read. Editing keeps every other line as it is.
class ProfileText {
 public:
  ProfileText() = default;
  /// The content of a file, in any encoding of TextEncoding.h.
  explicit ProfileText(std::string_view bytes);

  bool HasSection(const std::wstring& section) const;
  std::optional<std::wstring> Read(const std::wstring& section, const std::wstring& key) const;
  /// Replaces the value, or adds the key at the end of its section, or the section at the end of the text. A value that
  /// reading would strip (outer blanks or quotes) is put in quotes; it ends at its first line break.
  void Write(const std::wstring& section, const std::wstring& key, std::wstring value);

  /// Takes the key out, if it is there, with its line.
  void Remove(const std::wstring& section, const std::wstring& key);

  /// The text as a file's bytes, in the encoding that the file had; a new one is ANSI. What that cannot hold makes it
  /// UTF-16 with its mark, which the system's own profile functions read, too.
  std::string Bytes() const;

 private:
  using Name = std::pair<std::wstring, std::wstring>;  ///< section and key in lower case; an empty key is the section

  void Parse(std::wstring_view text);
  void Index();

  std::vector<std::wstring> lines_;  ///< without line ends
  std::map<Name, std::size_t> index_;
  TextEncoding encoding_ = TextEncoding::Ansi;
};

}  // namespace folivant::platform
