#include "platform/MessageBox.h"

#include <cstdio>

#include "platform/Utf8.h"

namespace folivant::platform {

std::optional<BoxAnswer> ShowBox(const std::wstring&, BoxIcon, BoxButtons, BoxDefault) {
  return std::nullopt;
}

bool CanShowWindows() {
  return false;
}

void WriteStandardError(std::wstring_view text) {
  std::fprintf(stderr, "%s\n", ToUtf8(text).c_str());
}

}  // namespace folivant::platform
