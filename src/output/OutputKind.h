// Where a listing goes, and as what.
#pragma once

#include <cstdint>

namespace folivant {

/// The destination chosen in the main window; codes as they are stored.
enum class OutputTarget : std::int32_t { Printer = 0, File = 1, Screen = 2 };

enum class OutputKind : std::int32_t {
  Text = 0,
  TabDelimited = 1,
  Html = 2,
  Csv = 3,
  Xml = 4,
  Printer = 5,
  ExactCsv = 6,
  JsonLines = 7,
  Sha256 = 8
};

}  // namespace folivant
