// Page margins as the options dialog checks them against what the printer can reach.
#pragma once

namespace folivant {

struct Margins {
  float Left = 0, Top = 0, Right = 0, Bottom = 0;  ///< in inches or millimetres
  bool operator==(const Margins&) const = default;
};

/// Whether every margin is at least its minimum.
bool MarginsSuffice(const Margins& margins, const Margins& minimum);
/// Each margin below its minimum replaced by that minimum, rounded up to 0.01 inches or 1 millimetre; the others as
/// they are.
Margins RaisedMargins(const Margins& margins, const Margins& minimum, bool inches);

}  // namespace folivant
