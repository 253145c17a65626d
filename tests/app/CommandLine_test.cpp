#include "app/CommandLine.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

TEST(StripQuotes, TrimsAndRemovesOneQuoteAtEachEnd) {
  const struct {
    const wchar_t* text;
    const wchar_t* expected;
  } rows[] = {
      {L"", L""},
      {L"  C:\\Data  ", L"C:\\Data"},
      {L"\"C:\\My Data\"", L"C:\\My Data"},
      {L" \" C:\\My Data \" ", L"C:\\My Data"},
      {L"C:\\My Data\"", L"C:\\My Data"},
      {L"\"C:\\My Data", L"C:\\My Data"},
      {L"\"\"C:\\a\"\"", L"\"C:\\a\""},
      {L"C:\\a\" b", L"C:\\a\" b"},
      {L"\"", L""},
      {L"\"\"", L""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(StripQuotes(row.text), row.expected) << "text: " << testing::PrintToString(std::wstring(row.text));
  }
}

TEST(GetSwitchArgument, GoesUpToTheNextSlash) {
  const std::wstring line = L"/f C:\\a.fvf /d\"C:\\My Data\"/g";
  EXPECT_EQ(GetSwitchArgument(line, 1), L"C:\\a.fvf");
  EXPECT_EQ(GetSwitchArgument(line, 13), L"C:\\My Data");
  EXPECT_EQ(GetSwitchArgument(line, 27), L"");
  EXPECT_EQ(GetSwitchArgument(L"/fa.fvf /g", 1), L"a.fvf") << "a blank before the argument may be missing";
}

TEST(GetSwitchArgument, OfASwitchAtTheEndOfTheLineIsEmpty) {
  EXPECT_EQ(GetSwitchArgument(L"/f", 1), L"");
  EXPECT_EQ(GetSwitchArgument(L"/", 1), L"");
  EXPECT_EQ(GetSwitchArgument(L"//", 1), L"");
  EXPECT_EQ(GetSwitchArgument(L"//x", 1), L"") << "it ends with the slash";
}

TEST(ReadCommandLine, WithoutASlashIsOnePath) {
  const CommandLine command = ReadCommandLine(L" \"C:\\My Data\" ");
  EXPECT_FALSE(command.HasSwitches);
  EXPECT_EQ(command.Path, L"C:\\My Data");
}

TEST(ReadCommandLine, TakesTheFirstOccurrenceOfEachSwitchInAnyOrder) {
  const CommandLine command = ReadCommandLine(L"/g /o out /t x /d C:\\b /k csv /f a.fvf /d C:\\c /t t /k json /o in");
  EXPECT_TRUE(command.HasSwitches);
  EXPECT_EQ(command.FilterFile, L"a.fvf");
  EXPECT_EQ(command.Directory, L"C:\\b");
  EXPECT_EQ(command.OutputLetter, L'x');
  EXPECT_EQ(command.KindWord, L"csv");
  EXPECT_EQ(command.OutputFile, L"out");
  EXPECT_TRUE(command.Go);
}

TEST(ReadCommandLine, ABlankAfterASwitchMayBeMissing) {
  const CommandLine command = ReadCommandLine(L"/fa.fvf /dC:\\b /kcsv /oout");
  EXPECT_EQ(command.FilterFile, L"a.fvf");
  EXPECT_EQ(command.Directory, L"C:\\b");
  EXPECT_EQ(command.KindWord, L"csv");
  EXPECT_EQ(command.OutputFile, L"out");
}

TEST(ReadCommandLine, ALogMayBeContinuedAndARunQuiet) {
  const CommandLine command = ReadCommandLine(L"/g/q /l +C:\\my log.txt /f a.fvf");
  EXPECT_TRUE(command.Quiet);
  EXPECT_EQ(command.LogFile, L"+C:\\my log.txt");
  EXPECT_FALSE(ReadCommandLine(L"/g /Q /L log").Quiet);
  EXPECT_EQ(ReadCommandLine(L"/g /Q /L log").LogFile, std::nullopt);
}

TEST(ReadCommandLine, SwitchesAreSmallLetters) {
  const CommandLine command = ReadCommandLine(L"/F a.fvf /D C:\\ /T t /K csv /O out /G");
  EXPECT_TRUE(command.HasSwitches);
  EXPECT_EQ(command.FilterFile, std::nullopt);
  EXPECT_EQ(command.Directory, std::nullopt);
  EXPECT_EQ(command.OutputLetter, std::nullopt);
  EXPECT_EQ(command.KindWord, std::nullopt);
  EXPECT_EQ(command.OutputFile, std::nullopt);
  EXPECT_FALSE(command.Go);
}

TEST(ReadCommandLine, TheOutputLetterStandsBehindExactlyOneCharacter) {
  EXPECT_EQ(ReadCommandLine(L"/t p").OutputLetter, L'p');
  EXPECT_EQ(ReadCommandLine(L"/t:p").OutputLetter, L'p');
  EXPECT_EQ(ReadCommandLine(L"/tp x").OutputLetter, L' ');
  EXPECT_EQ(ReadCommandLine(L"/t  p").OutputLetter, L' ');
  EXPECT_EQ(ReadCommandLine(L"/tp").OutputLetter, L'\0');
  EXPECT_EQ(ReadCommandLine(L"/t").OutputLetter, L'\0');
}

TEST(WithSwitchExtension, IsTheirOwnForExactKinds) {
  EXPECT_EQ(WithSwitchExtension(L"list", OutputKind::ExactCsv), L"list.csv");
  EXPECT_EQ(WithSwitchExtension(L"list", OutputKind::JsonLines), L"list.jsonl");
  EXPECT_EQ(WithSwitchExtension(L"list", OutputKind::Sha256), L"list.sha256");
}

TEST(WithSwitchExtension, IsHtmlForHtmlAndTxtForTheOthers) {
  EXPECT_EQ(WithSwitchExtension(L"list", OutputKind::Html), L"list.html");
  for (const OutputKind kind : {OutputKind::Text, OutputKind::TabDelimited, OutputKind::Csv, OutputKind::Xml}) {
    EXPECT_EQ(WithSwitchExtension(L"list", kind), L"list.txt");
  }
}

TEST(WithSwitchExtension, ADotAnywhereInThePathKeepsTheName) {
  EXPECT_EQ(WithSwitchExtension(L"C:\\my.dir\\out", OutputKind::Html), L"C:\\my.dir\\out");
  EXPECT_EQ(WithSwitchExtension(L"out.", OutputKind::Text), L"out.");
}

}  // namespace
}  // namespace folivant
