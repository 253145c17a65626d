// A private-profile file (filter file, language file) as one value: read once, asked often, saved in one replacement.
#pragma once

#include <cstddef>
#include <string>

#include "platform/ProfileText.h"

namespace folivant {

class ProfileFile {
 public:
  /// A file that is not there is an empty one. Throws RuntimeError (ReadFile) when it is there but cannot be read.
  explicit ProfileFile(std::wstring path);

  const std::wstring& Path() const { return path_; }
  bool HasSection(const std::wstring& section) const { return text_.HasSection(section); }
  /// At most `limit` characters of the value; `preset` when the key is not there.
  std::wstring Read(const std::wstring& section, const std::wstring& key, const std::wstring& preset,
                    std::size_t limit) const;
  // Remembered until Save.
  void Write(const std::wstring& section, const std::wstring& key, const std::wstring& value);
  void Remove(const std::wstring& section, const std::wstring& key);
  /// Replaces the file in one step; other sections, keys and comments stay. Throws RuntimeError (WriteFile), and the
  /// file then keeps its old content.
  void Save() const;

 private:
  std::wstring path_;
  platform::ProfileText text_;
};

}  // namespace folivant
