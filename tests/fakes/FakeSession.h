// The printers and the main window of the fake platform: what a test says is installed, and what a start asks for.
// Reset before each test.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace folivant::fakes {

struct FakeSession {
  std::vector<std::wstring> Printers;                       ///< the first one is the default
  bool HasDefaultPrinter = true;                            ///< whether one of them is the default at all
  int DefaultPrinterAsked = 0;                              ///< how often
  int Shown = 0;                                            ///< how often the main window was shown
  int ExitStatus = 0;                                       ///< what showing it returns
  int OutputFileAsked = 0;                                  ///< how often the save dialog was shown
  std::function<bool()> SaveDialog = [] { return false; };  ///< plays the user, who cancels unless told otherwise
};

FakeSession& Session();

}  // namespace folivant::fakes
