#include "fakes/FakePlatform.h"
#include "platform/Clipboard.h"
#include "platform/RuntimeError.h"

namespace folivant::platform {

void CopyToClipboard(std::wstring_view text) {
  if (const auto& failure = fakes::Fake().FailClipboard) {
    throw RuntimeError(FailedAction::UseClipboard, {}, failure->Text, failure->Code);
  }
  fakes::Fake().Clipboard = text;
}

}  // namespace folivant::platform
