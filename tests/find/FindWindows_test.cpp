// The reading of a real list view of a real other process.
#include "platform/FindWindows.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "find/StandIn.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "shell/FindChoice.h"
#include "shell/FindResults.h"

namespace folivant {
namespace {

using tests::StandIn;

std::vector<FoundItem> ReadAll(const FindChoice& choice) {
  FindResults results(choice.FindListHandle, choice.FindWindowTitle);
  std::vector<FoundItem> rows(static_cast<std::size_t>(results.RowCount()));
  results.Read(rows, [](std::int32_t) { return true; });
  return rows;
}

FindChoice ChooseOnly() {
  FindChoice choice;
  choice.FindCandidates();
  EXPECT_EQ(1u, choice.Candidates.size());
  choice.Choose(0);
  return choice;
}

TEST(FindWindows, NoneIsFoundWhereNoneIsOpen) {
  FindChoice choice;
  choice.FindCandidates();
  EXPECT_TRUE(choice.Candidates.empty());
}

TEST(FindWindows, ReadsFourOfFiveColumns) {
  const StandIn window(L"Find: two files",
                       {"Report.txt\tC:\\Data\t12 KB\tText Document\t1/2/2001 3:04 PM", "b\tC:\\\t\tFolder\t"});
  const FindChoice choice = ChooseOnly();
  EXPECT_EQ(L"Find: two files", choice.FindWindowTitle);
  const std::vector<FoundItem> rows = ReadAll(choice);
  ASSERT_EQ(2u, rows.size());
  EXPECT_EQ(L"Report.txt", rows[0].Name);
  EXPECT_EQ(L"C:\\Data", rows[0].InFolder);
  EXPECT_EQ(L"12 KB", rows[0].Size);
  EXPECT_EQ(L"1/2/2001 3:04 PM", rows[0].Modified);
  EXPECT_EQ(L"b", rows[1].Name);
  EXPECT_EQ(L"", rows[1].Size);
  EXPECT_EQ(L"", rows[1].Modified);
}

TEST(FindWindows, FindsThreeAtOnce) {
  const StandIn one(L"Find: one", {}), two(L"Find: two", {"x\ty"}), three(L"Find: three", {});
  FindChoice choice;
  choice.FindCandidates();
  ASSERT_EQ(3u, choice.Candidates.size());
  for (int row = 0; row < 3; ++row) {
    choice.Choose(row);
    EXPECT_EQ(choice.FindWindowTitle == L"Find: two" ? 1u : 0u, ReadAll(choice).size());
  }
}

TEST(FindWindows, CutsTextsToWhatFitsIn260Bytes) {
  const StandIn window(L"Find", {std::string(259, 'a') + "\t" + std::string(260, 'b') + "\t" + std::string(400, 'c')});
  const std::vector<FoundItem> rows = ReadAll(ChooseOnly());
  EXPECT_EQ(std::wstring(259, L'a'), rows[0].Name);
  // Windows closes a cut text with a NUL; Wine gives its place to one more character.
  for (const std::wstring& cut : {rows[0].InFolder, rows[0].Size}) {
    EXPECT_TRUE(cut.size() == 259 || cut.size() == 260) << cut.size();
  }
  EXPECT_EQ(std::wstring(259, L'b'), rows[0].InFolder.substr(0, 259));
  EXPECT_EQ(std::wstring(259, L'c'), rows[0].Size.substr(0, 259));
}

TEST(FindWindows, GetsTextsInTheAnsiCodePage) {
  const StandIn window(L"Find: \x00E9\x0416", {"caf\xC3\xA9.txt\t\xD0\x96"});
  const FindChoice choice = ChooseOnly();
  const bool unicodeSystem = GetACP() == CP_UTF8;
  EXPECT_EQ(unicodeSystem ? L"Find: \x00E9\x0416" : L"Find: \x00E9?", choice.FindWindowTitle);
  const std::vector<FoundItem> rows = ReadAll(choice);
  EXPECT_EQ(L"caf\x00E9.txt", rows[0].Name);
  EXPECT_EQ(unicodeSystem ? L"\x0416" : L"?", rows[0].InFolder);
}

TEST(FindWindows, ReadsTenThousandRows) {
  std::vector<std::string> lines;
  for (int row = 0; row < 10'000; ++row) {
    lines.push_back("name" + std::to_string(row) + "\tC:\\f" + std::to_string(row) + "\t1 KB\tText\t1/2/2001");
  }
  const StandIn window(L"Find", lines);
  const std::vector<FoundItem> rows = ReadAll(ChooseOnly());
  ASSERT_EQ(10'000u, rows.size());
  for (std::size_t row = 0; row < rows.size(); ++row) {
    ASSERT_EQ(L"name" + std::to_wstring(row), rows[row].Name);
    ASSERT_EQ(L"C:\\f" + std::to_wstring(row), rows[row].InFolder);
    ASSERT_EQ(L"1/2/2001", rows[row].Modified);
  }
}

TEST(FindWindows, LeavesTheHandlePendingWithoutInnerWindows) {
  for (const wchar_t* lack : {L"without-view", L"without-list"}) {
    const StandIn window(L"Find", {"x"}, lack);
    EXPECT_TRUE(ChooseOnly().IsPending());
  }
}

TEST(FindWindows, ReportsAnOwnerThatDiesWhileItIsRead) {
  const StandIn window(L"Find: mortal", std::vector<std::string>(500, "a\tb\tc\td\te"), L"dies-after 1000");
  const FindChoice choice = ChooseOnly();
  try {
    ReadAll(choice);
    FAIL() << "read to the end";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(FailedAction::ReadWindow, error.Action());
    EXPECT_EQ(L"Find: mortal", error.Object());
    EXPECT_NE(0u, error.SystemCode());
    EXPECT_FALSE(error.SystemText().empty());
  }
}

TEST(FindWindows, ReportsAnOwnerThatStopsAnswering) {
  const StandIn window(L"Find: stuck", {"a\tb\tc\td\te"}, L"hangs-after 2");
  const FindChoice choice = ChooseOnly();
  const ULONGLONG before = GetTickCount64();
  EXPECT_THROW(ReadAll(choice), RuntimeError);
  EXPECT_LT(GetTickCount64() - before, 30'000u);
}

TEST(FindWindows, ReportsAnOwnerThatMayNotBeOpened) {
  const StandIn window(L"Find: locked", {"a"}, L"locked");
  const FindChoice choice = ChooseOnly();
  try {
    ReadAll(choice);
    FAIL() << "read all the same";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(FailedAction::ReadWindow, error.Action());
    EXPECT_EQ(L"Find: locked", error.Object());
    EXPECT_EQ(DWORD{ERROR_ACCESS_DENIED}, error.SystemCode());
  }
}

TEST(SharedMapping, IsSeenByNameAndKeptInItsFile) {
  const std::wstring file = platform::TemporaryDirectory() + L"\\mapping-test.tmp";
  platform::RemoveFile(file);
  const std::byte* view = nullptr;
  {
    const platform::SharedMapping mapping(L"FolivantMappingTest", file, 40);
    ASSERT_EQ(40u, mapping.Bytes().size());
    EXPECT_LT(mapping.Address(), 0x1'0000'0000u);
    mapping.Bytes()[7] = std::byte{0x5A};
    view = mapping.Bytes().data();
    const HANDLE other = OpenFileMappingW(FILE_MAP_READ, FALSE, L"FolivantMappingTest");
    ASSERT_NE(nullptr, other);
    const auto* const seen = static_cast<const std::byte*>(MapViewOfFile(other, FILE_MAP_READ, 0, 0, 0));
    EXPECT_EQ(std::byte{0x5A}, seen[7]);
    UnmapViewOfFile(seen);
    CloseHandle(other);
    EXPECT_FALSE(platform::RemoveFile(file)) << "open and not shared";
  }
  MEMORY_BASIC_INFORMATION memory{};
  ASSERT_NE(0u, VirtualQuery(view, &memory, sizeof(memory)));
  EXPECT_EQ(DWORD{MEM_MAPPED}, memory.Type) << "the view stays mapped";
  EXPECT_EQ(40u, std::filesystem::file_size(file));
  EXPECT_EQ('\x5A', platform::ReadWholeFile(file)[7]);
}

TEST(SharedMapping, WorksAgainInTheSameProcess) {
  const std::wstring file = platform::TemporaryDirectory() + L"\\mapping-again.tmp";
  for (int round = 0; round < 3; ++round) {
    const platform::SharedMapping mapping(L"FolivantMappingAgain", file, 260);
    mapping.Bytes()[259] = std::byte{0x21};
    EXPECT_EQ(260u, mapping.Bytes().size());
  }
}

TEST(SharedMapping, FallsBackToPrivateMemory) {
  const platform::SharedMapping mapping(L"FolivantMappingNowhere", L"C:\\no such folder\\x.tmp", 40);
  ASSERT_EQ(40u, mapping.Bytes().size());
  mapping.Bytes()[39] = std::byte{1};
  EXPECT_EQ(std::byte{1}, mapping.Bytes()[39]);
}

}  // namespace
}  // namespace folivant
