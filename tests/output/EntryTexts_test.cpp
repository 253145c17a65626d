#include "output/EntryTexts.h"

#include <gtest/gtest.h>

#include <optional>

#include "fakes/FakePlatform.h"
#include "fakes/RunRecords.h"
#include "output/TestTexts.h"

namespace folivant {
namespace {

class EntryTextsTest : public testing::Test, protected fakes::RunRecords {
 protected:
  EntryTextsTest() {
    RunRecords::Texts = TestTexts();
    DatePattern = L"dd/mm/yyyy";
    Shown.emplace(Run);
    Entry.Name = L"LONG NAME.TXT";
    Entry.AlternateName = L"LONGNA~1.TXT";
    Entry.Attributes = platform::kArchive;
    Entry.Size = 12'345;
    Entry.ShownWrite = fakes::FileTime({1999, 9, 5, 7, 8, 9});
  }
  using Append = void (EntryTexts::*)(const FileRecord&, std::wstring&);
  std::wstring TextOf(Append append) {
    std::wstring text = L"before ";
    ((*Shown).*append)(Entry, text);
    EXPECT_TRUE(text.starts_with(L"before ")) << "what the line holds stays";
    return text.substr(7);
  }

  FileRecord Entry;
  ListingRun Run = MakeRun();
  std::optional<EntryTexts> Shown;
};

TEST_F(EntryTextsTest, ShowEveryField) {
  EXPECT_EQ(TextOf(&EntryTexts::AppendName), L"Long name.txt");
  EXPECT_EQ(TextOf(&EntryTexts::AppendDosName), L"longna~1.txt");
  EXPECT_EQ(TextOf(&EntryTexts::AppendSize), L"12 kb");
  EXPECT_EQ(TextOf(&EntryTexts::AppendDate), L"05/09/1999 07:08");
  EXPECT_EQ(TextOf(&EntryTexts::AppendAttributes), L" a   ");
}

TEST_F(EntryTextsTest, WithoutAnAlternateNameTheDosNameIsTheNameInSmallLetters) {
  Entry.Name = L"README.TXT";
  Entry.AlternateName = {};
  EXPECT_EQ(TextOf(&EntryTexts::AppendDosName), L"readme.txt");
}

TEST_F(EntryTextsTest, TheFirstDayOfAllHasItsText) {
  Entry.ShownWrite = 0;
  EXPECT_EQ(TextOf(&EntryTexts::AppendDate), L"01/01/1601 00:00");
}

TEST_F(EntryTextsTest, ADirectoryHasItsOwnSizeText) {
  Entry.Attributes = platform::kDirectory;
  EXPECT_EQ(TextOf(&EntryTexts::AppendSize), L"<DIR>   ");
}

TEST_F(EntryTextsTest, ALongNameInOneCaseIsCutTo256Characters) {
  const std::wstring name(300, L'A');
  Entry.Name = name;
  EXPECT_EQ(TextOf(&EntryTexts::AppendName), L"A" + std::wstring(255, L'a'));
}

TEST_F(EntryTextsTest, AttributesStandInAFixedOrder) {
  const std::pair<std::uint32_t, std::wstring> rows[] = {
      {0, L"     "},
      {platform::kDirectory, L"d    "},
      {platform::kArchive, L" a   "},
      {platform::kReadOnly, L"  r  "},
      {platform::kSystem, L"   s "},
      {platform::kHidden, L"    h"},
      {platform::kDirectory | platform::kArchive | platform::kReadOnly | platform::kSystem | platform::kHidden,
       L"darsh"},
      {platform::kLink | 2048, L"     "},
  };
  for (const auto& [bits, expected] : rows) {
    Entry.Attributes = bits;
    EXPECT_EQ(TextOf(&EntryTexts::AppendAttributes), expected);
  }
}

TEST_F(EntryTextsTest, DatesDoNotStick) {
  const std::pair<platform::CalendarTime, std::wstring> rows[] = {
      {{1999, 9, 5, 7, 8, 9}, L"05/09/1999 07:08"},   {{1999, 9, 5, 7, 8, 59}, L"05/09/1999 07:08"},
      {{1999, 9, 5, 23, 59, 0}, L"05/09/1999 23:59"}, {{1999, 9, 6, 0, 0, 0}, L"06/09/1999 00:00"},
      {{1999, 11, 8, 0, 0, 0}, L"08/11/1999 00:00"},  {{1999, 9, 5, 0, 1, 0}, L"05/09/1999 00:01"},
      {{1601, 1, 1, 0, 0, 0}, L"01/01/1601 00:00"},   {{9999, 12, 31, 23, 59, 59}, L"31/12/9999 23:59"}};
  for (const auto& [time, expected] : rows) {
    Entry.ShownWrite = fakes::FileTime(time);
    EXPECT_EQ(TextOf(&EntryTexts::AppendDate), expected);
  }
}

TEST_F(EntryTextsTest, DateSeparatorsAreTheUsers) {
  fakes::Fake().Locale.DateSeparator = L".";
  EXPECT_EQ(TextOf(&EntryTexts::AppendDate), L"05.09.1999 07:08");
}

}  // namespace
}  // namespace folivant
