#include "app/win32/CopyOrders.h"

namespace folivant {

void AddCopyEntry(HWND window, const Messages& texts) {
  const HMENU menu = GetSystemMenu(window, FALSE);
  AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(CopyOrder::Listing),
              (texts[TextId::CopyListing] + L'\t' + texts[TextId::CopyShortcut]).c_str());
}

std::optional<CopyOrder> CopyOrderOfKey(WPARAM key) {
  if (key != 'C' || GetKeyState(VK_CONTROL) >= 0 || GetKeyState(VK_MENU) < 0) {  // AltGr is both, and types a letter
    return std::nullopt;
  }
  return GetKeyState(VK_SHIFT) < 0 ? CopyOrder::Path : CopyOrder::Listing;
}

std::optional<CopyOrder> CopyOrderOf(UINT message, WPARAM wParam) {
  constexpr WPARAM kOrderBits = 0xFFF0;
  const auto order = static_cast<CopyOrder>(wParam & kOrderBits);
  const bool copies = message == WM_SYSCOMMAND && (order == CopyOrder::Listing || order == CopyOrder::Path);
  return copies ? std::optional(order) : std::nullopt;
}

}  // namespace folivant
