#include "scan/FilterControls.h"

#include <gtest/gtest.h>

#include "fakes/DialogTable.h"
#include "fakes/FakeControls.h"

namespace folivant {
namespace {

using fakes::FakeControls;
using fakes::With;

FakeControls Filled(const FilterSettings& filter) {
  FakeControls controls;
  SetTexts<FilterSettings>(controls, kFilterControls, Messages());
  Fill<FilterSettings>(controls, kFilterControls, filter);
  return controls;
}

FilterSettings ReadBack(const FakeControls& controls) {
  FilterSettings filter;
  Read<FilterSettings>(controls, kFilterControls, filter);
  return filter;
}

TEST(FilterControls, NameEachControlOnce) {
  fakes::ExpectNoControlTwice(kFilterControls);
}

TEST(FilterControls, EveryOrderHasItsButtonAndComesBack) {
  const std::pair<OrderBy, int> orders[] = {{OrderBy::Name, optName},
                                            {OrderBy::DosName, optDOS},
                                            {OrderBy::Size, optSize},
                                            {OrderBy::Date, optDate},
                                            {OrderBy::Extension, optExt}};
  for (const auto& [order, button] : orders) {
    const FakeControls controls = Filled(With(&FilterSettings::OrderBy, order, With(&FilterSettings::OrderAZ, false)));
    EXPECT_EQ(controls.CheckedButtons, (std::set<int>{button, optZA}));
    EXPECT_EQ(ReadBack(controls).OrderBy, order);
    EXPECT_FALSE(ReadBack(controls).OrderAZ);
  }
}

TEST(FilterControls, AnOrderWithoutAMeaningSetsNoButtonAndIsReadAsNone) {
  const FakeControls controls = Filled(With(&FilterSettings::OrderBy, static_cast<OrderBy>(9)));
  EXPECT_EQ(controls.CheckedButtons, std::set<int>{optAZ});
  EXPECT_EQ(ReadBack(controls).OrderBy, OrderBy::None);
  EXPECT_TRUE(ReadBack(controls).OrderAZ);
}

TEST(FilterControls, ALimitIsAtLeastOrAtMost) {
  EXPECT_EQ(Filled(With(&FilterSettings::SizeMin, true)).Selected(cmbSize), 0);
  EXPECT_EQ(Filled(With(&FilterSettings::SizeMin, false)).Selected(cmbSize), 1);
  EXPECT_TRUE(ReadBack(Filled(With(&FilterSettings::SizeMin, true))).SizeMin);
  EXPECT_FALSE(ReadBack(Filled(With(&FilterSettings::SizeMin, false))).SizeMin);
}

TEST(FilterControls, SwitchesTextsAndDaysComeBack) {
  FilterSettings filter;
  filter.NameOn = filter.DateOn = true;
  filter.FilterName = L"*.txt";
  filter.FilterSize = 12;
  filter.DateMin = ToDateValue({2001, 2, 3});
  filter.DateMax = ToDateValue({2004, 5, 6});
  const FilterSettings back = ReadBack(Filled(filter));
  EXPECT_TRUE(back.NameOn);
  EXPECT_FALSE(back.SizeOn);
  EXPECT_TRUE(back.DateOn);
  EXPECT_FALSE(back.AttrOn);
  EXPECT_EQ(back.FilterName, L"*.txt");
  EXPECT_EQ(back.FilterSize, 12);
  EXPECT_EQ(back.DateMin, filter.DateMin);
  EXPECT_EQ(back.DateMax, filter.DateMax);
}

TEST(AttributeControls, EveryChoiceHasItsButtonInTheRowOfItsAttribute) {
  const std::pair<AttributeChoice, int> choices[] = {
      {AttributeChoice::MustNotHave, chkN}, {AttributeChoice::MustHave, chkY}, {AttributeChoice::DoNotCare, chkX}};
  for (const auto& [choice, button] : choices) {
    FakeControls controls;
    Fill<AttributeChoice>(controls, kAttributeControls, choice, kAttrSystem);
    EXPECT_EQ(controls.CheckedButtons, std::set<int>{button + 3});
    AttributeChoice back{};
    Read<AttributeChoice>(controls, kAttributeControls, back, kAttrSystem);
    EXPECT_EQ(back, choice);
  }
}

TEST(AttributeControls, OfSeveralDoNotCareWinsAndThenMustHave) {
  const auto read = [](std::set<int> set) {
    FakeControls controls;
    controls.CheckedButtons = std::move(set);
    AttributeChoice choice = AttributeChoice::DoNotCare;
    Read<AttributeChoice>(controls, kAttributeControls, choice);
    return choice;
  };
  EXPECT_EQ(read({chkY, chkX, chkN}), AttributeChoice::DoNotCare);
  EXPECT_EQ(read({chkY, chkN}), AttributeChoice::MustHave);
  EXPECT_EQ(read({}), AttributeChoice::MustNotHave);
}

}  // namespace
}  // namespace folivant
