#include "ui/ErrorText.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"

namespace folivant {
namespace {

Messages English() {
  Messages texts;
  for (std::size_t number = 160; number <= 168; ++number) {
    texts.Set(number, std::to_wstring(number) + L" \"%1\": %2 (%3)");
  }
  return texts;
}

TEST(ErrorText, NamesActionObjectAndTheSystemsWords) {
  Messages texts;
  texts.Set(162, L"Cannot write \"%1\": %2 (%3)");
  const RuntimeError error(FailedAction::WriteFile, L"D:\\list.txt", L"The disk is full. \r\n", 112);
  EXPECT_EQ(ErrorText(error, texts), L"Cannot write \"D:\\list.txt\": The disk is full. (112)");
}

TEST(ErrorText, EndsWithTheObjectWhenTheSystemWasNotInvolved) {
  Messages texts;
  texts.Set(161, L"Cannot read \"%1\": %2 (%3)");
  EXPECT_EQ(ErrorText(RuntimeError(FailedAction::ReadFile, L"a%2b", {}, 0), texts), L"Cannot read \"a%2b\".");
}

TEST(ErrorText, ShowsANumberWithoutWordsAndWordsWithoutANumber) {
  EXPECT_EQ(ErrorText(RuntimeError(FailedAction::ReadFile, L"x", {}, 5), English()), L"161 \"x\":  (5)");
  EXPECT_EQ(ErrorText(RuntimeError(FailedAction::ReadFile, L"x", L"no", 0), English()), L"161 \"x\": no (0)");
}

TEST(ErrorText, ShowsTheFactsWhenTheTextIsMissing) {
  Messages texts;
  texts.Set(161, L"**161**");
  EXPECT_EQ(ErrorText(RuntimeError(FailedAction::ReadFile, L"C:\\a", L"Gone.", 2), texts),
            L"**161** \"C:\\a\": Gone. (2)");
}

TEST(ErrorText, HasOneTextForEachAction) {
  const struct {
    FailedAction action;
    const wchar_t* expected;
  } rows[] = {
      {FailedAction::CreateFile, L"160 \"x\": no (5)"}, {FailedAction::ReadFile, L"161 \"x\": no (5)"},
      {FailedAction::WriteFile, L"162 \"x\": no (5)"},  {FailedAction::WriteSetting, L"165 \"x\": no (5)"},
      {FailedAction::Print, L"166 \"x\": no (5)"},      {FailedAction::StartProgram, L"167 \"x\": no (5)"},
      {FailedAction::ReadWindow, L"168 \"x\": no (5)"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ErrorText(RuntimeError(row.action, L"x", L"no", 5), English()), row.expected);
  }
}

TEST(ErrorText, IsShownWithAnExclamationMark) {
  ShowError(RuntimeError(FailedAction::ReadFile, L"x", L"no", 5), English());
  ASSERT_EQ(fakes::Fake().Messages.size(), 1u);
  EXPECT_EQ(fakes::Fake().Messages[0].Text, L"161 \"x\": no (5)");
  EXPECT_EQ(fakes::Fake().Messages[0].Icon, platform::BoxIcon::Exclamation);
  EXPECT_EQ(fakes::Fake().Messages[0].Buttons, platform::BoxButtons::Ok);
}

TEST(ErrorText, APrintThatTheUserBrokeOffIsNotTold) {
  fakes::Fake().Messages.clear();
  for (const std::uint32_t code : {1223U, 63U}) {
    ShowError(RuntimeError(FailedAction::Print, L"PDF", L"Cancelled.", code), English());
  }
  EXPECT_TRUE(fakes::Fake().Messages.empty());
  ShowError(RuntimeError(FailedAction::Print, L"PDF", L"Access denied.", 5), English());
  ShowError(RuntimeError(FailedAction::WriteFile, L"PDF", L"Cancelled.", 1223), English());
  EXPECT_EQ(fakes::Fake().Messages.size(), 2U);
}

}  // namespace
}  // namespace folivant
