#include "scan/FormatControls.h"

#include <gtest/gtest.h>

#include "fakes/DialogTable.h"
#include "fakes/FakeControls.h"
#include "scan/ColumnsControls.h"

namespace folivant {
namespace {

using fakes::FakeControls;
using fakes::With;

ListingStyle ReadBack(const FakeControls& controls) {
  ListingFormat format;
  Read<ListingFormat>(controls, kStyleControls, format);
  return format.ListingStyle;
}

TEST(FormatControls, NameEachControlOnce) {
  fakes::ExpectNoControlTwice(kStyleControls);
  fakes::ExpectNoControlTwice(kFormatControls);
  fakes::ExpectNoControlTwice(kColumnsControls);
}

TEST(FormatControls, EveryStyleHasItsButtonAndComesBack) {
  const std::pair<ListingStyle, int> styles[] = {
      {ListingStyle::NoSubdirectories, optNoSub}, {ListingStyle::IncludeSubdirectories, optSub},
      {ListingStyle::TreeStyle, optSubTree},      {ListingStyle::DirectoryView, optTree},
      {ListingStyle::FullPathList, optFull},      {ListingStyle::FindWindow, optFind}};
  for (const auto& [style, button] : styles) {
    FakeControls controls;
    Fill<ListingFormat>(controls, kStyleControls, With(&ListingFormat::ListingStyle, style));
    EXPECT_EQ(controls.CheckedButtons, std::set<int>{button});
    EXPECT_EQ(ReadBack(controls), style);
  }
}

TEST(FormatControls, WithoutASetButtonTheStyleIsTheFullPathList) {
  FakeControls controls;
  Fill<ListingFormat>(controls, kStyleControls, With(&ListingFormat::ListingStyle, static_cast<ListingStyle>(30'000)));
  EXPECT_EQ(controls.CheckedButtons, std::set<int>());
  EXPECT_EQ(ReadBack(controls), ListingStyle::FullPathList);
}

TEST(PreviewPictureOf, CountsFrom200AndHasNoneForThePathList) {
  EXPECT_EQ(PreviewPictureOf(ListingStyle::NoSubdirectories), 200);
  EXPECT_EQ(PreviewPictureOf(ListingStyle::DirectoryView), 203);
  EXPECT_EQ(PreviewPictureOf(ListingStyle::FindWindow), 205);
  EXPECT_EQ(PreviewPictureOf(ListingStyle::PathListFile), std::nullopt);
  EXPECT_EQ(PreviewPictureOf(static_cast<ListingStyle>(-1)), std::nullopt);
}

TEST(ColumnsControls, EachBoxSwitchesItsColumn) {
  const auto columnsOf = [](int box) {
    FakeControls controls;
    controls.SetText(txtLevel, L"3");
    controls.SetChecked(box, true);
    ListingFormat format;
    Read<ListingFormat>(controls, kColumnsControls, format);
    EXPECT_EQ(format.SubLevel, 3);
    const FileColumns& files = format.Files;
    const DirectoryColumns& directories = format.Directories;
    std::string on;
    for (const bool column : {files.Name, files.DosName, files.Size, files.Date, files.Attributes, directories.Files,
                              directories.Size, directories.TotalFiles, directories.TotalSize}) {
      on += column ? '1' : '0';
    }
    return on;
  };
  EXPECT_EQ(columnsOf(chkName), "100000000");
  EXPECT_EQ(columnsOf(chkDOS), "010000000");
  EXPECT_EQ(columnsOf(chkSize), "001000000");
  EXPECT_EQ(columnsOf(chkTime), "000100000");
  EXPECT_EQ(columnsOf(chkAttr), "000010000");
  EXPECT_EQ(columnsOf(chkTFiles), "000001000");
  EXPECT_EQ(columnsOf(chkTSize), "000000100");
  EXPECT_EQ(columnsOf(chkTTFiles), "000000010");
  EXPECT_EQ(columnsOf(chkTTSize), "000000001");
}

}  // namespace
}  // namespace folivant
