#include "platform/host/Host.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace folivant::platform {
namespace {

constexpr wchar_t kReplacement = 0xFFFD;

struct Decoded {
  wchar_t Character = kReplacement;
  std::size_t Length = 1;
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
  const Lead lead = LeadOf(static_cast<unsigned char>(bytes[0]));
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
  return {static_cast<wchar_t>(character), lead.Length};
}

void AppendUtf8(unsigned c, std::string& bytes) {
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
  std::size_t length = 0;
  while (!bytes.empty()) {
    const unsigned byte = static_cast<unsigned char>(bytes[0]);
    const Decoded next = byte < 0x80 ? Decoded{static_cast<wchar_t>(byte), 1} : DecodeOne(bytes);
    out[length++] = next.Character;
    bytes.remove_prefix(next.Length);
  }
  return length;
}

std::wstring FromUtf8(std::string_view bytes) {
  std::wstring text(bytes.size(), L'\0');
  text.resize(FromUtf8Into(bytes, text.data()));
  return text;
}

std::string ToUtf8(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (const wchar_t c : text) {
    AppendUtf8(static_cast<unsigned>(c), bytes);
  }
  return bytes;
}

std::wstring FromNativePath(std::string_view path) {
  std::wstring text = L"Z:" + FromUtf8(path);
  std::replace(text.begin(), text.end(), L'/', L'\\');
  return text;
}

RuntimeError SystemError(FailedAction action, const std::wstring& object) {
  const int code = errno;
  return {action, object, FromUtf8(std::generic_category().message(code)), static_cast<std::uint32_t>(code)};
}

bool WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) {
      return false;
    }
    bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace folivant::platform
