#include "shell/FindChoice.h"

#include <gtest/gtest.h>

#include "fakes/FakeFindWindows.h"

namespace folivant {
namespace {

using fakes::FindWindow;
using fakes::FindWindows;

std::vector<std::wstring> Titles(const FindChoice& choice) {
  std::vector<std::wstring> titles;
  for (const FindCandidate& candidate : choice.Candidates) {
    titles.push_back(candidate.Title);
  }
  return titles;
}

TEST(FindChoice, ListsFindWindowsTopmostFirst) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: one", {}),
                            {20, L"Shell_TrayWnd", 0x14CF0064, L"Bar", {}},
                            FindWindow(30, L"Find: two", {})};
  FindChoice choice;
  choice.FindCandidates();
  EXPECT_EQ((std::vector<std::wstring>{L"Find: one", L"Find: two"}), Titles(choice));
  EXPECT_EQ(30, choice.Candidates[1].Window);
  EXPECT_TRUE(choice.IsPending());
}

TEST(FindChoice, LooksAfreshEachTime) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: one", {}), FindWindow(30, L"Find: two", {})};
  FindChoice choice;
  choice.FindCandidates();
  FindWindows().TopLevel = {FindWindow(30, L"Find: two", {})};
  choice.FindCandidates();
  EXPECT_EQ(std::vector<std::wstring>{L"Find: two"}, Titles(choice));
}

TEST(FindChoice, WantsEveryStyleBit) {
  for (std::uint32_t bit = 1; bit != 0; bit <<= 1) {
    FindWindows().TopLevel = {FindWindow(10, L"Find", {})};
    FindWindows().TopLevel[0].Style = 0x00CF0064 & ~bit;
    FindChoice choice;
    choice.FindCandidates();
    EXPECT_EQ((0x00CF0064 & bit) == 0, choice.Candidates.size() == 1) << std::hex << bit;
  }
}

TEST(FindChoice, AllowsFurtherStyleBits) {
  FindWindows().TopLevel = {FindWindow(10, L"Find", {})};
  FindWindows().TopLevel[0].Style = 0xFFFFFFFF;
  FindChoice choice;
  choice.FindCandidates();
  EXPECT_EQ(1u, choice.Candidates.size());
}

TEST(FindChoice, WantsTheExactClass) {
  for (const wchar_t* name : {L"#32769", L"#327700", L"", L"#32770 "}) {
    FindWindows().TopLevel = {FindWindow(10, L"Find", {})};
    FindWindows().TopLevel[0].Class = name;
    FindChoice choice;
    choice.FindCandidates();
    EXPECT_TRUE(choice.Candidates.empty());
  }
}

TEST(FindChoice, TakesTheListInsideTheChosenWindow) {
  FindWindows().TopLevel = {FindWindow(10, L"Find: one", {}), FindWindow(30, L"Find: two", {})};
  FindChoice choice;
  choice.FindCandidates();
  choice.Choose(1);
  EXPECT_EQ(32, choice.FindListHandle);
  EXPECT_EQ(L"Find: two", choice.FindWindowTitle);
}

TEST(FindChoice, LooksAmongDirectChildrenOnly) {
  fakes::FakeWindow window = FindWindow(10, L"Find", {});
  const fakes::FakeWindow view = window.Children[0];
  window.Children = {{14, L"Static", 0, {}, {view}}};  // one floor too deep
  FindWindows().TopLevel = {window};
  FindChoice choice;
  choice.FindCandidates();
  choice.Choose(0);
  EXPECT_TRUE(choice.IsPending());
  EXPECT_TRUE(choice.Chosen);
}

TEST(FindChoice, PassesOverOtherChildren) {
  fakes::FakeWindow window = FindWindow(10, L"Find", {});
  window.Children.insert(window.Children.begin(), {{14, L"Button", 0, {}, {}}, {15, L"shelldll_defview", 0, {}, {}}});
  window.Children[2].Children.insert(window.Children[2].Children.begin(), {16, L"SysHeader32", 0, {}, {}});
  FindWindows().TopLevel = {window};
  FindChoice choice;
  choice.FindCandidates();
  choice.Choose(0);
  EXPECT_EQ(12, choice.FindListHandle);
}

TEST(FindChoice, StaysPendingWithoutInnerList) {
  fakes::FakeWindow window = FindWindow(10, L"Find", {});
  window.Children[0].Children.clear();
  FindWindows().TopLevel = {window};
  FindChoice choice;
  choice.FindCandidates();
  choice.Choose(0);
  EXPECT_TRUE(choice.IsPending());
  EXPECT_EQ(L"Find", choice.FindWindowTitle);
}

TEST(FindChoice, IsMinusOneWhenCancelled) {
  FindChoice choice;
  choice.Cancel();
  EXPECT_EQ(-1, choice.FindListHandle);
  EXPECT_TRUE(choice.IsCancelled());
}

}  // namespace
}  // namespace folivant
