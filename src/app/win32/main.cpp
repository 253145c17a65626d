// The door into Folivant.exe. The system hands over the line after the program's own name as it was typed; it is not
// taken apart here, because the grammar of the switches reads it whole.
#include "app/StartUp.h"
#include "platform/win32/Win32.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int) {
  // An empty drive must not ask for a disk in a box of the system.
  SetErrorMode(GetErrorMode() | SEM_FAILCRITICALERRORS);
  return folivant::Start(commandLine);
}
