// A printer in memory: it keeps what was drawn where, in a font whose measures can be worked out by hand, and breaks
// down when a test says so.
#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/PageSurface.h"
#include "scan/TextArena.h"

namespace folivant::fakes {

/// One text on a page. It lives as long as the printer's document.
struct DrawnText {
  int Page = 0;  ///< from 1
  double X = 0;
  double Y = 0;
  std::wstring_view Text;
  const platform::PageFont* Font = nullptr;
};

enum class PrinterFailure { None, Open, SelectFont, Draw, NewPage, EndDocument };

/// The one printer that OpenPageSurface opens. A character is 12 twips wide per point and a blank 6, in bold one more
/// each; a line is 22 twips high per point. So in 10 points a "W" is 120 by 220 twips and a blank 60 wide.
class RecordingPrinter {
 public:
  platform::PageArea Area;
  PrinterFailure Failure = PrinterFailure::None;
  int FailingPage = 1;  ///< the page on which Draw and NewPage fail

  // What arrived.
  std::vector<platform::PrintJob> Jobs;
  std::vector<DrawnText> Drawn;  ///< of the last document
  int Pages = 0;                 ///< of the last document
  int Ended = 0;                 ///< documents that went to the printer
  int Aborted = 0;               ///< documents that were thrown away
  int Open = 0;                  ///< surfaces that somebody holds
  std::size_t Measured = 0;      ///< how often a text was measured

  RecordingPrinter();
  /// An A4-like sheet without borders that works, and nothing printed.
  void Reset();
  /// Forgets the last document's texts.
  void BeginDocument();
  void Keep(double x, double y, std::wstring_view text, const platform::PageFont& font);
  /// What is drawn at the given place, or nothing. Rounded to whole twips, because positions are sums of fractions.
  std::wstring At(int page, double x, double y) const;
  /// The texts of one line from left to right, joined by "|".
  std::wstring Line(int page, double y) const;
  /// The text's record on the given page; a test fails when it is not there exactly once.
  const DrawnText& Find(int page, std::wstring_view text) const;

 private:
  TextArena texts_;
  std::deque<platform::PageFont> fonts_;
};

RecordingPrinter& Printer();

}  // namespace folivant::fakes
