// Whether every field of a window has a label. Screen readers name a field after the label right before it.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "desktop/Desktop.h"

namespace folivant::desktop {

inline bool IsField(Window control) {
  constexpr std::array<std::wstring_view, 5> kFields = {L"Edit", L"ComboBox", L"ComboBoxEx32", L"ListBox",
                                                        L"SysDateTimePick32"};
  return std::find(kFields.begin(), kFields.end(), control.ClassName()) != kFields.end();
}

/// Looks at pages too; returns the number of fields.
inline int ExpectEveryFieldLabelled(Window window) {
  int fields = 0;
  for (HWND each = GetWindow(window.Handle(), GW_CHILD); each != nullptr; each = GetWindow(each, GW_HWNDNEXT)) {
    if (Window(each).ClassName() == L"#32770") {
      fields += ExpectEveryFieldLabelled(Window(each));
    } else if (IsField(Window(each))) {
      const Window label(GetWindow(each, GW_HWNDPREV));
      EXPECT_TRUE(label.ClassName() == L"Static" && !label.Text().empty())
          << "control " << GetDlgCtrlID(each) << " of " << testing::PrintToString(window.Text());
      ++fields;
    }
  }
  return fields;
}

}  // namespace folivant::desktop
