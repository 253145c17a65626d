#include "ui/frmPages.h"

#include <algorithm>

namespace folivant {
namespace {

// In pixels at 96 per inch.
constexpr int kPageBorder = 4;  // between the tab strip's frame and a page
constexpr int kTabsBorder = 4;  // between the last tab and the end of the strip

}  // namespace

void frmPages::MakePages(std::span<const PageDesign> pages) {
  for (const PageDesign& page : pages) {
    std::wstring caption = Texts()[page.Caption];
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    Send(TabStrip, TCM_INSERTITEMW, pages_.size(), reinterpret_cast<LPARAM>(&item));
    pages_.push_back(AddPage(page.Template));
  }
  On(TabStrip, static_cast<int>(TCN_SELCHANGE), [this] { ShowPage(ShownPage()); });
}

void frmPages::PlacePages() {
  RECT strip{};
  GetWindowRect(Item(TabStrip), &strip);
  MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&strip), 2);
  RECT page = strip;
  Send(TabStrip, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&page));
  InflateRect(&page, -Scaled(kPageBorder), -Scaled(kPageBorder));
  const LONG missing = std::max(WidthOfTabs() - (strip.right - strip.left), LONG{0});
  SIZE needed{page.right - page.left + missing, page.bottom - page.top};
  for (const HWND each : pages_) {
    const SIZE size = FitPageToTexts(each);
    needed = {std::max(needed.cx, size.cx), std::max(needed.cy, size.cy)};
  }
  Grow(TabStrip, {needed.cx - (page.right - page.left), needed.cy - (page.bottom - page.top)});
  for (const HWND each : pages_) {
    SetWindowPos(each, HWND_TOP, page.left, page.top, needed.cx, needed.cy, SWP_NOACTIVATE);
  }
  FitToTexts();
}

/// What the strip needs to show all of them in one row; one that is narrower gets arrows to scroll with.
LONG frmPages::WidthOfTabs() const {
  RECT last{};
  Send(TabStrip, TCM_GETITEMRECT, pages_.size() - 1, reinterpret_cast<LPARAM>(&last));
  return last.right + Scaled(kTabsBorder);
}

void frmPages::ShowPage(int page) {
  Send(TabStrip, TCM_SETCURSEL, static_cast<WPARAM>(page));
  for (int i = 0; const HWND each : pages_) {
    ShowWindow(each, i++ == page ? SW_SHOW : SW_HIDE);
  }
}

int frmPages::ShownPage() const {
  return static_cast<int>(Send(TabStrip, TCM_GETCURSEL));
}

void frmPages::ShowField(int control) {
  const auto page = std::find(pages_.begin(), pages_.end(), GetParent(Item(control)));
  if (page != pages_.end()) {
    ShowPage(static_cast<int>(page - pages_.begin()));
  }
}

bool frmPages::Form_KeyDown(WPARAM key) {
  const bool backwards = key == VK_PRIOR || (key == VK_TAB && GetKeyState(VK_SHIFT) < 0);
  if (GetKeyState(VK_CONTROL) >= 0 || (key != VK_TAB && key != VK_NEXT && key != VK_PRIOR)) {
    return false;
  }
  const int count = static_cast<int>(pages_.size());
  ShowPage((ShownPage() + (backwards ? count - 1 : 1)) % count);
  SetFocusTo(TabStrip);
  return true;
}

}  // namespace folivant
