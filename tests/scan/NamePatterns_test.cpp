#include "scan/NamePatterns.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

struct Row {
  std::wstring Pattern;
  std::wstring Name;
  bool Matches;
};

TEST(WildcardPatternTest, FollowsEachSpecialCharacter) {
  const Row rows[] = {
      {L"abc", L"abc", true},
      {L"ABC", L"abc", true},
      {L"abc", L"abcd", false},
      {L"abc", L"ab", false},
      {L"", L"", true},
      {L"", L"a", false},
      {L"*", L"", true},
      {L"*", L"anything", true},
      {L"a*c", L"ac", true},
      {L"a*c", L"abbbc", true},
      {L"a*c", L"abcb", false},
      {L"a*b*c", L"a.b.b.c", true},
      {L"ab*bc", L"abc", false},  // no letter serves on both sides
      {L"*.txt", L"a.txt.txt", true},
      {L"*.txt", L"a.txtx", false},
      {L"**", L"x", true},
      {L"a?c", L"abc", true},
      {L"a?c", L"ac", false},
      {L"?", L"", false},
      {L"a#", L"a7", true},
      {L"a#", L"a0", true},
      {L"a#", L"a9", true},
      {L"a#", L"a/", false},  // the neighbours of the digits
      {L"a#", L"a:", false},
      {L"a#", L"ax", false},
      {L"a#", L"a\x0663", false},  // a digit of another script
      {L"[abc]", L"b", true},
      {L"[abc]", L"d", false},
      {L"[acx]", L"b", false},
      {L"[abc]", L"", false},
      {L"[a-c]x", L"bx", true},
      {L"[a-c]x", L"dx", false},
      {L"[!a-c]x", L"dx", true},
      {L"[!a-c]x", L"bx", false},
      {L"[!a]", L"b", true},
      {L"[!a]", L"a", false},
      {L"[!a]", L"!", true},
      {L"[a-c][0-9]", L"b7", true},
      {L"[a-c][0-9]", L"7b", false},
      {L"[a-c][0-9]", L"bb", false},
      {L"[a][b][c]", L"acc", false},
      {L"[a-c0-9_]", L"7", true},
      {L"[a-c0-9_]", L"_", true},
      {L"[a-c0-9_]", L"d", false},
      {L"[-a]", L"-", true},  // a hyphen at either end is itself
      {L"[a-]", L"-", true},
      {L"[a-]", L"b", false},
      {L"[a!]", L"!", true},  // only in front does "!" turn the class round
      {L"[!]", L"!", true},
      {L"[!]", L"x", false},
      {L"[*]", L"*", true},
      {L"[*]", L"x", false},
      {L"[?]", L"x", false},
      {L"[#]", L"#", true},
      {L"[#]", L"1", false},
      {L"[[]", L"[", true},
      {L"a[]b", L"ab", true},  // an empty class is no character at all
      {L"[c-a]", L"b", false},
      {L"[A-C]", L"b", true},
      {L"[\x00C4]", L"\x00E4", true},  // lower-case code points are compared
      {L"[a", L"[a", true},            // unclosed
      {L"[a", L"a", false},
      {L"a]", L"a]", true},
      {L"[!a", L"[!a", true},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(WildcardPattern(row.Pattern).Matches(row.Name), row.Matches)
        << testing::PrintToString(row.Pattern) << " against " << testing::PrintToString(row.Name);
  }
}

TEST(WildcardPatternTest, ManyStarsDoNotMultiply) {
  std::wstring pattern;
  for (int i = 0; i < 60; ++i) {
    pattern += L"*a";
  }
  EXPECT_FALSE(WildcardPattern(pattern + L"*b").Matches(std::wstring(200, L'a')));
  EXPECT_TRUE(WildcardPattern(pattern).Matches(std::wstring(200, L'a')));
}

bool Passes(const std::wstring& list, const std::wstring& name) {
  return NamePatterns(list).Admit(name);
}

TEST(NamePatternsTest, BlanksAroundPiecesAndLetterCaseDoNotMatter) {
  EXPECT_TRUE(Passes(L"*.txt, *.doc", L"Readme.TXT"));
  EXPECT_TRUE(Passes(L"*.txt, *.doc", L"Letter.doc"));
  EXPECT_TRUE(Passes(L"  *.TXT  ,*.doc", L"a.txt"));
  EXPECT_FALSE(Passes(L"*.txt, *.doc", L"a.bin"));
}

TEST(NamePatternsTest, APieceWithoutADotIsTheBeginningOfAName) {
  EXPECT_TRUE(Passes(L"readme", L"README"));
  EXPECT_TRUE(Passes(L"readme", L"Readme.1st"));
  EXPECT_FALSE(Passes(L"readme", L"Old readme"));
}

TEST(NamePatternsTest, ExclusionsSubtract) {
  EXPECT_TRUE(Passes(L"*.*,-*.bak", L"a.txt"));
  EXPECT_TRUE(Passes(L"*.*,-*.bak", L"noextension"));
  EXPECT_FALSE(Passes(L"*.*,-*.bak", L"a.bak"));
  EXPECT_FALSE(Passes(L"-*.bak,*.*", L"a.bak"));
  EXPECT_FALSE(Passes(L"*.bak,-*.bak,*.bak", L"a.bak"));
}

TEST(NamePatternsTest, ExclusionsAloneKeepNothing) {
  EXPECT_FALSE(Passes(L"-*.bak", L"a.txt"));
  EXPECT_FALSE(Passes(L"-*.bak", L"a.bak"));
}

TEST(NamePatternsTest, APlusIsAnExplicitInclusion) {
  EXPECT_TRUE(Passes(L"+*.txt", L"a.txt"));
  EXPECT_FALSE(Passes(L"+*.txt", L"a.doc"));
  EXPECT_TRUE(Passes(L"+read", L"readme"));
}

TEST(NamePatternsTest, ANameWithoutExtensionCountsAsEndingInADot) {
  EXPECT_TRUE(Passes(L"*.", L"readme"));
  EXPECT_FALSE(Passes(L"*.", L"readme.txt"));
  EXPECT_TRUE(Passes(L"*.*", L"readme"));
}

TEST(NamePatternsTest, ANameOfFullLengthIsComparedToItsEnd) {
  const std::wstring name(251, L'n');
  EXPECT_TRUE(Passes(L"*.txt", name + L".txt"));
  EXPECT_FALSE(Passes(L"*.txt", name + L".txu"));
  EXPECT_TRUE(Passes(L"n*.,-*.bak", name + name)) << "longer than any system's";
}

TEST(NamePatternsTest, ADottedPatternIsNotEveryPattern) {
  EXPECT_TRUE(Passes(L"*.?", L"a.c"));
  EXPECT_FALSE(Passes(L"*.?", L"a.txt"));
  EXPECT_FALSE(Passes(L"?.*", L"ab.txt"));
}

TEST(NamePatternsTest, AnEmptyPieceKeepsEverything) {
  EXPECT_TRUE(Passes(L"", L"a.txt"));
  EXPECT_TRUE(Passes(L"", L"readme"));
  EXPECT_TRUE(Passes(L"*.doc,", L"a.txt"));
}

TEST(NamePatternsTest, ASignAloneStandsForEveryName) {
  EXPECT_TRUE(Passes(L"+", L"a.txt"));
  EXPECT_FALSE(Passes(L"*.*,-", L"a.txt"));
}

TEST(NamePatterns, ABackslashAtTheEndLeavesDirectoriesOut) {
  const NamePatterns patterns(L"*.txt, -node_modules\\, -.git\\,-tmp*\\");
  for (const wchar_t* name : {L"node_modules", L"NODE_Modules", L".git", L"tmp", L"Tmp.old"}) {
    EXPECT_TRUE(patterns.LeaveOut(name)) << testing::PrintToString(std::wstring(name));
  }
  for (const wchar_t* name : {L"node_modules2", L"my node_modules", L"git", L".github", L"a.tmp", L"", L"a.txt"}) {
    EXPECT_FALSE(patterns.LeaveOut(name)) << testing::PrintToString(std::wstring(name));
  }
  EXPECT_TRUE(patterns.Admit(L"a.txt"));
  EXPECT_TRUE(patterns.Admit(L"node_modules.txt")) << "such a pattern says nothing of other names";
  EXPECT_FALSE(patterns.Admit(L"a.doc"));
}

TEST(NamePatterns, AListThatOnlyLeavesDirectoriesOutAdmitsEverything) {
  const NamePatterns patterns(L"-.git\\");
  EXPECT_TRUE(patterns.Admit(L"a.txt"));
  EXPECT_TRUE(patterns.Admit(L".git"));
  EXPECT_TRUE(patterns.LeaveOut(L".git"));
}

TEST(NamePatterns, ABackslashLeavesNothingOutWithoutTheMinus) {
  for (const wchar_t* list : {L".git\\", L"+.git\\", L"*.*,.git\\", L"*.*,-.g\\it", L"*.*,-.git"}) {
    EXPECT_FALSE(NamePatterns(list).LeaveOut(L".git")) << testing::PrintToString(std::wstring(list));
  }
  EXPECT_FALSE(NamePatterns(L".git\\").Admit(L".git")) << "no name holds a backslash";
}

}  // namespace
}  // namespace folivant
