// The program from its command line to its exit status.
#pragma once

#include <string>

namespace folivant {

/// Exit statuses that scripts can rely on.
enum ExitStatus : int {
  kExitDone = 0,
  kExitFailed = 1,  ///< a command-line problem, or a run that failed
  kExitUnreadable =
      2,               ///< the run is complete but some directory could not be read, or some file that was to be hashed
  kExitElsewhere = 3,  ///< the run is complete, but not of the directory that "/d" named
};

/// `commandLine` is everything after the program's own name, as one text.
int Start(const std::wstring& commandLine);

}  // namespace folivant
