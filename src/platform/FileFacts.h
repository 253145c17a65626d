// What only opening a file tells: its owner, its links, its content. Links are followed. Everything here reads a file
// that others have open for writing, and nothing here fetches a file that lies in a cloud: ask IsPlaceholder first.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace folivant::platform {

/// Whether reading the content would fetch it from elsewhere; `attributes` are those of FindData.
constexpr bool IsPlaceholder(std::uint32_t attributes) {
  constexpr std::uint32_t kOffline = 0x1000;
  constexpr std::uint32_t kRecallOnDataAccess = 0x400000;
  return (attributes & (kOffline | kRecallOnDataAccess)) != 0;
}

/// "DOMAIN\name"; in the host build the user's name. An owner without a name is its number ("S-1-5-21-...").
/// Throws RuntimeError (ReadFile).
std::wstring OwnerOf(std::wstring_view path);

/// How many names the file has: its hard links. Throws RuntimeError (ReadFile).
std::uint32_t LinkCountOf(std::wstring_view path);

/// A SHA-256 under way, computed by the system (in the host build by a library).
class Sha256 {
 public:
  Sha256();
  ~Sha256();
  Sha256(const Sha256&) = delete;
  Sha256& operator=(const Sha256&) = delete;

  void Add(std::span<const char> bytes);
  /// 64 small hexadecimal digits. Nothing can be added afterwards.
  std::wstring Hex();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

/// Two small digits for each byte.
std::wstring HexDigits(std::span<const unsigned char> bytes);

}  // namespace folivant::platform
