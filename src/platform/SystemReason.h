// Why the system refused something, where that is no failure of the run but a fact to be told.
#pragma once

#include <cstdint>
#include <string>

#include "platform/RuntimeError.h"

namespace folivant {

struct SystemReason {
  std::uint32_t Code = 0;  ///< the system's number
  std::wstring Text;       ///< its words, without a line end
  bool operator==(const SystemReason&) const = default;
};

inline SystemReason ReasonOf(const RuntimeError& error) {
  return {error.SystemCode(), error.SystemText()};
}

}  // namespace folivant
