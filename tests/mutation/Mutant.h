// Included before everything else where mutants are built (see mutate.py): each changed place asks whether its mutant
// is the one that this process runs as.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace mutation {

inline constexpr int kMost = 1'000'000;
inline int active = -1;
inline bool* reached = nullptr;  ///< by number, where the environment names a file for them

/// Before any constructor of a global object, which may have mutants itself.
[[gnu::constructor(101)]] inline void Begin() {
  if (const char* number = std::getenv("FOLIVANT_MUTANT")) {
    active = std::atoi(number);
  }
  if (std::getenv("FOLIVANT_REACHED") != nullptr) {
    reached = static_cast<bool*>(std::calloc(kMost, 1));
  }
}

[[gnu::destructor(101)]] inline void End() {
  if (reached == nullptr) {
    return;
  }
  if (std::FILE* file = std::fopen(std::getenv("FOLIVANT_REACHED"), "w")) {
    for (int number = 0; number < kMost; ++number) {
      if (reached[number]) {
        std::fprintf(file, "%d\n", number);
      }
    }
    std::fclose(file);
  }
}

inline bool On(int number) {
  if (reached != nullptr) {
    reached[number] = true;
  }
  return number == active;
}

/// For functions that the compiler may run as well; there nothing is changed.
constexpr bool OnAtRunTime(int number) {
  return !__builtin_is_constant_evaluated() && On(number);
}

}  // namespace mutation
