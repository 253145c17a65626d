// The native build has no printer.
#include "platform/PageSurface.h"

#include <cerrno>

#include "platform/host/Host.h"

namespace folivant::platform {
namespace {

[[noreturn]] void NoPrinter(const PrintJob& job) {
  errno = ENODEV;
  throw SystemError(FailedAction::Print, job.PrinterName);
}

}  // namespace

std::unique_ptr<PageSurface> OpenPageSurface(const PrintJob& job) {
  NoPrinter(job);
}

PageArea PageAreaOf(const PrintJob& job) {
  NoPrinter(job);
}

}  // namespace folivant::platform
