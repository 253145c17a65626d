#include "scan/FilterChoices.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

TEST(AttributeChoiceOf, TakesTheLastOneSet) {
  EXPECT_EQ(AttributeChoiceOf(true, false), AttributeChoice::MustHave);
  EXPECT_EQ(AttributeChoiceOf(false, true), AttributeChoice::DoNotCare);
  EXPECT_EQ(AttributeChoiceOf(true, true), AttributeChoice::DoNotCare);
  EXPECT_EQ(AttributeChoiceOf(false, false), AttributeChoice::MustNotHave);
}

TEST(OrderByOf, NamesEachButton) {
  OrderButtons name, dosName, size, date, extension;
  name.Name = dosName.DosName = size.Size = date.Date = extension.Extension = true;
  EXPECT_EQ(OrderByOf(name), OrderBy::Name);
  EXPECT_EQ(OrderByOf(dosName), OrderBy::DosName);
  EXPECT_EQ(OrderByOf(size), OrderBy::Size);
  EXPECT_EQ(OrderByOf(date), OrderBy::Date);
  EXPECT_EQ(OrderByOf(extension), OrderBy::Extension);
  EXPECT_EQ(OrderByOf({}), OrderBy::None);
}

}  // namespace
}  // namespace folivant
