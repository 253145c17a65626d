// Private-profile (INI) text: reading and editing with the semantics of the Windows profile functions, without a system
// call. Whole files go through it, because one profile call per key costs more than a whole language file.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace folivant::platform {

/// Section and key names ignore letter case; the first section and the first key of a name count. Blanks around names
/// and values are dropped, then one pair of equal quotes around a value. Lines that begin with ";" and lines without
/// "=" are kept but never read. Editing keeps every other line as it is.
class ProfileText {
 public:
  ProfileText() = default;
  /// The content of a file: UTF-16 little-endian when it begins with FF FE, otherwise the ANSI code page.
  explicit ProfileText(std::string_view bytes);

  bool HasSection(const std::wstring& section) const;
  std::optional<std::wstring> Read(const std::wstring& section, const std::wstring& key) const;
  /// Replaces the value, or adds the key at the end of its section, or the section at the end of the text. A value that
  /// reading would strip (outer blanks or quotes) is put in quotes; it ends at its first line break.
  void Write(const std::wstring& section, const std::wstring& key, std::wstring value);

  /// The text as a file's bytes. Stays ANSI unless the text was UTF-16 or holds what the code page lacks.
  std::string Bytes() const;

 private:
  using Name = std::pair<std::wstring, std::wstring>;  ///< section and key in lower case; an empty key is the section

  void Parse(std::wstring_view text);
  void Index();

  std::vector<std::wstring> lines_;  ///< without line ends
  std::map<Name, std::size_t> index_;
  bool utf16_ = false;
};

}  // namespace folivant::platform
