// The door into folivant-host: the command line as Folivant.exe gets it, one text after the program's own name.
#include <string>

#include "app/StartUp.h"
#include "platform/Utf8.h"

int main(int count, char** arguments) {
  std::string line;
  for (int i = 1; i < count; ++i) {
    line += i > 1 ? " " : "";
    line += arguments[i];
  }
  return folivant::Start(folivant::platform::FromUtf8(line));
}
