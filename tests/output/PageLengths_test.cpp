// Lengths that are equal on the device are equal to the writer, whatever font, margins and resolution they come from.
#include <cmath>

#include "output/PageFixture.h"

namespace folivant {
namespace {

/// A setting under which everything is whole dots, so that lengths can be made equal on purpose.
struct Paper {
  std::int16_t Points;
  bool Inches;
  float Margin;  ///< on all four sides
  int Resolution;
};

double DotsOfMargin(const Paper& paper) {
  // Through its text, as a margin is meant: 0.7 is not the number that a single-precision 0.7 is.
  const double meant = std::round(static_cast<double>(paper.Margin) * 1000) / 1000;
  return meant * paper.Resolution / (paper.Inches ? 1 : 25.4);
}

std::vector<Paper> Papers() {
  std::vector<Paper> papers;
  for (const int resolution : {150, 180, 200, 203, 300, 360, 400, 600, 720, 1200, 2400, 4800}) {
    for (std::int16_t points = 6; points <= 16; ++points) {
      for (const float margin : {0.2F, 0.3F, 0.4F, 0.5F, 0.6F, 0.7F, 0.8F, 0.9F, 1.0F, 1.1F, 1.25F}) {
        papers.push_back({points, true, margin, resolution});
      }
      for (const float margin : {6.35F, 7.62F, 12.7F, 17.78F, 25.4F}) {
        papers.push_back({points, false, margin, resolution});
      }
    }
  }
  std::erase_if(papers, [](const Paper& paper) {
    return std::abs(DotsOfMargin(paper) - std::round(DotsOfMargin(paper))) > 1e-6;
  });
  return papers;
}

class EqualLengths : public PageWriter {
 protected:
  static constexpr double kCharacters = 70;  ///< of a line
  static constexpr double kLines = 10;       ///< of a page, one of which begins exactly at the limit

  /// A sheet that holds exactly so many characters and lines between its margins.
  void Use(const Paper& paper) {
    General.Inches = paper.Inches;
    General.MarginLeft = General.MarginRight = General.MarginTop = General.MarginBottom = paper.Margin;
    General.FontSize = paper.Points;
    printer.Resolution = paper.Resolution;
    const double line = printer.DotsOfLine(paper.Points);
    const double header = printer.DotsOfLine(paper.Points * 0.8);
    const double margins = 2 * std::round(DotsOfMargin(paper));
    // Two empty lines and the captions follow the header; four lines stay free below the last.
    printer.SetSheet(paper.Resolution, margins + kCharacters * printer.DotsOfCharacter(paper.Points),
                     margins + header + (3 + kLines - 1 + 4) * line);
  }

  /// The texts of a page in the order in which they were drawn, joined by "|", without footer and header.
  std::wstring DrawnOn(int page) const {
    std::wstring joined;
    for (const fakes::DrawnText& drawn : printer.Drawn) {
      if (drawn.Page == page && drawn.Font->Points == General.FontSize) {
        (joined += joined.empty() ? L"" : L"|") += drawn.Text;
      }
    }
    return joined;
  }

  /// The papers on which `draw` does not draw what is expected on the last page.
  template <class Draw>
  int Differences(const std::wstring& expected, Draw draw) {
    int differences = 0;
    for (const Paper& paper : Papers()) {
      Use(paper);
      draw();
      const bool same = DrawnOn(printer.Pages) == expected;
      if (!same && differences++ == 0) {
        ADD_FAILURE() << testing::PrintToString(DrawnOn(printer.Pages)) << " in " << paper.Points
                      << " points with margins of " << paper.Margin << (paper.Inches ? " inches at " : " mm at ")
                      << paper.Resolution << " dots";
      }
    }
    return differences;
  }
};

TEST_F(EqualLengths, ThereAreManyPapers) {
  EXPECT_GT(Papers().size(), 1000U);
}

TEST_F(EqualLengths, ACaptionThatFillsItsColumnStaysWhole) {
  // A number's column has nine characters and a size's ten, of which one is the blank before the caption.
  Texts.Set(static_cast<std::size_t>(TextId::FilesCaption), L"Number 8");
  Texts.Set(static_cast<std::size_t>(TextId::DirectorySizeCaption), L"Size of 9");
  Texts.Set(static_cast<std::size_t>(TextId::TotalFilesCaption), L"T. files");
  Texts.Set(static_cast<std::size_t>(TextId::TotalSizeCaption), L"Sum of 10.");
  EXPECT_EQ(Differences(L"Where|Number 8|Size of 9|T. files|Sum of...", [this] { Begin(ListingStyle::DirectoryView); }),
            0);
}

TEST_F(EqualLengths, ANameThatFillsItsColumnStaysWhole) {
  // Two blanks follow the name: 68 characters.
  Format.Files = {true, false, false, false, false};
  const std::wstring fits = L"N" + std::wstring(67, L'n');
  EXPECT_EQ(Differences(L"Name|" + fits + L"|M" + std::wstring(64, L'm') + L"...",
                        [this, &fits] {
                          Begin(ListingStyle::TreeStyle);
                          writer->TreeEntry(Entry(fits));
                          writer->TreeEntry(Entry(std::wstring(69, L'm')));
                        }),
            0);
}

TEST_F(EqualLengths, APathThatFillsItsLineIsShortened) {
  // A path has to be narrower than its line: 69 characters.
  const std::wstring fits = L"C:\\" + std::wstring(59, L'd') + L"\\F.text";
  ASSERT_EQ(fits.size(), 69U);
  EXPECT_EQ(Differences(fits + L"|C:\\" + std::wstring(56, L'e') + L"...\\F.text",
                        [this] {
                          Begin(ListingStyle::FullPathList);
                          ListDirectory(L"C:\\" + std::wstring(59, L'd'), 1, L"f.text");
                          ListDirectory(L"C:\\" + std::wstring(60, L'e'), 1, L"f.text");
                        }),
            0);
}

TEST_F(EqualLengths, ALineThatBeginsAtTheLimitStaysOnThePage) {
  EXPECT_EQ(Differences(L"C:\\B",
                        [this] {
                          Begin(ListingStyle::FullPathList);
                          ListDirectory(L"C:\\", static_cast<std::size_t>(kLines), L"a");
                          ListDirectory(L"C:\\", 1, L"b");
                        }),
            0);
}

}  // namespace
}  // namespace folivant
