// Decoding goes byte by byte, because where exactly a sequence breaks decides how many U+FFFD stand for it.
#include "platform/Utf8.h"

#include <algorithm>
#include <utility>

namespace folivant::platform {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kFirstSupplementary = 0x10000;
constexpr std::size_t kLongest = 4;  ///< bytes of one character
constexpr bool kPairs = sizeof(wchar_t) == 2;

struct Decoded {
  char32_t Character = kReplacement;
  std::size_t Length = 1;  ///< bytes
  bool Valid = false;
};

/// The length that a first byte announces and what it holds of the character.
struct Lead {
  std::size_t Length = 0;
  unsigned Bits = 0;
};

Lead LeadOf(unsigned byte) {
  if (byte >= 0xC2 && byte < 0xE0) {
    return {2, byte & 0x1F};
  }
  if (byte >= 0xE0 && byte < 0xF0) {
    return {3, byte & 0x0F};
  }
  if (byte >= 0xF0 && byte < 0xF5) {
    return {4, byte & 0x07};
  }
  return {};
}

/// A beginning that no character has: a needlessly long form or half of a surrogate pair.
bool IsHopeless(unsigned bits, std::size_t missing) {
  return (missing == 2 && bits < 0x10) || (missing == 1 && (bits < 0x20 || (bits >= 0x360 && bits < 0x380)));
}

/// One character, or U+FFFD with as many bytes as Wine takes for one broken sequence.
Decoded DecodeOne(std::string_view bytes) {
  const unsigned first = static_cast<unsigned char>(bytes[0]);
  if (first < 0x80) {
    return {first, 1, true};
  }
  const Lead lead = LeadOf(first);
  if (lead.Length == 0) {
    return {};
  }
  if (bytes.size() < lead.Length) {
    return {kReplacement, bytes.size()};
  }
  unsigned character = lead.Bits;
  for (std::size_t i = 1; i < lead.Length; ++i) {
    const unsigned byte = static_cast<unsigned char>(bytes[i]);
    const std::size_t missing = lead.Length - 1 - i;
    character = character << 6 | (byte & 0x3F);
    if ((byte & 0xC0) != 0x80 || (missing == 1 && character > 0x10FFFF >> 6)) {
      return {kReplacement, i};
    }
    if (IsHopeless(character, missing)) {
      return {kReplacement, i + 1};
    }
  }
  return {character, lead.Length, true};
}

/// Returns where the next character goes.
wchar_t* Put(char32_t character, wchar_t* out) {
  if (kPairs && character >= kFirstSupplementary) {
    *out++ = static_cast<wchar_t>(0xD800 + ((character - kFirstSupplementary) >> 10));
    *out++ = static_cast<wchar_t>(0xDC00 + (character & 0x3FF));
  } else {
    *out++ = static_cast<wchar_t>(character);
  }
  return out;
}

/// Takes one character off `text`, a pair of surrogates as the one that it stands for.
char32_t Take(std::wstring_view& text) {
  auto character = static_cast<char32_t>(text[0]);
  text.remove_prefix(1);
  if (kPairs && character >= 0xD800 && character < 0xDC00 && !text.empty() && text[0] >= 0xDC00 && text[0] < 0xE000) {
    character = kFirstSupplementary + ((character - 0xD800) << 10) + (static_cast<char32_t>(text[0]) - 0xDC00);
    text.remove_prefix(1);
  }
  return character;
}

constexpr bool IsSurrogate(char32_t c) {
  return c >= 0xD800 && c < 0xE000;
}

void Encode(char32_t c, std::string& bytes) {
  const auto tail = [&](int shift) { bytes += static_cast<char>(0x80 | (c >> shift & 0x3F)); };
  if (c < 0x80) {
    bytes += static_cast<char>(c);
  } else if (c < 0x800) {
    bytes += static_cast<char>(0xC0 | c >> 6);
    tail(0);
  } else if (c < 0x10000) {
    bytes += static_cast<char>(0xE0 | c >> 12);
    tail(6);
    tail(0);
  } else {
    bytes += static_cast<char>(0xF0 | (c >> 18 & 0x07));
    tail(12);
    tail(6);
    tail(0);
  }
}

}  // namespace

std::size_t FromUtf8Into(std::string_view bytes, wchar_t* out) {
  unsigned seen = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {  // nearly every name is ASCII
    const unsigned byte = static_cast<unsigned char>(bytes[i]);
    seen |= byte;
    out[i] = static_cast<wchar_t>(byte);
  }
  if (seen < 0x80) {
    return bytes.size();
  }
  wchar_t* end = out;
  while (!bytes.empty()) {
    const Decoded next = DecodeOne(bytes);
    end = Put(next.Character, end);
    bytes.remove_prefix(next.Length);
  }
  return static_cast<std::size_t>(end - out);
}

std::wstring FromUtf8(std::string_view bytes) {
  std::wstring text(bytes.size(), L'\0');
  text.resize(FromUtf8Into(bytes, text.data()));
  return text;
}

void AppendUtf8(std::wstring_view text, std::string& bytes) {
  const std::size_t start = bytes.size();
  bytes.resize(start + text.size());
  char32_t seen = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    seen |= static_cast<char32_t>(text[i]);
    bytes[start + i] = static_cast<char>(text[i]);
  }
  if (seen < 0x80) {
    return;
  }
  bytes.resize(start);
  while (!text.empty()) {
    const char32_t character = Take(text);
    Encode(IsSurrogate(character) ? kReplacement : character, bytes);
  }
}

bool IsUnpaired(std::wstring_view text, std::size_t at) {
  const auto isHigh = [&](std::size_t i) { return i < text.size() && text[i] >= 0xD800 && text[i] < 0xDC00; };
  const auto isLow = [&](std::size_t i) { return i < text.size() && text[i] >= 0xDC00 && text[i] < 0xE000; };
  if (isHigh(at)) {
    return !kPairs || !isLow(at + 1);
  }
  return isLow(at) && (!kPairs || at == 0 || !isHigh(at - 1));
}

std::string ToUtf8(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    Encode(Take(text), bytes);
  }
  return bytes;
}

void Utf8Check::Add(std::string_view piece) {
  const std::string bytes = std::exchange(rest_, {}) + std::string(piece);
  for (std::string_view left = bytes; !left.empty() && !broken_;) {
    const Decoded next = DecodeOne(left);
    if (!next.Valid && left.size() < kLongest) {
      rest_ = left;
      return;
    }
    broken_ = !next.Valid;
    beyondAscii_ |= next.Length > 1;
    left.remove_prefix(next.Length);
  }
}

}  // namespace folivant::platform
