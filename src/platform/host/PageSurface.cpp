// The host build has no printer.
#include "platform/PageSurface.h"

#include <cerrno>

#include "platform/host/Host.h"

namespace folivant::platform {

std::unique_ptr<PageSurface> OpenPageSurface(const PrintJob& job) {
  errno = ENODEV;
  throw SystemError(FailedAction::Print, job.PrinterName);
}

}  // namespace folivant::platform
