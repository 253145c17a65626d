#include "app/WindowPosition.h"

#include "base/Numbers.h"

namespace folivant {

std::wstring WindowPositionText(WindowPosition position) {
  return WholeText(position.Left) + L"," + WholeText(position.Top);
}

std::optional<WindowPosition> ParseWindowPosition(std::wstring_view text) {
  const std::size_t comma = text.find(L',');
  if (comma == std::wstring_view::npos) {
    return std::nullopt;
  }
  const auto left = ReadPlainWhole(text.substr(0, comma));
  const auto top = ReadPlainWhole(text.substr(comma + 1));
  return left && top ? std::optional(WindowPosition{*left, *top}) : std::nullopt;
}

}  // namespace folivant
