#include "platform/NumberWeights.h"

#include <algorithm>

namespace folivant::platform {
namespace {

constexpr wchar_t kMostZeros = 0xFD;

bool IsDigit(wchar_t c) {
  return c >= L'0' && c <= L'9';
}

/// A sign that stands among other characters where digits do, the number of digits, the digits, and less the more zeros
/// there were.
void AppendNumber(std::wstring_view digits, std::wstring& out) {
  const std::size_t zeros = std::min(digits.find_first_not_of(L'0'), digits.size());
  digits.remove_prefix(zeros);
  out += L'0';
  out += static_cast<wchar_t>(1 + digits.size());
  out += digits;
  out += static_cast<wchar_t>(kMostZeros + 1 - std::min<std::size_t>(zeros, kMostZeros));
}

}  // namespace

void AppendWithNumberWeights(std::wstring_view text, std::wstring& out) {
  while (!text.empty()) {
    const auto end = IsDigit(text.front()) ? std::find_if_not(text.begin(), text.end(), IsDigit)
                                           : std::find_if(text.begin(), text.end(), IsDigit);
    const auto length = static_cast<std::size_t>(end - text.begin());
    if (IsDigit(text.front())) {
      AppendNumber(text.substr(0, length), out);
    } else {
      out += text.substr(0, length);
    }
    text.remove_prefix(length);
  }
}

}  // namespace folivant::platform
