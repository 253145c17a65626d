// Column positions in a font whose characters are 10 wide and whose blanks are 1, so that a template gives itself away:
// attributes 50, date 153, size 71 (and two blanks 2), MS-DOS name 122.
#include "output/PageColumns.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace folivant {
namespace {

class Tens final : public TextMeasure {
 public:
  double WidthOf(std::wstring_view text) const override {
    const auto blanks = std::count(text.begin(), text.end(), L' ');
    return static_cast<double>(text.size()) * 10 - static_cast<double>(blanks) * 9;
  }
};

struct EntryCase {
  FileColumns Shown;
  EntryPositions At;
};

TEST(PageColumns, EntryColumnsTakeNoRoomWhenTheyAreOff) {
  const EntryCase cases[] = {
      // name, MS-DOS name, size, date, attributes       name width, MS-DOS name, size end, date, attributes
      {{true, true, true, true, true}, {600, 602, 795, 797, 950}},
      {{true, false, true, true, true}, {722, 724, 795, 797, 950}},
      {{true, true, false, true, true}, {673, 675, 797, 797, 950}},
      {{true, true, true, false, true}, {753, 755, 948, 950, 950}},
      {{true, true, true, true, false}, {650, 652, 845, 847, 1000}},
      {{true, false, false, false, false}, {998, 1000, 1000, 1000, 1000}},
      {{false, true, true, true, true}, {600, 602, 795, 797, 950}},
  };
  for (const EntryCase& row : cases) {
    const EntryPositions at = PlaceEntryColumns(row.Shown, 1000, Tens());
    EXPECT_EQ(at.NameWidth, row.At.NameWidth);
    EXPECT_EQ(at.DosName, row.At.DosName);
    EXPECT_EQ(at.SizeEnd, row.At.SizeEnd);
    EXPECT_EQ(at.Date, row.At.Date);
    EXPECT_EQ(at.Attributes, row.At.Attributes);
  }
}

struct DirectoryCase {
  DirectoryColumns Shown;
  double NameWidth;
  std::array<double, 4> Ends;
};

TEST(PageColumns, DirectoryColumnsTakeNoRoomWhenTheyAreOff) {
  // A size takes 73, a count 72.
  const DirectoryCase cases[] = {
      {{true, true, true, true}, 710, {782, 855, 927, 1000}},   {{false, true, true, true}, 782, {782, 855, 927, 1000}},
      {{true, false, true, true}, 783, {855, 855, 927, 1000}},  {{true, true, false, true}, 782, {854, 927, 927, 1000}},
      {{true, true, true, false}, 783, {855, 928, 1000, 1000}}, {{}, 1000, {1000, 1000, 1000, 1000}},
  };
  for (const DirectoryCase& row : cases) {
    const DirectoryPositions at = PlaceDirectoryColumns(row.Shown, 1000, Tens());
    EXPECT_EQ(at.NameWidth, row.NameWidth);
    EXPECT_EQ(at.Ends, row.Ends);
  }
}

TEST(PageColumns, FileListColumnsContainTheLineOriginOnPurpose) {
  // The date takes 151, the blanks before it 2, "    00.000 kb" 85.
  const FoundPositions at = PlaceFoundColumns(100, 1000, Tens());
  EXPECT_EQ(at.Date, 849);
  EXPECT_EQ(at.SizeEnd, 847);
  EXPECT_EQ(at.NameWidth, (847 - 85 - 100) / 3.0);
  EXPECT_EQ(at.Folder, 2 + 100 + at.NameWidth);
  EXPECT_EQ(at.FolderWidth, 2 * at.NameWidth);
}

}  // namespace
}  // namespace folivant
