// The numbered texts of the current language. Every caption, label and message that the program shows comes from here.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "ui/TextId.h"

namespace folivant {

class Messages {
 public:
  static constexpr std::size_t kCount = 301;  ///< numbers 0 to 300

  const std::wstring& operator[](TextId number) const { return texts_[static_cast<std::size_t>(number)]; }
  /// For windows whose captions are consecutive numbers.
  const std::wstring& operator[](std::size_t number) const { return texts_.at(number); }
  /// Whether a language has been loaded, to its end: texts are set in the order of their numbers.
  bool AreLoaded() const { return !texts_.back().empty(); }
  void Set(std::size_t number, std::wstring text) { texts_.at(number) = std::move(text); }

 private:
  std::array<std::wstring, kCount> texts_;
};

}  // namespace folivant
