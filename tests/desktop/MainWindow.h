// What tests of the program's own windows share: a small tree to list, the main window and the common dialogs.
#pragma once

#include "desktop/Desktop.h"
#include "res/Controls.h"

namespace folivant::desktop {

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
    constexpr int kTypes = 1136, kComboName = 1148, kEditName = 1001;
    ASSERT_TRUE(WaitUntil([&] { return dialog.Control(kComboName) || dialog.Control(kEditName); }));
    if (type >= 0) {
      dialog.Choose(kTypes, type);
    }
    if (!name.empty()) {
      dialog.SetText(dialog.Control(kComboName) ? kComboName : kEditName, name);
    }
    PostMessageW(dialog.Handle(), WM_COMMAND, IDOK, 0);
  }

  Scratch scratch;
};

}  // namespace folivant::desktop
