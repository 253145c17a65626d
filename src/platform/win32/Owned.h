// Owners of system handles: each kind knows its empty value and its closer, and nobody else closes.
#pragma once

#include <utility>

#include "platform/win32/Win32.h"

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
    if (raw_ != Kind::Empty()) {
      Kind::Close(raw_);
    }
  }
  Raw Get() const { return raw_; }
  bool IsOpen() const { return raw_ != Kind::Empty(); }
  /// Gives the handle up to the caller.
  Raw Release() { return std::exchange(raw_, Kind::Empty()); }

 private:
  Raw raw_;
};

struct FileKind {
  using Raw = HANDLE;
  static Raw Empty() { return INVALID_HANDLE_VALUE; }
  static void Close(Raw handle) { CloseHandle(handle); }
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

struct BitmapKind {
  using Raw = HBITMAP;
  static Raw Empty() { return nullptr; }
  static void Close(Raw handle) { DeleteObject(handle); }
};
using OwnedBitmap = Owned<BitmapKind>;

}  // namespace folivant::platform
