#include "ui/Binding.h"

#include <gtest/gtest.h>

#include "fakes/FakeControls.h"
#include "res/Controls.h"

namespace folivant {
namespace {

using fakes::FakeControls;

enum class Colour { None, Red, Green, Blue };
struct Inner {
  bool Flag = false;
};
struct Record {
  std::wstring Name = {};
  std::int32_t Number = 0;
  float Fraction = 0;
  folivant::Inner Inner = {};
  folivant::Colour Colour = Colour::None;
  bool Up = false;
  std::int32_t Code = 0;
  std::int32_t Position = 0;
  DateValue Day = 0;
};

enum Control { kName = 101, kNumber, kFraction, kFlag, kRed, kGreen, kBlue, kUp, kDown, kCode, kPosition, kItem, kDay };

constexpr ListItem<std::int32_t> kCodes[] = {{TextId::QualityLow, -1}, {TextId::QualityHigh, -2}};
constexpr Binding<Record> kTable[] = {
    {kName, TextId::Viewer, Edits<&Record::Name>},
    {kNumber, TextId::Copies, EditsNumber<&Record::Number, WholeRange{1, 9}>},
    {kFraction, kNoCaption, Edits<&Record::Fraction>},
    {kFlag, kNoCaption, Edits<&Record::Inner, &Inner::Flag>},
    {kRed, TextId::Ok, Chooses<&Record::Colour, Colour::Red>},
    {kGreen, kNoCaption, Chooses<&Record::Colour, Colour::Green>},
    {kBlue, kNoCaption, Chooses<&Record::Colour, Colour::Blue>},
    {kNoControl, kNoCaption, Chooses<&Record::Colour, Colour::None>},
    {kUp, kNoCaption, Chooses<&Record::Up, true>},
    {kDown, kNoCaption, Chooses<&Record::Up, false>},
    {kCode, kNoCaption, Lists<&Record::Code, kCodes>},
    {kDay, kNoCaption, EditsDay<&Record::Day>},
};

Messages SomeTexts() {
  Messages texts;
  texts.Set(static_cast<std::size_t>(TextId::Viewer), L"&Viewer");
  texts.Set(static_cast<std::size_t>(TextId::Copies), L"&Copies:");
  texts.Set(static_cast<std::size_t>(TextId::Ok), L"Red");
  texts.Set(static_cast<std::size_t>(TextId::QualityLow), L"Low");
  texts.Set(static_cast<std::size_t>(TextId::QualityHigh), L"High");
  texts.Set(static_cast<std::size_t>(TextId::NotANumber), L"Number for %1!");
  texts.Set(static_cast<std::size_t>(TextId::NumberOutOfRange), L"%1: %2 to %3");
  return texts;
}

/// What the controls show for `record`.
FakeControls Filled(const Record& record) {
  FakeControls controls;
  SetTexts<Record>(controls, kTable, SomeTexts());
  Fill<Record>(controls, kTable, record);
  return controls;
}

Record ReadBack(const FakeControls& controls) {
  Record record;
  Read<Record>(controls, kTable, record);
  return record;
}

Record Valid() {
  return {.Number = 1};
}

TEST(Binding, ACaptionGoesToTheLabelWhereThereIsOne) {
  FakeControls controls;
  controls.Labels = {LABEL_OF(kName)};
  SetTexts<Record>(controls, kTable, SomeTexts());
  EXPECT_EQ(controls.TextOf(LABEL_OF(kName)), L"&Viewer");
  EXPECT_EQ(controls.TextOf(kName), L"") << "a text box that was not filled yet";
  EXPECT_EQ(controls.TextOf(kRed), L"Red");
}

TEST(Binding, TextsAndMarksComeBack) {
  const FakeControls controls =
      Filled({.Name = L"a b", .Number = 7, .Fraction = 2.5F, .Inner = {.Flag = true}, .Up = true});
  EXPECT_EQ(controls.TextOf(kNumber), L"7");
  EXPECT_TRUE(controls.Checked(kFlag));
  const Record record = ReadBack(controls);
  EXPECT_EQ(record.Name, L"a b");
  EXPECT_EQ(record.Number, 7);
  EXPECT_EQ(record.Fraction, 2.5F);
  EXPECT_TRUE(record.Inner.Flag);
}

TEST(Binding, OneButtonOfAGroupIsSetAndReadAsItsValue) {
  Record record = Valid();
  record.Colour = Colour::Green;
  FakeControls controls = Filled(record);
  EXPECT_EQ(controls.CheckedButtons, (std::set<int>{kGreen, kDown}));
  EXPECT_EQ(ReadBack(controls).Colour, Colour::Green);
  ChooseButton<Record>(controls, kTable, kBlue);
  EXPECT_EQ(controls.LastGroup, (std::vector<int>{kRed, kGreen, kBlue}));
  EXPECT_EQ(controls.CheckedButtons, (std::set<int>{kBlue, kDown})) << "the other group stays as it is";
  EXPECT_EQ(ReadBack(controls).Colour, Colour::Blue);
}

TEST(Binding, AButtonAloneIsAGroup) {
  constexpr Binding<Colour> kButton[] = {{kRed, kNoCaption, Means<Colour::Red>}};
  FakeControls controls;
  Fill<Colour>(controls, kButton, Colour::Red);
  EXPECT_EQ(controls.CheckedButtons, std::set<int>{kRed});
  Colour colour = Colour::None;
  Read<Colour>(controls, kButton, colour);
  EXPECT_EQ(colour, Colour::Red);
}

TEST(Binding, AGroupWithoutAButtonForAValueSetsNoneAndIsReadAsItsLastRow) {
  Record record = Valid();
  record.Up = true;
  record.Colour = static_cast<Colour>(9);
  FakeControls controls = Filled(record);
  EXPECT_EQ(controls.CheckedButtons, std::set<int>{kUp});
  EXPECT_EQ(ReadBack(controls).Colour, Colour::None);
  controls.CheckedButtons.clear();
  EXPECT_FALSE(ReadBack(controls).Up);
}

TEST(Binding, OfSeveralSetButtonsTheFirstRowWins) {
  FakeControls controls = Filled(Valid());
  controls.CheckedButtons = {kRed, kBlue, kUp, kDown};
  EXPECT_EQ(ReadBack(controls).Colour, Colour::Red);
  EXPECT_TRUE(ReadBack(controls).Up);
}

TEST(Binding, AListShowsItsItemsAndReadsTheirMeaning) {
  Record record = Valid();
  record.Code = -2;
  FakeControls controls = Filled(record);
  EXPECT_EQ(controls.Items[kCode], (std::vector<std::wstring>{L"Low", L"High"}));
  EXPECT_EQ(controls.Selected(kCode), 1);
  EXPECT_EQ(ReadBack(controls).Code, -2);
  record.Code = 600;
  controls = Filled(record);
  EXPECT_EQ(controls.Selected(kCode), platform::kNothingSelected);
  EXPECT_EQ(ReadBack(controls).Code, 0);
}

TEST(Binding, ADayIsReadAsItsMidnight) {
  Record record = Valid();
  record.Day = ToDateValue({2001, 2, 3, 12, 30, 0});
  FakeControls controls = Filled(record);
  controls.Days[kDay].Hour = 23;
  EXPECT_EQ(ReadBack(controls).Day, ToDateValue({2001, 2, 3}));
}

TEST(Binding, AListOfTheDialogsOwnIsReadByPositionOrByText) {
  constexpr Binding<Record> kOwnLists[] = {{kPosition, kNoCaption, EditsPosition<&Record::Position>},
                                           {kItem, kNoCaption, EditsItem<&Record::Name>}};
  FakeControls controls;
  controls.Items[kPosition] = {L"x", L"y"};
  controls.Items[kItem] = {L"Laser", L"Ink"};
  Record record;
  for (const auto& [name, position] : {std::pair(L"Ink", 1), {L"Laser", 0}}) {
    Fill<Record>(controls, kOwnLists, {.Name = name, .Position = position});
    EXPECT_EQ(controls.Selected(kItem), position);
    Read<Record>(controls, kOwnLists, record);
    EXPECT_EQ(record.Name, name);
    EXPECT_EQ(record.Position, position);
  }
  Fill<Record>(controls, kOwnLists, {.Name = L"ink", .Position = 2});
  Read<Record>(controls, kOwnLists, record);
  EXPECT_EQ(record.Name, L"") << "names are compared letter by letter";
  EXPECT_EQ(record.Position, -1);
}

TEST(Binding, AnOffsetMovesTheWholeTable) {
  constexpr Binding<Colour> kButtons[] = {{kRed, kNoCaption, Means<Colour::Red>},
                                          {kGreen, kNoCaption, Means<Colour::Green>}};
  FakeControls controls;
  Fill<Colour>(controls, kButtons, Colour::Green, 1000);
  EXPECT_EQ(controls.CheckedButtons, std::set<int>{kGreen + 1000});
  Colour colour = Colour::None;
  controls.CheckedButtons = {kRed + 1000, kGreen};
  Read<Colour>(controls, kButtons, colour, 1000);
  EXPECT_EQ(colour, Colour::Red);

  constexpr Binding<Record> kTexts[] = {{kName, kNoCaption, Edits<&Record::Name>}};
  Record record;
  Fill<Record>(controls, kTexts, {.Name = L"shown"}, 1000);
  EXPECT_EQ(controls.TextOf(kName + 1000), L"shown");
  controls.SetText(kName + 1000, L"moved");
  Read<Record>(controls, kTexts, record, 1000);
  EXPECT_EQ(record.Name, L"moved");
}

std::wstring ProblemWith(const std::wstring& typed) {
  FakeControls controls;
  controls.Labels = {LABEL_OF(kNumber)};
  SetTexts<Record>(controls, kTable, SomeTexts());
  Fill<Record>(controls, kTable, Valid());
  controls.SetText(kNumber, typed);
  try {
    ReadBack(controls);
  } catch (const FieldError& error) {
    EXPECT_EQ(error.Control(), kNumber);
    return ProblemOf(controls, error, SomeTexts());
  }
  return {};
}

TEST(Binding, AFieldIsCalledByItsCaptionWithoutTheMarks) {
  FakeControls controls;
  const auto nameFor = [&](const std::wstring& caption) {
    controls.SetText(kName, caption);
    return FieldNameOf(controls, kName);
  };
  EXPECT_EQ(nameFor(L"&Size:"), L"Size");
  EXPECT_EQ(nameFor(L"Max. subdirectory &level:"), L"Max. subdirectory level");
  EXPECT_EQ(nameFor(L"Date format :"), L"Date format");
  EXPECT_EQ(nameFor(L"&Taille\u00A0:"), L"Taille");
  EXPECT_EQ(nameFor(L":"), L"");
}

TEST(Binding, WhatDoesNotConvertIsToldByTheNameOfItsField) {
  EXPECT_EQ(ProblemWith(L"9"), L"");
  EXPECT_EQ(ProblemWith(L"many"), L"Number for Copies!");
  EXPECT_EQ(ProblemWith(L"10"), L"Copies: 1 to 9");
}

}  // namespace
}  // namespace folivant
