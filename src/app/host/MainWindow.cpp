#include "app/MainWindow.h"

#include <cstdio>

#include "app/StartUp.h"

namespace folivant {

int ShowMainWindow() {
  std::fputs("folivant-host has no window: give a filter file and /g.\n", stderr);
  return kExitFailed;
}

bool AskForOutputFile() {
  std::fputs("folivant-host has no save dialog: give /o.\n", stderr);
  return false;
}

}  // namespace folivant
