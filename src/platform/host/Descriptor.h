// An open file or directory that closes itself.
#pragma once

#include <unistd.h>

#include <utility>

namespace folivant::platform {

class Descriptor {
 public:
  explicit Descriptor(int raw = -1) : raw_(raw) {}
  Descriptor(Descriptor&& other) noexcept : raw_(std::exchange(other.raw_, -1)) {}
  Descriptor& operator=(Descriptor other) noexcept {
    std::swap(raw_, other.raw_);
    return *this;
  }
  ~Descriptor() {
    if (raw_ >= 0) {
      close(raw_);
    }
  }

  int Get() const { return raw_; }
  explicit operator bool() const { return raw_ >= 0; }
  /// Gives the descriptor up without closing it.
  int Release() { return std::exchange(raw_, -1); }

 private:
  int raw_;
};

}  // namespace folivant::platform
