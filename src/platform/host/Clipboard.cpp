// The host build has no clipboard.
#include "platform/Clipboard.h"

#include <cerrno>

#include "platform/host/Host.h"

namespace folivant::platform {

void CopyToClipboard(std::wstring_view) {
  errno = ENODEV;
  throw SystemError(FailedAction::UseClipboard, {});
}

}  // namespace folivant::platform
