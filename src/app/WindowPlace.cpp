#include "app/WindowPlace.h"

#include <charconv>

namespace folivant {
namespace {

std::optional<std::int32_t> ParsePart(std::wstring_view text) {
  std::string plain;
  for (const wchar_t letter : text) {
    plain += letter < 0x80 ? static_cast<char>(letter) : '?';
  }
  std::int32_t value = 0;
  const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  const bool whole = error == std::errc() && end == plain.data() + plain.size();
  return whole ? std::optional(value) : std::nullopt;
}

}  // namespace

std::wstring WindowPlaceText(WindowPlace place) {
  return std::to_wstring(place.Left) + L"," + std::to_wstring(place.Top);
}

std::optional<WindowPlace> ParseWindowPlace(std::wstring_view text) {
  const std::size_t comma = text.find(L',');
  if (comma == std::wstring_view::npos) {
    return std::nullopt;
  }
  const auto left = ParsePart(text.substr(0, comma));
  const auto top = ParsePart(text.substr(comma + 1));
  return left && top ? std::optional(WindowPlace{*left, *top}) : std::nullopt;
}

}  // namespace folivant
