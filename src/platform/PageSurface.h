// The pages of a printed document: the caller draws text on them at positions in twips (1,440 to the inch), counted
// from the upper left corner of the printable area, x to the right and y downwards. Settings of the device (copies,
// orientation, two sides, quality, paper source) are part of the job. Texts can be measured before the document begins:
// until then nothing of the job reaches the printer.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace folivant::platform {

inline constexpr double kTwipsPerInch = 1440;

/// What one document asks of its printer. The numbers are those of the stored printer settings.
struct PrintJob {
  std::wstring PrinterName;  ///< as PrinterNames lists it; empty is the default printer
  bool Portrait = true;
  std::int32_t Copies = 1;    ///< collated where the printer can
  std::int32_t Duplex = 1;    ///< 1 simplex, 2 vertical, 3 horizontal
  std::int32_t Quality = -2;  ///< -1 draft, -2 low, -3 medium, -4 high
  std::int32_t PaperBin = 1;  ///< 1 upper, 2 lower, 3 middle, 4 manual
};

/// The printable area of a sheet and the bands around it that the device cannot reach, in twips.
struct PageArea {
  double Width = 0;
  double Height = 0;
  double LeftOffset = 0;
  double TopOffset = 0;
  double RightOffset = 0;
  double BottomOffset = 0;
};

struct PageFont {
  std::wstring Name;
  double Points = 0;
  bool Bold = false;
  bool operator==(const PageFont&) const = default;
};

/// One document, from its measures to its end. Every failure of the device or the spooler is a RuntimeError (Print)
/// that names the printer and carries the system's text; the document can then only be aborted.
class PageSurface {
 public:
  /// Aborts a document that was not ended.
  virtual ~PageSurface() = default;

  /// The sheet that the job gets.
  virtual PageArea Area() const = 0;
  /// The font of everything that follows, on later pages too. A face that is not installed is replaced by the system.
  virtual void SelectFont(const PageFont& font) = 0;
  /// Width of the text in the selected font, in twips; 0 for an empty one.
  virtual double TextWidth(std::wstring_view text) = 0;
  /// Height of a line in the selected font, in twips.
  virtual double TextHeight() = 0;
  /// Begins the document, which the printer's queue shows under `title`, and its first page.
  virtual void BeginDocument(const std::wstring& title) = 0;
  /// The text's upper left corner comes to (x, y). Nothing is clipped or wrapped.
  virtual void Draw(double x, double y, std::wstring_view text) = 0;
  /// Finishes the current page and begins the next.
  virtual void NewPage() = 0;
  /// Finishes the document and hands it to the printer.
  virtual void EndDocument() = 0;
  /// Throws the document away: nothing of it is printed. Before the beginning and after the end it does nothing.
  virtual void AbortDocument() noexcept = 0;
};

/// Throws RuntimeError (Print) when the printer is not there.
std::unique_ptr<PageSurface> OpenPageSurface(const PrintJob& job);

}  // namespace folivant::platform
