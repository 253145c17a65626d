// Where the main window stood when it was closed, as a stored text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace folivant {

inline constexpr wchar_t kPositionSection[] = L"Settings";
inline constexpr wchar_t kPositionKey[] = L"WindowPlace";

struct WindowPosition {
  std::int32_t Left = 0;  ///< screen coordinates
  std::int32_t Top = 0;
  bool operator==(const WindowPosition&) const = default;
};

/// "120,-40"
std::wstring WindowPositionText(WindowPosition position);
/// Nothing when the text is not exactly two numbers with a comma between them.
std::optional<WindowPosition> ParseWindowPosition(std::wstring_view text);

}  // namespace folivant
