#include "platform/OutputFile.h"

#include <gtest/gtest.h>

#include "platform/RuntimeError.h"
#include "platform/Scratch.h"

namespace folivant::platform {
namespace {

template <class Act>
RuntimeError ErrorOf(Act act) {
  try {
    act();
  } catch (const RuntimeError& error) {
    return error;
  }
  ADD_FAILURE() << "nothing was thrown";
  return {FailedAction::Print, L"", L"", 0};
}

std::string Written(std::wstring_view text) {
  const Scratch scratch;
  OutputFile file;
  file.Open(scratch.Path(L"out.txt"));
  file.Write(text);
  file.Close();
  return scratch.Content(L"out.txt");
}

TEST(OutputFile, WritesTheAnsiCodePage) {
  EXPECT_EQ(Written(L"a\u00E4\u20AC\r\n"), "a\xE4\x80\r\n");
  EXPECT_EQ(Written(L"\u65E5\u672C"), "??");
  EXPECT_EQ(Written(L""), "");
}

TEST(OutputFile, WritesBytesAsTheyAre) {
  const Scratch scratch;
  OutputFile file;
  file.Open(scratch.Path(L"out.txt"));
  file.WriteBytes(std::string_view("\xC3\xA4\0\r\n", 5));
  file.WriteBytes({});
  file.WriteBytes(std::string(300'000, 'x'));  // more than a block
  file.WriteBytes("\x80");
  file.Close();
  EXPECT_EQ(scratch.Content(L"out.txt"), std::string("\xC3\xA4\0\r\n", 5) + std::string(300'000, 'x') + "\x80");
}

TEST(OutputFile, TruncatesWhatWasThere) {
  const Scratch scratch;
  scratch.MakeFile(L"out.txt", "a much longer content than the new one");
  OutputFile file;
  file.Open(scratch.Path(L"out.txt"));
  file.Write(L"short");
  file.Close();
  EXPECT_EQ(scratch.Content(L"out.txt"), "short");
}

TEST(OutputFile, KeepsTheOrderAcrossBlocks) {
  const Scratch scratch;
  OutputFile file;
  file.Open(scratch.Path(L"out.txt"));
  std::string expected;
  for (int i = 0; i < 40'000; ++i) {
    const std::string line = std::to_string(i) + (i % 3 == 0 ? " \xE9\r\n" : " e\r\n");
    expected += line;
    file.Write(std::to_wstring(i) + (i % 3 == 0 ? L" \u00E9\r\n" : L" e\r\n"));
  }
  file.Write(std::wstring(500'000, L'x'));
  expected.append(500'000, 'x');
  file.Close();
  EXPECT_EQ(scratch.Content(L"out.txt"), expected);
}

TEST(OutputFile, ConvertsSurrogatePairsAlikeWhereverTheBlockEnds) {
  const std::string pair = Written(L"\U0001F600");
  std::wstring text = L"x";
  std::string expected = "x";
  for (int i = 0; i < 200'000; ++i) {
    text += L"\U0001F600";
    expected += pair;
  }
  EXPECT_EQ(Written(text), expected);               // pairs begin at odd positions,
  EXPECT_EQ(Written(L"x" + text), "x" + expected);  // at even ones
  text.pop_back();                                  // and half a pair is left at the end where pairs have halves
  EXPECT_EQ(Written(text).substr(0, expected.size() - pair.size()), expected.substr(0, expected.size() - pair.size()));
}

TEST(OutputFile, SurvivesUnpairedSurrogates) {
  std::wstring text = L"a..b";
  text[1] = static_cast<wchar_t>(0xD83D);
  text[2] = static_cast<wchar_t>(0xD83D);
  EXPECT_EQ(Written(text), "a??b");
  text[1] = static_cast<wchar_t>(0xDE00);
  EXPECT_EQ(Written(text), "a??b");
}

TEST(OutputFile, IsOpenUntilClosed) {
  const Scratch scratch;
  OutputFile file;
  EXPECT_FALSE(file.IsOpen());
  file.Close();
  file.Open(scratch.Path(L"a"));
  EXPECT_TRUE(file.IsOpen());
  file.Close();
  EXPECT_FALSE(file.IsOpen());
  file.Open(scratch.Path(L"b"));
  file.Write(L"again");
  file.Close();
  EXPECT_EQ(scratch.Content(L"b"), "again");
}

TEST(OutputFile, SaysWhichFileCannotBeCreated) {
  const Scratch scratch;
  OutputFile file;
  const RuntimeError error = ErrorOf([&] { file.Open(scratch.Path(L"missing\\out.txt")); });
  EXPECT_EQ(error.Action(), FailedAction::CreateFile);
  EXPECT_EQ(error.Object(), scratch.Path(L"missing\\out.txt"));
  EXPECT_NE(error.SystemCode(), 0U);
  EXPECT_FALSE(error.SystemText().empty());
  EXPECT_FALSE(file.IsOpen());
  EXPECT_EQ(ErrorOf([&] { file.Open(scratch.Folder()); }).Action(), FailedAction::CreateFile);
}

/// Number of "no space left": 28 for this system, 112 for Windows.
void ExpectFullDisk(const RuntimeError& error) {
  EXPECT_EQ(error.Action(), FailedAction::WriteFile);
  EXPECT_EQ(error.Object(), L"Z:\\dev\\full");
  EXPECT_EQ(error.SystemCode(), std::filesystem::path::preferred_separator == '\\' ? 112U : 28U);
  EXPECT_FALSE(error.SystemText().empty());
}

/// Opens the device that is always full; false where the system has none.
bool OpenFullDisk(OutputFile& file) {
  try {
    file.Open(L"Z:\\dev\\full");
  } catch (const RuntimeError&) {
  }
  return file.IsOpen();
}

TEST(OutputFile, SaysThatTheDiskIsFullAtTheEnd) {
  OutputFile file;
  if (!OpenFullDisk(file)) {
    GTEST_SKIP() << "there is no disk that is always full";
  }
  file.Write(L"text");
  ExpectFullDisk(ErrorOf([&] { file.Close(); }));
  EXPECT_FALSE(file.IsOpen());
}

TEST(OutputFile, SaysThatTheDiskIsFullInTheMiddle) {
  OutputFile file;
  if (!OpenFullDisk(file)) {
    GTEST_SKIP() << "there is no disk that is always full";
  }
  ExpectFullDisk(ErrorOf([&] { file.Write(std::wstring(1'000'000, L'x')); }));
}

}  // namespace
}  // namespace folivant::platform
