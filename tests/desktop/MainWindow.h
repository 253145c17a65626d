// What tests of the program's own windows share: a small tree to list, the main window and the common dialogs.
#pragma once

#include "desktop/Desktop.h"
#include "res/Controls.h"

namespace folivant::desktop {

// Controls of the system's save and open dialogs.
inline constexpr int kFileTypes = 1136, kFileNameCombo = 1148, kFileNameEdit = 1001;

class MainWindowTest : public DesktopTest {
 protected:
  MainWindowTest() {
    scratch.File(L"Data\\A.txt", "12345");
    scratch.File(L"Data\\B.doc", "1");
    scratch.File(L"Data\\Sub\\C.txt", "123");
    WriteStore(L"Settings", L"OutputTo", L"1");
  }

  std::wstring Data() const { return scratch / L"Data"; }
  /// The argument that lists the tree.
  std::wstring Argument() const { return L'"' + Data() + L'"'; }

  /// Some folder of this machine that takes a while.
  static std::wstring LargeTree() { return Exists(L"Z:\\usr\\lib") ? L"Z:\\usr" : L"C:\\Windows"; }

  static Window Main(const Program& program) { return program.WaitForWindow(L"Folivant"); }
  /// Presses a button that opens a window of that title, and waits for it.
  static Window Open(const Program& program, Window from, int button, int title) {
    from.Press(button);
    return program.WaitForWindow(Message(title), from);
  }
  /// Closes the main window as a user does.
  static void Close(const Program& program, Window main) {
    main.Press(cmdCancel);
    EXPECT_EQ(program.WaitForExit(), 0u);
  }

  /// Types a name into a save or open dialog, chooses a type (from 0) and confirms.
  static void Confirm(Window dialog, const std::wstring& name, int type = -1) {
    ASSERT_TRUE(WaitUntil([&] { return dialog.Control(kFileNameCombo) || dialog.Control(kFileNameEdit); }));
    if (type >= 0) {
      dialog.Choose(kFileTypes, type);
    }
    if (!name.empty()) {
      dialog.SetText(dialog.Control(kFileNameCombo) ? kFileNameCombo : kFileNameEdit, name);
    }
    PostMessageW(dialog.Handle(), WM_COMMAND, IDOK, 0);
  }

  Scratch scratch;
};

}  // namespace folivant::desktop
