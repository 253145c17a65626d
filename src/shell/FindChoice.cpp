#include "shell/FindChoice.h"

#include <string_view>

namespace folivant {
namespace {

// A dialog with an overlapped window's frame: caption, system menu, sizing border, minimise and maximise boxes
// (0xCF0000), and three bits of the dialog kind that only the shell's Find window has all at once.
constexpr std::uint32_t kFindWindowStyle = 0x00CF'0064;

bool IsFindWindow(platform::WindowHandle window) {
  return platform::WindowClass(window) == L"#32770" &&
         (platform::WindowStyle(window) & kFindWindowStyle) == kFindWindowStyle;
}

platform::WindowHandle ChildOfClass(platform::WindowHandle parent, std::wstring_view name) {
  for (const platform::WindowHandle child : platform::ChildWindows(parent)) {
    if (platform::WindowClass(child) == name) {
      return child;
    }
  }
  return 0;
}

platform::WindowHandle ListViewOf(platform::WindowHandle findWindow) {
  const platform::WindowHandle view = ChildOfClass(findWindow, L"SHELLDLL_DefView");
  return view == 0 ? 0 : ChildOfClass(view, L"SysListView32");
}

}  // namespace

void FindChoice::FindCandidates() {
  Candidates.clear();
  for (const platform::WindowHandle window : platform::TopLevelWindows()) {
    if (IsFindWindow(window)) {
      Candidates.push_back({platform::WindowTitle(window), window});
    }
  }
}

void FindChoice::Choose(int row) {
  const FindCandidate& candidate = Candidates.at(static_cast<std::size_t>(row));
  Chosen = true;
  FindWindowTitle = candidate.Title;
  FindListHandle = ListViewOf(candidate.Window);  // 0, pending, when there is none
}

}  // namespace folivant
