// What windows ask of the shell and of the system's common dialogs. For frm*.cpp files.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/win32/OwnedWindows.h"

namespace folivant::platform {

/// The folder browser, opened on `start`; nothing when the user cancels. Only file-system folders can be chosen.
std::optional<std::wstring> BrowseForFolder(HWND owner, const std::wstring& title, const std::wstring& start);

/// A save or open dialog. `Types` is "Text|*.txt|All files|*.*".
struct FileDialog {
  std::wstring Types;
  std::wstring FileName;  ///< preset on the way in, chosen full path on the way out
  int TypeIndex = 1;      ///< one-based, likewise
  std::wstring Folder;    ///< where it opens; empty lets the system choose
  std::wstring DefaultExtension;
  bool AskBeforeOverwriting = false;
};
/// False when the user cancels; `dialog` is unchanged then.
bool AskForSaveName(HWND owner, FileDialog& dialog);
/// The chosen file exists.
bool AskForOpenName(HWND owner, FileDialog& dialog);

struct FontChoice {
  std::wstring Name;
  int Points = 0;
};
/// False when the user cancels; `font` is unchanged then.
bool AskForFont(HWND owner, FontChoice& font);

/// Opens the help file at its contents and index.
void OpenHelpFile(HWND owner, const std::wstring& file);
/// Opens a document with the program that the user has for it. Throws RuntimeError (StartProgram).
void OpenDocument(HWND owner, const std::wstring& file);
/// Starts a program with one file as its parameter. Throws RuntimeError (StartProgram).
void OpenInProgram(HWND owner, const std::wstring& program, const std::wstring& file);

/// Receives what is dropped on a window, for as long as it lives.
class DropTarget {
 public:
  /// `dropped` gets the first file-system item of each drop; its errors end the drop silently. The source learns that
  /// the item was copied. Nothing is accepted while the top-level window takes no orders.
  DropTarget(HWND window, std::function<void(const std::wstring& path)> dropped);
  ~DropTarget();
  DropTarget(const DropTarget&) = delete;
  DropTarget& operator=(const DropTarget&) = delete;

 private:
  class Target;
  OwnedInterface<Target> target_;
  OwnedDropWindow window_;  ///< closed first
};

}  // namespace folivant::platform
