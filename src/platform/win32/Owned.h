// Owners of files, kernel objects and memory: each kind knows its empty value and its closer, and nobody else closes.
// Those of windows, drawing and printing are in platform/win32/OwnedWindows.h.
#pragma once

#include <utility>

#include "platform/win32/Win32.h"

#include <bcrypt.h>

namespace folivant::platform {

template <class Kind>
class Owned {
 public:
  using Raw = typename Kind::Raw;
  explicit Owned(Raw raw = Kind::Empty()) : raw_(raw) {}
  Owned(Owned&& other) noexcept : raw_(std::exchange(other.raw_, Kind::Empty())) {}
  Owned& operator=(Owned other) noexcept {
    std::swap(raw_, other.raw_);
    return *this;
  }
  ~Owned() {
    if (IsOpen()) {
      Kind::Close(raw_);
    }
  }
  Raw Get() const { return raw_; }
  /// Whoever is given it closes it.
  Raw Release() { return std::exchange(raw_, Kind::Empty()); }
  bool IsOpen() const { return raw_ != Kind::Empty(); }
  /// Closes now what is open, for a kind whose closing can fail: false, with the number of the failure in GetLastError.
  bool Close() { return Kind::Close(std::exchange(raw_, Kind::Empty())); }

 private:
  Raw raw_;
};

struct FileKind {
  using Raw = HANDLE;
  static Raw Empty() { return INVALID_HANDLE_VALUE; }
  static bool Close(Raw handle) { return CloseHandle(handle) != FALSE; }
};
using OwnedFile = Owned<FileKind>;

struct FindKind {
  using Raw = HANDLE;
  static Raw Empty() { return INVALID_HANDLE_VALUE; }
  static void Close(Raw handle) { FindClose(handle); }
};
using OwnedFind = Owned<FindKind>;

/// Processes, mappings and other kernel objects whose empty value is null.
struct KernelKind {
  using Raw = HANDLE;
  static Raw Empty() { return nullptr; }
  static void Close(Raw handle) { CloseHandle(handle); }
};
using OwnedKernel = Owned<KernelKind>;

struct RegistryKind {
  using Raw = HKEY;
  static Raw Empty() { return nullptr; }
  static void Close(Raw handle) { RegCloseKey(handle); }
};
using OwnedKey = Owned<RegistryKind>;

/// Memory inside another process.
struct ForeignMemory {
  HANDLE Process = nullptr;
  void* Address = nullptr;  ///< as that process sees it
  bool operator==(const ForeignMemory&) const = default;
};
struct ForeignMemoryKind {
  using Raw = ForeignMemory;
  static Raw Empty() { return {}; }
  static void Close(Raw memory) { VirtualFreeEx(memory.Process, memory.Address, 0, MEM_RELEASE); }
};
using OwnedForeignMemory = Owned<ForeignMemoryKind>;

/// Memory that a system function allocated with LocalAlloc.
struct LocalKind {
  using Raw = void*;
  static Raw Empty() { return nullptr; }
  static void Close(Raw memory) { LocalFree(memory); }
};
using OwnedLocal = Owned<LocalKind>;

struct AlgorithmKind {
  using Raw = BCRYPT_ALG_HANDLE;
  static Raw Empty() { return nullptr; }
  static void Close(Raw handle) { BCryptCloseAlgorithmProvider(handle, 0); }
};
using OwnedAlgorithm = Owned<AlgorithmKind>;

struct HashKind {
  using Raw = BCRYPT_HASH_HANDLE;
  static Raw Empty() { return nullptr; }
  static void Close(Raw handle) { BCryptDestroyHash(handle); }
};
using OwnedHash = Owned<HashKind>;

}  // namespace folivant::platform
