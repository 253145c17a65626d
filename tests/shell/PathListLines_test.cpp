#include "shell/PathListLines.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"
#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "platform/Utf8.h"

namespace folivant {
namespace {

using fakes::Tree;
using Lines = std::vector<std::wstring>;

constexpr wchar_t kList[] = L"C:\\list.txt";

Lines LinesOf(const std::string& bytes) {
  Tree().File(kList, bytes);
  NoProgress progress;
  PathListLines list(kList, progress);
  Lines lines;
  while (std::optional<std::wstring> line = list.Next()) {
    lines.push_back(*std::move(line));
  }
  return lines;
}

std::string BigEndian(std::string units) {
  for (std::size_t i = 0; i + 1 < units.size(); i += 2) {
    std::swap(units[i], units[i + 1]);
  }
  return units;
}

TEST(PathListLines, LinesEndInAnyWay) {
  EXPECT_EQ(LinesOf("a\r\nb\nc\rd"), (Lines{L"a", L"b", L"c", L"d"}));
  EXPECT_EQ(LinesOf(std::string("a\0b\0", 4)), (Lines{L"a", L"b"}));
  EXPECT_EQ(LinesOf(""), Lines{});
}

TEST(PathListLines, BlankLinesAreLeftOut) {
  EXPECT_EQ(LinesOf("\r\n  \r\n\t\r\na\r\n \t \n\"\"\n\"  \"\n \"\t\" \n\nb\n\n"), (Lines{L"a", L"b"}));
}

TEST(PathListLines, BlanksTabsAndQuotesAroundALineGo) {
  const std::pair<const char*, const wchar_t*> rows[] = {
      {"  C:\\a b.txt  ", L"C:\\a b.txt"},
      {"\tC:\\a\t \t", L"C:\\a"},
      {"\"C:\\a b.txt\"", L"C:\\a b.txt"},
      {" \t\"C:\\a\"\t ", L"C:\\a"},
      {"\"C:\\a \"", L"C:\\a "},                    // a name that ends in a blank
      {"\"C:\\a\" \"C:\\b\"", L"C:\\a\" \"C:\\b"},  // two paths are none
      {"\"C:\\a", L"\"C:\\a"},
      {"C:\\a\"", L"C:\\a\""},
      {"\"", L"\""},
      {"\"\"C:\\a\"\"", L"\"C:\\a\""},
  };
  for (const auto& [line, expected] : rows) {
    EXPECT_EQ(LinesOf(line), Lines{expected}) << line;
    EXPECT_EQ(LinesOf(std::string("x\r\n") + line + "\r\ny"), (Lines{L"x", expected, L"y"})) << line;
  }
}

/// Lines of different lengths, long enough together for many pieces, with letters of one to four bytes.
Lines ManyLines() {
  Lines lines;
  for (std::size_t i = 0; i < 6000; ++i) {
    lines.push_back(L"C:\\" + std::wstring(i % 37, L'd') + L"\u00E9\u0416\u20AC\U0001F600" + std::to_wstring(i));
  }
  return lines;
}

std::wstring Joined(const Lines& lines) {
  std::wstring text;
  for (const std::wstring& line : lines) {
    text += line + L"\r\n";
  }
  return text;
}

TEST(PathListLines, NoEncodingIsTornWherePiecesMeet) {
  const Lines lines = ManyLines();
  const std::wstring text = Joined(lines);
  const std::string utf8 = platform::ToUtf8(text);
  const std::string utf16 = platform::ToUtf16(text);
  ASSERT_GT(utf8.size(), std::size_t{3} * 64 * 1024);
  EXPECT_EQ(LinesOf(utf8), lines);
  EXPECT_EQ(LinesOf("\xEF\xBB\xBF" + utf8), lines);
  EXPECT_EQ(LinesOf("\xFF\xFE" + utf16), lines);
  EXPECT_EQ(LinesOf("\xFE\xFF" + BigEndian(utf16)), lines);
}

TEST(PathListLines, OneByteAtTheVeryEndMakesALongListAnsi) {
  const std::string utf8 = platform::ToUtf8(Joined(ManyLines()));
  const Lines lines = LinesOf(utf8 + "\xE9");
  ASSERT_EQ(lines.size(), 6001u);
  EXPECT_EQ(lines[0], L"C:\\" + platform::FromAnsi("\xC3\xA9\xD0\x96\xE2\x82\xAC\xF0\x9F\x98\x80") + L"0");
  EXPECT_EQ(lines[6000], L"\u00E9");
}

TEST(PathListLines, TheBytesOfALineEndMayBePartOfAUtf16Character) {
  EXPECT_EQ(LinesOf(std::string("\xFF\xFE\x0A\x01\x0D\x0D\n\0b\0", 10)), (Lines{L"\u010A\u0D0D", L"b"}));
}

TEST(PathListLines, ALineWithoutEndIsCut) {
  const std::size_t megabyte = std::size_t{1024} * 1024;
  const Lines lines = LinesOf("first\n" + std::string(5 * megabyte, 'x') + "\nC:\\next");
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[1], std::wstring(megabyte, L'x'));
  EXPECT_EQ(lines[2], L"C:\\next");
  EXPECT_EQ(LinesOf(std::string(megabyte, 'x')), Lines{std::wstring(megabyte, L'x')});
  EXPECT_EQ(LinesOf(std::string(3 * megabyte, 'x')), Lines{std::wstring(megabyte, L'x')});
}

TEST(PathListLines, ALineOfUtf16IsCutBetweenItsUnits) {
  const std::size_t megabyte = std::size_t{1024} * 1024;
  const std::wstring text = std::wstring(2 * megabyte, L'x') + L"\nC:\\next";
  for (const std::string& bytes :
       {"\xFF\xFE" + platform::ToUtf16(text), BigEndian("\xFF\xFE" + platform::ToUtf16(text))}) {
    EXPECT_EQ(LinesOf(bytes), (Lines{std::wstring(megabyte / 2, L'x'), L"C:\\next"}));
  }
}

/// Counts the events and cancels after some.
class Watcher final : public Progress {
 public:
  explicit Watcher(int patience) : left(patience) {}
  void ShowDirectory(std::wstring_view) override {}
  void SetProgress(std::int32_t) override {}
  void LetEventsThrough() override { --left; }
  bool Cancelled() const override { return left <= 0; }
  int left;
};

TEST(PathListLines, EventsGetThroughWhileALongListIsLookedThroughAndRead) {
  Tree().File(kList, std::string(std::size_t{10} * 64 * 1024, '\n'));
  Watcher watcher(1000);
  PathListLines list(kList, watcher);
  EXPECT_EQ(watcher.left, 990);
  EXPECT_EQ(list.Next(), std::nullopt);
  EXPECT_EQ(watcher.left, 980);
}

TEST(PathListLines, ACancelledListHasNoMoreLines) {
  Tree().File(kList, std::string(std::size_t{3} * 64 * 1024, '\n') + "C:\\a");
  for (const int patience : {2, 5}) {  // while it is looked through, and while it is read
    Watcher watcher(patience);
    PathListLines list(kList, watcher);
    EXPECT_EQ(list.Next(), std::nullopt);
    EXPECT_EQ(watcher.left, 0);
  }
}

TEST(PathListLines, ACancelledListDoesNotEndInTheMiddleOfALine) {
  const std::size_t piece = std::size_t{64} * 1024;
  Tree().File(kList, std::string(piece - 2, '\n') + "C:\\a" + std::string(piece, '\n'));
  Watcher watcher(3);  // two pieces looked through and one read, which ends in "C:"
  PathListLines list(kList, watcher);
  EXPECT_EQ(list.Next(), std::nullopt);
}

TEST(PathListLines, KnowsItsFullPath) {
  fakes::Fake().CurrentDirectory = L"C:\\";
  Tree().File(kList, "");
  NoProgress progress;
  EXPECT_EQ(PathListLines(L"list.txt", progress).Path(), kList);
  EXPECT_THROW(PathListLines(L"gone.txt", progress), RuntimeError);
}

}  // namespace
}  // namespace folivant
