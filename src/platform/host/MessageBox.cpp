#include "platform/MessageBox.h"

#include <cstdio>

#include "platform/Utf8.h"

namespace folivant::platform {

BoxAnswer ShowMessage(const std::wstring& text, BoxIcon, BoxButtons buttons, BoxDefault) {
  std::fprintf(stderr, "%s\n", ToUtf8(text).c_str());
  switch (buttons) {
    case BoxButtons::Ok:
      return BoxAnswer::Ok;
    case BoxButtons::YesNo:
      return BoxAnswer::No;
    case BoxButtons::YesNoCancel:
      break;
  }
  return BoxAnswer::Cancel;
}

}  // namespace folivant::platform
