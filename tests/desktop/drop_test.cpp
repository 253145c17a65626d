// Things dragged from outside onto the directory line.
#include <oleidl.h>

#include "desktop/DragSource.h"
#include "desktop/MainWindow.h"

namespace folivant::desktop {
namespace {

using Drop = MainWindowTest;

TEST_F(Drop, AFolderOnTheDirectoryLineIsTaken) {
  const Program program(Argument());
  const Window main = Main(program);
  EXPECT_EQ(DragTo(Data() + L"\\Sub", main.Control(lblPath)), DWORD{DROPEFFECT_COPY});
  EXPECT_TRUE(WaitUntil([&] { return main.TextOf(lblPath).ends_with(L"\\Sub"); }));
  Close(program, main);
  EXPECT_TRUE(ReadStore(L"Settings", L"Path").value_or(L"").ends_with(L"\\Data\\Sub"));
}

TEST_F(Drop, AnythingBesideTheDirectoryLineIsRefused) {
  const Program program(Argument());
  const Window main = Main(program);
  EXPECT_EQ(DragTo(Data() + L"\\Sub", main.Control(fraTo)), DWORD{DROPEFFECT_NONE});
  EXPECT_TRUE(main.TextOf(lblPath).ends_with(L"\\Data"));
  Close(program, main);
}

}  // namespace
}  // namespace folivant::desktop
