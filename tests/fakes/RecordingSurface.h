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

enum class PrinterFailure { None, Open, SelectFont, BeginDocument, Draw, NewPage, EndDocument };

/// The one printer that OpenPageSurface opens. A character is 12 twips wide per point and a blank 6, in bold one more
/// each; a line is 22 twips high per point. So in 10 points a "W" is 120 by 220 twips and a blank 60 wide. With a
/// resolution it is a device: every character is as wide as any other, and all lengths are whole dots.
class RecordingPrinter {
 public:
  platform::PageArea Area;  ///< of an upright sheet; for a job across, it is turned to the left
  int Resolution = 0;       ///< dots per inch; 0 for measures of its own
  PrinterFailure Failure = PrinterFailure::None;
  int FailingPage = 1;  ///< the page on which it breaks down, 0 before the document begins; Open always fails

  // What arrived.
  std::vector<platform::PrintJob> Jobs;  ///< of the documents that were begun
  std::vector<std::wstring> Titles;      ///< likewise
  std::vector<DrawnText> Drawn;          ///< of the last document
  int Pages = 0;                         ///< of the last document
  int Ended = 0;                         ///< documents that went to the printer
  int Aborted = 0;                       ///< documents that were thrown away
  int Open = 0;                          ///< surfaces that somebody holds
  std::size_t Measured = 0;              ///< how often a text was measured

  RecordingPrinter();
  /// An A4-like sheet without borders that works, and nothing printed.
  void Reset();
  /// Makes it a device with a sheet of so many dots, all of which it can print on.
  void SetSheet(int dotsPerInch, double width, double height);
  /// In dots, as a device of the Resolution draws them: three fifths of the font's height wide, 9 eighths of it high.
  double DotsOfCharacter(double points) const;
  double DotsOfLine(double points) const;
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
