#include "ui/ErrorText.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <vector>

#include "fakes/FakePlatform.h"

namespace folivant {
namespace {

Messages English() {
  Messages texts;
  for (std::size_t number = 160; number <= 188; ++number) {
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

TEST(ErrorText, LeavesASentenceThatHasNoPlaceForTheSystemsWordsAsItIs) {
  Messages texts;
  texts.Set(188, L"This font cannot be printed (%1)!");
  EXPECT_EQ(ErrorText(RuntimeError(FailedAction::UseFont, L"Arial, 0", {}, 0), texts),
            L"This font cannot be printed (Arial, 0)!");
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

TEST(ErrorText, AWindowOfTheProgramItselfHasNoName) {
  Messages texts;
  const RuntimeError error(FailedAction::OpenWindow, {}, L"Not enough storage.", 8);
  texts.Set(186, L"**186**");
  EXPECT_EQ(ErrorText(error, texts), L"**186**: Not enough storage. (8)");
  texts.Set(186, L"Cannot open a window: %2 (%3)");
  EXPECT_EQ(ErrorText(error, texts), L"Cannot open a window: Not enough storage. (8)");
}

// Words of libraries are for developers.
TEST(ErrorText, ALibrarysExceptionHasTheProgramsOwnWords) {
  ShowError(std::length_error("basic_string::_M_create"), English());
  ShowError(std::out_of_range("vector::_M_range_check"), English());
  ShowError(std::exception(), English());
  ShowError(std::bad_alloc(), English());
  ShowError(std::bad_array_new_length(), English());
  std::vector<std::wstring> shown;
  for (const fakes::ShownMessage& message : fakes::Fake().Messages) {
    shown.push_back(message.Text);
    EXPECT_EQ(message.Icon, platform::BoxIcon::Exclamation);
  }
  const std::wstring unexpected = L"184 \"%1\": %2 (%3)";
  const std::wstring noMemory = L"185 \"%1\": %2 (%3)";
  EXPECT_EQ(shown, (std::vector{unexpected, unexpected, unexpected, noMemory, noMemory}));
}

TEST(ErrorText, HasOneTextForEachAction) {
  const struct {
    FailedAction action;
    const wchar_t* expected;
  } rows[] = {
      {FailedAction::CreateFile, L"160 \"x\": no (5)"}, {FailedAction::ReadFile, L"161 \"x\": no (5)"},
      {FailedAction::WriteFile, L"162 \"x\": no (5)"},  {FailedAction::WriteSetting, L"165 \"x\": no (5)"},
      {FailedAction::Print, L"166 \"x\": no (5)"},      {FailedAction::StartProgram, L"167 \"x\": no (5)"},
      {FailedAction::ReadWindow, L"168 \"x\": no (5)"}, {FailedAction::UseMargins, L"187 \"x\": no (5)"},
      {FailedAction::UseFont, L"188 \"x\": no (5)"},    {FailedAction::ReadWindow, L"168 \"x\": no (5)"},
      {FailedAction::OpenWindow, L"186 \"x\": no (5)"}, {FailedAction::UseClipboard, L"163 \"x\": no (5)"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ErrorText(RuntimeError(row.action, L"x", L"no", 5), English()), row.expected);
  }
}

TEST(ErrorText, ASentenceWithoutTheSystemsWordsStandsAsItIs) {
  Messages texts;
  texts.Set(171, L"No listing: no line of \"%1\" is a path.");
  EXPECT_EQ(ErrorText(RuntimeError(FailedAction::ListPaths, L"C:\\a", {}, 0), texts),
            L"No listing: no line of \"C:\\a\" is a path.");
}

TEST(ErrorText, NamesAFileThatIsTooLargeAndTheLimit) {
  Messages texts;
  texts.Set(172, L"Cannot read \"%1\": it is larger than %2 MB.");
  EXPECT_EQ(ErrorText(RuntimeError(FailedAction::ReadLargeFile, L"C:\\a", L"16", 0), texts),
            L"Cannot read \"C:\\a\": it is larger than 16 MB.");
}

TEST(ErrorText, IsShownWithAnExclamationMark) {
  ShowError(RuntimeError(FailedAction::ReadFile, L"x", L"no", 5), English());
  ASSERT_EQ(fakes::Fake().Messages.size(), 1u);
  EXPECT_EQ(fakes::Fake().Messages[0].Text, L"161 \"x\": no (5)");
  EXPECT_EQ(fakes::Fake().Messages[0].Icon, platform::BoxIcon::Exclamation);
  EXPECT_EQ(fakes::Fake().Messages[0].Buttons, platform::BoxButtons::Ok);
}

TEST(ErrorText, WhatTheUserBrokeOffIsNotTold) {
  for (const std::uint32_t code : {1223U, 63U}) {
    ShowError(RuntimeError(FailedAction::Print, L"PDF", L"Cancelled.", code), English());
  }
  ShowError(RuntimeError(FailedAction::StartProgram, L"viewer.exe", L"Cancelled.", 1223), English());
  EXPECT_TRUE(fakes::Fake().Messages.empty());
  ShowError(RuntimeError(FailedAction::Print, L"PDF", L"Access denied.", 5), English());
  ShowError(RuntimeError(FailedAction::WriteFile, L"PDF", L"Cancelled.", 1223), English());
  EXPECT_EQ(fakes::Fake().Messages.size(), 2U);
}

}  // namespace
}  // namespace folivant
