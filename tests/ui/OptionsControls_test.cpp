#include "ui/OptionsControls.h"

#include <gtest/gtest.h>

#include "fakes/DialogTable.h"
#include "fakes/FakeControls.h"

namespace folivant {
namespace {

using fakes::FakeControls;
using fakes::With;

FakeControls Filled(const GeneralSettings& general) {
  FakeControls controls;
  controls.Items[cmbDate] = {L"a", L"b", L"c"};
  Fill<GeneralSettings>(controls, kOptionsControls, general);
  return controls;
}

GeneralSettings ReadBack(const FakeControls& controls) {
  GeneralSettings general;
  Read<GeneralSettings>(controls, kOptionsControls, general);
  return general;
}

TEST(OptionsControls, NameEachControlOnce) {
  fakes::ExpectNoControlTwice(kOptionsControls);
}

TEST(OptionsControls, UnitAndOrientationHaveAButtonForEachValue) {
  const auto buttons = [](bool inches, bool portrait) {
    GeneralSettings general = With(&GeneralSettings::FollowLinks, false);  // the one box that is checked by default
    general.Inches = inches;
    general.Portrait = portrait;
    return Filled(general).CheckedButtons;
  };
  EXPECT_EQ(buttons(true, false), (std::set<int>{optInches, optLand}));
  EXPECT_EQ(buttons(false, true), (std::set<int>{optMilimeter, optPort}));
  EXPECT_TRUE(ReadBack(Filled(With(&GeneralSettings::Inches, true))).Inches);
  EXPECT_FALSE(ReadBack(Filled(With(&GeneralSettings::Inches, false))).Inches);
  EXPECT_TRUE(ReadBack(Filled(With(&GeneralSettings::Portrait, true))).Portrait);
  EXPECT_FALSE(ReadBack(Filled(With(&GeneralSettings::Portrait, false))).Portrait);
}

TEST(OptionsControls, ADateFormatThatIsNotInTheListIsReadAsNone) {
  EXPECT_EQ(ReadBack(Filled(With(&GeneralSettings::DateFormat, 2))).DateFormat, 2);
  EXPECT_EQ(ReadBack(Filled(With(&GeneralSettings::DateFormat, 3))).DateFormat, -1);
}

TEST(OptionsControls, OfWidthAndHeightTheBeginningIsRead) {
  FakeControls controls = Filled(With(&GeneralSettings::TextWidth, 80));
  EXPECT_EQ(controls.TextOf(txtWidth), L"80");
  controls.SetText(txtWidth, L"132 wide");
  controls.SetText(txtHeight, L"tall");
  EXPECT_EQ(ReadBack(controls).TextWidth, 132);
  EXPECT_EQ(ReadBack(controls).TextHeight, 0);
  controls.SetText(txtWidth, L"10000");
  EXPECT_THROW(ReadBack(controls), FieldError);
}

TEST(OptionsControls, EachFieldOfExactRecordsHasACheckBoxOfItsOwn) {
  const std::pair<int, bool GeneralSettings::*> boxes[] = {{chkOwner, &GeneralSettings::RecordOwner},
                                                           {chkLinks, &GeneralSettings::RecordLinks},
                                                           {chkSha256, &GeneralSettings::RecordSha256},
                                                           {chkApostrophe, &GeneralSettings::CsvApostrophe}};
  for (const auto& [box, member] : boxes) {
    const FakeControls controls = Filled(With(member, true));
    EXPECT_TRUE(controls.Checked(box)) << box;
    const GeneralSettings read = ReadBack(controls);
    for (const auto& [other, field] : boxes) {
      EXPECT_EQ(read.*field, other == box) << box << " and " << other;
    }
  }
}

TEST(OptionsControls, LinksAndNumbersInNamesHaveACheckBoxEach) {
  const GeneralSettings defaults = ReadBack(Filled(GeneralSettings()));
  EXPECT_TRUE(defaults.FollowLinks);
  EXPECT_FALSE(defaults.NaturalOrder);
  const FakeControls listed = Filled(With(&GeneralSettings::FollowLinks, false));
  EXPECT_FALSE(listed.Checked(chkFollowLinks));
  EXPECT_FALSE(ReadBack(listed).FollowLinks);
  EXPECT_FALSE(ReadBack(listed).NaturalOrder);
  const FakeControls ordered = Filled(With(&GeneralSettings::NaturalOrder, true));
  EXPECT_TRUE(ordered.Checked(chkNaturalOrder));
  EXPECT_TRUE(ReadBack(ordered).NaturalOrder);
  EXPECT_TRUE(ReadBack(ordered).FollowLinks);
}

TEST(OptionsControls, CopiesAreANumberOf16Bits) {
  FakeControls controls;
  PrinterSettings printer;
  controls.SetText(txtCopies, L"32767");
  Read<PrinterSettings>(controls, kCopiesControls, printer);
  EXPECT_EQ(printer.PrinterCopies, 32'767);
  controls.SetText(txtCopies, L"32768");
  EXPECT_THROW(Read<PrinterSettings>(controls, kCopiesControls, printer), FieldError);
}

}  // namespace
}  // namespace folivant
