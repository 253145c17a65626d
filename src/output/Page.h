// A page as a writer of lines sees it: a surface, the fonts of a listing, and the height reached so far. It
// measures text, from the first moment, and remembers the widths of texts that come back, because asking a printer is
// slow.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/PageSurface.h"
#include "scan/NameRules.h"

namespace folivant {

/// Positions are twips from the upper left corner of the printable area.
class Page final : public TextMeasure {
 public:
  enum class Face : std::size_t { Listing, Heading, HeaderFooter };

  /// Begins with the listing font selected. The heading font is the listing font in bold.
  Page(std::unique_ptr<platform::PageSurface> surface, const platform::PageFont& listing,
       const platform::PageFont& headerFooter);

  platform::PageArea Area() const { return surface_->Area(); }
  void Select(Face face);

  /// Width in the selected font.
  double WidthOf(std::wstring_view text) const override { return surface_->TextWidth(text); }
  /// The same for texts that are likely to come back, such as sizes.
  double RememberedWidthOf(std::wstring_view text) const;
  /// The height of a line in the selected font.
  double LineHeight() const { return LineHeightOf(face_); }
  double LineHeightOf(Face face) const { return lineHeights_[Index(face)]; }

  double Y() const { return y_; }
  void MoveTo(double y) { y_ = y; }
  /// Draws on the current line, which stays the current one.
  void Draw(double x, std::wstring_view text) { surface_->Draw(x, y_, text); }
  void DrawEndingAt(double x, std::wstring_view text) { Draw(x - RememberedWidthOf(text), text); }
  /// Goes down by one line of the selected font.
  void EndLine() { y_ += LineHeight(); }

  /// Begins the document under that name, at the top of its first page. Nothing may be drawn before.
  void BeginDocument(const std::wstring& title) { surface_->BeginDocument(title); }
  /// The next page, at its top. The font stays.
  void NextPage();
  void EndDocument() { surface_->EndDocument(); }
  void AbortDocument() noexcept { surface_->AbortDocument(); }

 private:
  struct Hash : std::hash<std::wstring_view> {
    using is_transparent = void;
  };
  using Widths = std::unordered_map<std::wstring, double, Hash, std::equal_to<>>;

  static constexpr std::size_t kFaces = 3;
  static constexpr std::size_t Index(Face face) { return static_cast<std::size_t>(face); }

  std::unique_ptr<platform::PageSurface> surface_;
  std::array<platform::PageFont, kFaces> fonts_;
  std::array<double, kFaces> lineHeights_{};
  mutable std::array<Widths, kFaces> widths_;
  Face face_ = Face::Listing;
  double y_ = 0;
};

}  // namespace folivant
