// What fits on no page is refused before anything reaches the printer, and what fits is not.
#include "output/PageLayout.h"

#include <limits>

#include "output/PageFixture.h"
#include "platform/RuntimeError.h"

namespace folivant {
namespace {

class Room : public PageWriter {
 protected:
  Room() {
    const std::pair<TextId, const wchar_t*> rows[] = {{TextId::MarginLeft, L"&Left:"},
                                                      {TextId::MarginTop, L"&Top:"},
                                                      {TextId::MarginRight, L"&Right:"},
                                                      {TextId::MarginBottom, L"&Bottom:"},
                                                      {TextId::UnitInches, L"in"}};
    for (const auto& [number, text] : rows) {
      Texts.Set(static_cast<std::size_t>(number), text);
    }
  }

  static constexpr const wchar_t* kPrinted = L"printed";

  /// What a run's refusal names, with "margins: " or "font: " before it; kPrinted when its document begins.
  std::wstring Outcome(ListingStyle style) {
    printer.Jobs.clear();
    std::wstring outcome = kPrinted;
    try {
      Begin(style);
    } catch (const RuntimeError& error) {
      EXPECT_TRUE(error.SystemText().empty());
      EXPECT_EQ(error.SystemCode(), 0U);
      outcome = (error.Action() == FailedAction::UseMargins ? L"margins: " : L"font: ") + error.Object();
      EXPECT_TRUE(printer.Jobs.empty()) << "nothing reaches the queue";
    }
    writer->AbortListing();
    return outcome;
  }
  bool Prints(ListingStyle style) { return Outcome(style) == kPrinted; }
};

constexpr ListingStyle kStyles[] = {ListingStyle::NoSubdirectories, ListingStyle::IncludeSubdirectories,
                                    ListingStyle::TreeStyle,        ListingStyle::DirectoryView,
                                    ListingStyle::FullPathList,     ListingStyle::FindWindow,
                                    ListingStyle::PathListFile};

TEST_F(Room, MillimetresReadAsInchesAreRefusedInEveryStyle) {
  General.MarginLeft = General.MarginRight = General.MarginBottom = 20;
  General.MarginTop = 15;
  for (const ListingStyle style : kStyles) {
    EXPECT_EQ(Outcome(style), L"margins: Left: 20; Top: 15; Right: 20; Bottom: 20 in");
  }
  General.MarginLeft = General.MarginRight = General.MarginBottom = General.MarginTop = 1;
  for (const ListingStyle style : kStyles) {
    EXPECT_EQ(Outcome(style), kPrinted);
  }
}

struct LowestSheet {
  ListingStyle Style;
  double Height;
};

TEST_F(Room, APageHoldsALineUnderItsCaptions) {
  // Lines begin at 2,276, and 1,440 are below them. A line keeps 4 x 220 free; below a heading and its captions (5
  // lines) or a title and its captions (4) one more line has to stand.
  for (const LowestSheet& row : {LowestSheet{ListingStyle::FullPathList, 2276 + 4 * 220 + 1440},
                                 {ListingStyle::DirectoryView, 4596},
                                 {ListingStyle::FindWindow, 2276 + 5 * 220 + 1440},
                                 {ListingStyle::PathListFile, 4816},
                                 {ListingStyle::NoSubdirectories, 2276 + 6 * 220 + 1440},
                                 {ListingStyle::IncludeSubdirectories, 5036},
                                 {ListingStyle::TreeStyle, 5036}}) {
    printer.Area.Height = row.Height;
    EXPECT_TRUE(Prints(row.Style)) << row.Height;
    printer.Area.Height = row.Height - 1;
    EXPECT_EQ(Outcome(row.Style), L"margins: Left: 1; Top: 1; Right: 1; Bottom: 1 in") << row.Height;
  }
}

TEST_F(Room, OnTheLowestSheetTheFirstLinesStandBetweenTheMargins) {
  printer.Area.Height = 5036;
  Begin(ListingStyle::IncludeSubdirectories);
  ListDirectory(L"C:\\Data", 1);
  // The heading begins a page, because it keeps ten lines free.
  EXPECT_EQ(printer.Find(2, L"Entry.txt").Y, 5036 - 1440 - 220);

  printer.Area.Height = 4596;
  Begin(ListingStyle::FullPathList);
  ListDirectory(L"C:\\", 3, L"a");
  EXPECT_EQ(printer.Pages, 3) << "each page holds one line and none is empty";
  EXPECT_EQ(printer.Line(1, kFirstLine), L"C:\\A");
}

struct NarrowestSheet {
  ListingStyle Style;
  FileColumns Files;
  double Width;
};

TEST_F(Room, ALineHoldsALetterOfTheNameAndDots) {
  constexpr FileColumns kAll = {true, true, true, true, true};
  // "W..." is 480 wide, the margins are 2,880. Beside the name stand: nothing, attributes, date, size and MS-DOS name
  // (5,280), the four numbers (3,960), or folder, size and date (twice the name, 3,240 and the left margin again).
  for (const NarrowestSheet& row :
       {NarrowestSheet{ListingStyle::FullPathList, kAll, 2880 + 480},
        {ListingStyle::NoSubdirectories, kAll, 2880 + 5280 + 480},
        {ListingStyle::TreeStyle, kAll, 8640},
        {ListingStyle::IncludeSubdirectories, {true, false, false, false, false}, 2880 + 120 + 480},
        // Without names the MS-DOS names begin the line, two blanks further to the left.
        {ListingStyle::NoSubdirectories, {false, true, true, true, true}, 2880 + 5160},
        {ListingStyle::DirectoryView, kAll, 2880 + 3960 + 480},
        {ListingStyle::FindWindow, kAll, 2880 + 3 * 480 + 3240 + 1440},
        {ListingStyle::PathListFile, kAll, 9000}}) {
    Format.Files = row.Files;
    printer.Area.Width = row.Width;
    EXPECT_TRUE(Prints(row.Style)) << row.Width;
    printer.Area.Width = row.Width - 1;
    EXPECT_EQ(Outcome(row.Style), L"margins: Left: 1; Top: 1; Right: 1; Bottom: 1 in") << row.Width;
  }
}

TEST_F(Room, UnprintableBordersCountAsPaper) {
  // The same lowest and narrowest sheets, with borders on all sides.
  printer.Area = {8640 - 300 - 500, 5036 - 400 - 600, 300, 400, 500, 600};
  EXPECT_TRUE(Prints(ListingStyle::IncludeSubdirectories));
  printer.Area.Width -= 1;
  EXPECT_FALSE(Prints(ListingStyle::IncludeSubdirectories));

  // Where the right margin lies beyond the sheet, the sheet ends the line: it begins at 11,520 of 12,000 twips, the
  // last 500 of which are border, and "W..." takes 480.
  printer.Area = {11500, 16000, 0, 0, 500, 0};
  General.MarginLeft = 8;
  General.MarginRight = -1;
  EXPECT_TRUE(Prints(ListingStyle::FullPathList));
  printer.Area.Width -= 1;
  EXPECT_FALSE(Prints(ListingStyle::FullPathList));
}

TEST_F(Room, MarginsAreToBlameOnlyWhereALineFitsWithoutThem) {
  // Without margins the header and two lines below it take 176 + 3 x 220, the free lines 4 x 220, and "W..." 480.
  const std::wstring margins = L"margins: Left: 1; Top: 1; Right: 1; Bottom: 1 in";
  printer.Area = {480, 1716, 0, 0, 0, 0};
  EXPECT_EQ(Outcome(ListingStyle::FullPathList), margins);
  printer.Area.Height -= 1;
  EXPECT_EQ(Outcome(ListingStyle::FullPathList), L"font: Courier New, 10");
  printer.Area = {479, 1716, 0, 0, 0, 0};
  EXPECT_EQ(Outcome(ListingStyle::FullPathList), L"font: Courier New, 10");
}

TEST_F(Room, TheSheetEndsWhereItsBordersEnd) {
  // The bottom margin lies beyond the sheet: lines begin at 2,276 and keep 4 x 220 free, 600 of them border.
  printer.Area = {12000, 2276 + 880 - 600, 0, 0, 0, 600};
  General.MarginBottom = -1;
  EXPECT_TRUE(Prints(ListingStyle::FullPathList));
  printer.Area.Height -= 1;
  EXPECT_FALSE(Prints(ListingStyle::FullPathList));
  // The first line stands 164 above what can be printed, and on the sheet.
  printer.Area = {12000, 15000, 0, 1000, 0, 0};
  General.MarginTop = 0;
  EXPECT_TRUE(Prints(ListingStyle::FullPathList));
}

TEST_F(Room, ALeftMarginMayBeLittleMoreThanTheBorder) {
  printer.Area = {10000, 16000, 1000, 0, 1000, 0};  // one inch is 440 more
  EXPECT_TRUE(Prints(ListingStyle::FullPathList));
}

TEST_F(Room, AFontSizeThatIsNoneOrBeyondTheSheetIsRefused) {
  // 16,000 twips are 800 points.
  for (const int size : {0, -1, -32768, 801, 32767}) {
    General.FontSize = static_cast<std::int16_t>(size);
    EXPECT_EQ(Outcome(ListingStyle::FullPathList), L"font: Courier New, " + std::to_wstring(size));
  }
  General.FontSize = 1;
  EXPECT_TRUE(Prints(ListingStyle::FullPathList));
}

TEST_F(Room, AFontThatFitsNoPageIsNamedAndOneThatMarginsLeaveNoRoomForIsNot) {
  // In 80 points header, blank lines, captions and the four free lines take 1,408 + 7 x 1,760 = 13,728: less than the
  // sheet, more than the margins leave. In 100 they take 17,160.
  General.FontSize = 80;
  EXPECT_EQ(Outcome(ListingStyle::FullPathList), L"margins: Left: 1; Top: 1; Right: 1; Bottom: 1 in");
  General.FontSize = 100;
  EXPECT_EQ(Outcome(ListingStyle::FullPathList), L"font: Courier New, 100");
  // Too wide, but not too high: five columns of 24 points take 13,824 of 12,000.
  General.FontSize = 24;
  EXPECT_EQ(Outcome(ListingStyle::NoSubdirectories), L"font: Courier New, 24");
  EXPECT_TRUE(Prints(ListingStyle::FullPathList));
}

TEST_F(Room, TheHeadersOwnFontIsNamedWhenItIsToBlame) {
  General.FontNameHF = L"Arial";
  General.FontSizeHF = 0;
  EXPECT_TRUE(Prints(ListingStyle::FullPathList)) << "it is not in use";
  General.Font80HF = false;
  for (const std::int32_t size : {0, -5, 801, std::numeric_limits<std::int32_t>::max(), 700}) {
    General.FontSizeHF = size;
    EXPECT_EQ(Outcome(ListingStyle::FullPathList), L"font: Arial, " + std::to_wstring(size));
  }
  General.FontSizeHF = 14;
  EXPECT_TRUE(Prints(ListingStyle::FullPathList));
}

TEST_F(Room, TheHeadersLargerFontIsNotToBlameForWhatItDoesNotTake) {
  General.FontNameHF = L"Arial";
  General.FontSizeHF = 30;
  General.Font80HF = false;
  General.FontSize = 24;  // five columns take 13,824 of 12,000, whatever the header's font
  EXPECT_EQ(Outcome(ListingStyle::NoSubdirectories), L"font: Courier New, 24");
  General.FontSize = 100;
  for (const std::int32_t noLarger : {99, 100}) {
    General.FontSizeHF = noLarger;
    EXPECT_EQ(Outcome(ListingStyle::FullPathList), L"font: Courier New, 100");
  }
  General.FontSizeHF = 300;
  General.Font80HF = true;  // then it is not in use
  EXPECT_EQ(Outcome(ListingStyle::FullPathList), L"font: Courier New, 100");
}

TEST_F(Room, NoDeviceIsAskedForAFontBeyondItsSheet) {
  printer.Area = {12000, 15000, 0, 400, 0, 600};  // 16,000 twips with the borders: 800 points
  const auto selects = [this] {
    try {
      MakePage(platform::OpenPageSurface({}), General);
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Action(), FailedAction::UseFont);
      return false;
    }
    return true;
  };
  for (const bool header : {false, true}) {
    General.Font80HF = !header;
    for (const int points : {0, 1, 800, 801}) {
      General.FontSize = static_cast<std::int16_t>(header ? 10 : points);
      General.FontSizeHF = header ? points : 10;
      EXPECT_EQ(selects(), points == 1 || points == 800) << points;
    }
  }
}

struct MarginCase {
  float Left, Top, Right, Bottom;
  bool Prints;
};

TEST_F(Room, MarginsBelowZeroAreKeptWhileALineBeginsOnTheSheet) {
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();
  for (const MarginCase& row : {MarginCase{0, 0, 0, 0, true},
                                {1, 1, -1, 1, true},
                                {1, 1, 1, -1, true},
                                {1, -0.5F, 1, 1, true},  // the header is lost, the first line is not: 116 twips down
                                {1, -0.6F, 1, 1, false},
                                {-0.1F, 1, 1, 1, false},  // the first letter of every line
                                {9, 1, -9, 1, false},     // what is right of the sheet gives no room
                                {1, 12, 1, -12, false},
                                {1, 1, kNoNumber, 1, false},
                                {1, 1, 1, kNoNumber, false},
                                {kInfinity, 1, -kInfinity, 1, false}}) {
    General.MarginLeft = row.Left;
    General.MarginTop = row.Top;
    General.MarginRight = row.Right;
    General.MarginBottom = row.Bottom;
    EXPECT_EQ(Prints(ListingStyle::FullPathList), row.Prints)
        << row.Left << " " << row.Top << " " << row.Right << " " << row.Bottom;
  }
}

TEST_F(Room, TheSheetIsThatOfTheOrientation) {
  General.MarginTop = 8;  // 11,520 twips of the 16,000, but of 12,000 across they leave 480
  EXPECT_TRUE(Prints(ListingStyle::FullPathList));
  General.Portrait = false;
  EXPECT_FALSE(Prints(ListingStyle::FullPathList));
}

}  // namespace
}  // namespace folivant
