#include "output/Page.h"

#include <gtest/gtest.h>

#include "fakes/RecordingSurface.h"

namespace folivant {
namespace {

/// A page with a listing font of 10 points and a header font of 8: a character is 120 twips wide, in bold 130, in the
/// header 96.
class PageTest : public testing::Test {
 protected:
  PageTest() : page_(Surface(), {L"Courier New", 10, false}, {L"Arial", 8, false}) {}
  static std::unique_ptr<platform::PageSurface> Surface() {
    fakes::Printer().Reset();
    return platform::OpenPageSurface({});
  }
  /// How often the printer was asked for the width of `text`.
  std::size_t Asked(const std::wstring& text) {
    const std::size_t before = fakes::Printer().Measured;
    page_.RememberedWidthOf(text);
    return fakes::Printer().Measured - before;
  }
  Page page_;
};

TEST_F(PageTest, RemembersWidthsOfEachFontForItself) {
  EXPECT_EQ(page_.RememberedWidthOf(L"ab"), 240);
  EXPECT_EQ(Asked(L"ab"), 0U);
  page_.Select(Page::Face::Heading);
  EXPECT_EQ(page_.RememberedWidthOf(L"ab"), 260);
  page_.Select(Page::Face::HeaderFooter);
  EXPECT_EQ(page_.RememberedWidthOf(L"ab"), 192);
  page_.Select(Page::Face::Listing);
  EXPECT_EQ(Asked(L"ab"), 0U);
}

TEST_F(PageTest, DoesNotRememberWithoutEnd) {
  Asked(L"first");
  for (int i = 1; i < 4096; ++i) {
    Asked(std::to_wstring(i));
  }
  EXPECT_EQ(Asked(L"first"), 0U) << "4,096 texts";
  EXPECT_EQ(Asked(L"one more"), 1U);
  EXPECT_EQ(Asked(L"first"), 1U) << "a full memory starts again";
}

TEST_F(PageTest, GoesDownByLinesOfTheSelectedFont) {
  EXPECT_EQ(page_.Y(), 0);
  page_.MoveTo(1000);
  page_.EndLine();
  EXPECT_EQ(page_.Y(), 1220);
  page_.Select(Page::Face::HeaderFooter);
  page_.EndLine();
  EXPECT_EQ(page_.Y(), 1396);
  page_.NextPage();
  EXPECT_EQ(page_.Y(), 0);
  EXPECT_EQ(page_.LineHeight(), 176) << "the font stays";
}

}  // namespace
}  // namespace folivant
