// The list in which the user picks the language of the program, each with its flag.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/win32/Dialog.h"
#include "platform/win32/OwnedWindows.h"

namespace folivant {

class LanguageList {
 public:
  /// `list` is a drop-down list with pictures in `dialog`, which outlives this.
  LanguageList(platform::Dialog& dialog, int list) : dialog_(dialog), list_(list) {}

  /// Takes the flags that are drawn for the screen's resolution; again when that changes.
  void ShowFlags();
  /// Adds every language of the program's folder and selects the one of the language file `current`.
  void Fill(const std::wstring& current);
  /// The language file of the selected language.
  std::optional<std::wstring> SelectedFile() const;

 private:
  platform::Dialog& dialog_;
  int list_;
  std::vector<std::wstring> files_;  ///< by the number that an item carries
  platform::OwnedImageList flags_;
};

}  // namespace folivant
