#include "platform/FileFacts.h"

namespace folivant::platform {

std::wstring HexDigits(std::span<const unsigned char> bytes) {
  constexpr wchar_t kDigits[] = L"0123456789abcdef";
  std::wstring text;
  for (const unsigned char byte : bytes) {
    text += kDigits[byte >> 4];
    text += kDigits[byte & 0xF];
  }
  return text;
}

}  // namespace folivant::platform
