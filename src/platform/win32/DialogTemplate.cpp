#include "platform/win32/DialogTemplate.h"

#include <cstdlib>
#include <cstring>

#include "platform/win32/WindowSystem.h"

namespace folivant::platform {
namespace {

LOGFONTW MessageFont() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  return metrics.lfMessageFont;
}

// The fixed beginning of an extended dialog template.
#pragma pack(push, 1)
struct TemplateHead {
  WORD version, signature;
  DWORD helpId, exStyle, style;
  WORD items;
  short x, y, width, height;
};
#pragma pack(pop)

const WORD* AfterName(const WORD* at) {
  if (*at == 0xFFFF) {
    return at + 2;
  }
  while (*at != 0) {
    ++at;
  }
  return at + 1;
}

}  // namespace

std::vector<DWORD> TemplateWithSystemFont(int resource) {
  const HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(resource), RT_DIALOG);
  if (found == nullptr) {
    ThrowNoWindow();
  }
  const auto* bytes = static_cast<const BYTE*>(LockResource(LoadResource(nullptr, found)));
  const std::size_t size = SizeofResource(nullptr, found);

  const auto* names = reinterpret_cast<const WORD*>(bytes + sizeof(TemplateHead));
  const WORD* fontStart = AfterName(AfterName(AfterName(names)));  // menu, class, title
  const WORD* oldItems = AfterName(fontStart + 3);                 // size, weight, italic and character set
  const auto aligned = [](std::size_t offset) { return (offset + 3) & ~std::size_t{3}; };
  const std::size_t fontAt = static_cast<std::size_t>(reinterpret_cast<const BYTE*>(fontStart) - bytes);
  const std::size_t itemsAt = aligned(static_cast<std::size_t>(reinterpret_cast<const BYTE*>(oldItems) - bytes));

  const LOGFONTW font = MessageFont();
  std::vector<WORD> fontWords = {static_cast<WORD>(MulDiv(std::abs(font.lfHeight), 72, SystemDpi())),
                                 static_cast<WORD>(font.lfWeight),
                                 static_cast<WORD>(font.lfItalic | (DEFAULT_CHARSET << 8))};
  for (const wchar_t* letter = font.lfFaceName; *letter != 0; ++letter) {
    fontWords.push_back(*letter);
  }
  fontWords.push_back(0);

  const std::size_t newItemsAt = aligned(fontAt + fontWords.size() * sizeof(WORD));
  std::vector<DWORD> made((newItemsAt + size - itemsAt + 3) / 4);
  auto* out = reinterpret_cast<BYTE*>(made.data());
  std::memcpy(out, bytes, fontAt);
  std::memcpy(out + fontAt, fontWords.data(), fontWords.size() * sizeof(WORD));
  std::memcpy(out + newItemsAt, bytes + itemsAt, size - itemsAt);
  return made;
}

}  // namespace folivant::platform
