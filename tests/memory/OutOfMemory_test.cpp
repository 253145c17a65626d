// Runs with "/g" in which an allocation fails, each of them in turn: either that one alone, or all that come after it,
// too. Wherever that is, the run ends by telling so or is as complete as if nothing had happened. It never crashes, and
// no file stays open.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <new>
#include <string>
#include <utility>

#include "app/CopyListing.h"
#include "app/Settings.h"
#include "app/StartUp.h"
#include "app/mdlVars.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeSession.h"
#include "fakes/RecordingSurface.h"
#include "shell/mdlFind.h"

namespace {

/// How many allocations go well before one fails; below 0 all of them do.
std::int64_t allocationsLeft = -1;
bool shortageStays = false;

void* Allocate(std::size_t size) noexcept {
  if (allocationsLeft == 0) {
    allocationsLeft = shortageStays ? 0 : -1;
    return nullptr;
  }
  allocationsLeft -= allocationsLeft > 0 ? 1 : 0;
  return std::malloc(size == 0 ? 1 : size);
}

}  // namespace

// The library's own forms for arrays and for those that must not throw call these.
void* operator new(std::size_t size) {
  if (void* const memory = Allocate(size)) {
    return memory;
  }
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace folivant {
namespace {

using fakes::Fake;

constexpr wchar_t kOutput[] = L"C:\\Out\\list.txt";

/// A small tree with a bit of everything, and a printer; as nothing had run before.
void MakeMachine() {
  Fake().Reset();
  fakes::Printer().Reset();
  fakes::Session() = {};
  fakes::Session().Printers = {L"Laser"};
  mdlVars::OutputFile.clear();
  mdlVars::OutputKind = OutputKind::Text;
  mdlVars::Texts = {};
  auto& tree = fakes::Tree();
  tree.Dir(L"C:\\Data").File(L"A long name of some file in the tree.txt", 5);
  tree.Dir(L"C:\\Data\\Below").File(L"B.txt", 70'000);
  tree.Dir(L"C:\\Data\\Below\\Far below").File(L"C", 1);
  tree.Dir(L"C:\\Out");
  tree.Dir(L"C:\\Work");
  tree.File(L"C:\\paths.lst", "C:\\Data\\Below\\B.txt\r\n");
  tree.File(L"C:\\Program Files\\Folivant\\english.ini",
            "[Messages]\r\n13=OK\r\n160=Cannot create \"%1\": %2 (%3)\r\n184=Unexpected.\r\n185=No memory.\r\n");
}

struct Run {
  const char* Settings;
  const wchar_t* Letter;
};
/// The name of its test.
void PrintTo(const Run& run, std::ostream* out) {
  *out << std::string(run.Settings).substr(0, 8) << static_cast<char>(run.Letter[0]);
}

/// What a run gave: its file, or what is on paper.
std::string ListingOf(const Run& run) {
  if (run.Letter[0] != L'p') {
    return Fake().Content(kOutput);
  }
  std::string drawn = std::to_string(fakes::Printer().Ended);
  for (const fakes::DrawnText& text : fakes::Printer().Drawn) {
    drawn += "\n" + testing::PrintToString(std::wstring(text.Text));
  }
  return drawn;
}

constexpr std::int64_t kNever = std::int64_t{1} << 40;

/// The status of a start whose allocation after `count` others fails, and how many went well.
struct Outcome {
  int Status = 0;
  std::int64_t Allocations = 0;
};
Outcome StartWith(const std::wstring& line, std::int64_t count) {
  allocationsLeft = count;
  const int status = Start(line);
  const std::int64_t left = std::exchange(allocationsLeft, -1);
  return {status, count - left};
}

Outcome ListWith(const Run& run, std::int64_t count) {
  MakeMachine();
  fakes::Tree().File(L"C:\\a.fvf",
                     std::string("[Folivant 3.5]\r\nFShow=11111\r\n") + run.Settings + "Path=C:\\Data\r\n");
  return StartWith(std::wstring(L"/f C:\\a.fvf /t ") + run.Letter + L" /o " + kOutput + L" /g", count);
}

/// Lets each allocation of a run fail, from the one after `first` others on; returns how many of these runs failed.
int ExpectEachIsTold(const Run& run, std::int64_t first, bool stays) {
  const Outcome whole = ListWith(run, kNever);
  EXPECT_EQ(whole.Status, kExitDone);
  const std::string complete = ListingOf(run);
  int failed = 0;
  for (std::int64_t count = first; count < whole.Allocations; ++count) {
    shortageStays = stays;
    const int status = ListWith(run, count).Status;
    const auto& messages = Fake().Messages;
    const bool isTold = messages.size() == (stays ? 0 : 1) && Fake().LastMessage.data() == std::wstring(L"No memory.");
    const bool isComplete = status == kExitDone && messages.empty() && ListingOf(run) == complete;
    if (!(status == kExitFailed && isTold) && !isComplete) {
      ADD_FAILURE() << "after " << count << " allocations: status " << status << ", " << messages.size()
                    << " messages, " << testing::PrintToString(std::wstring(Fake().LastMessage.data()));
      break;
    }
    EXPECT_EQ(Fake().OpenOutputFiles, 0) << "after " << count << " allocations";
    failed += isComplete ? 0 : 1;
  }
  return failed;
}

TEST(OutOfMemoryAtTheStart, IsTold) {
  EXPECT_GT(ExpectEachIsTold({"Format=0\r\n", L"t"}, 0, false), 500);
}

class OutOfMemory : public testing::TestWithParam<Run> {
 protected:
  static std::int64_t UntilTheCommandLine() {
    MakeMachine();
    return StartWith(L"/f C:\\none.fvf /g", kNever).Allocations;
  }
};

TEST_P(OutOfMemory, IsToldAndNoFileStaysOpen) {
  EXPECT_GT(ExpectEachIsTold(GetParam(), UntilTheCommandLine(), false), 30);
}

// The message box itself is the test's: its record needs memory, so the message is on its way and none arrives.
TEST_P(OutOfMemory, IsToldWithoutAnyFurtherMemory) {
  EXPECT_GT(ExpectEachIsTold(GetParam(), UntilTheCommandLine(), true), 30);
}

/// Copies a listing with the allocation after `count` others failing; false when that was told.
bool CopyWith(std::int64_t count) {
  MakeMachine();
  LoadSettings();
  mdlVars::Start = {L"C:\\Data", L"C:\\Data"};
  Fake().Clipboard = L"before";
  OutputDriver output;
  FindCapture rows(mdlVars::MakeDialogContext());
  NoProgress nobody;
  allocationsLeft = count;
  bool copied = true;
  try {
    CopyListing(output, rows, nobody);
  } catch (const std::bad_alloc&) {
    copied = false;
  }
  allocationsLeft = -1;
  return copied;
}

TEST(OutOfMemoryWhileCopying, LeavesTheClipboardAsItIs) {
  ASSERT_TRUE(CopyWith(kNever));
  const std::optional<std::wstring> whole = Fake().Clipboard;
  shortageStays = false;
  int failed = 0;
  for (std::int64_t count = 0; count < 2'000; ++count) {
    const bool copied = CopyWith(count);
    EXPECT_EQ(Fake().Clipboard, copied ? whole : L"before") << "after " << count << " allocations";
    EXPECT_EQ(Fake().OpenOutputFiles, 0);
    failed += copied ? 0 : 1;
  }
  EXPECT_GT(failed, 30);
}

INSTANTIATE_TEST_SUITE_P(All, OutOfMemory,
                         testing::Values(Run{"Format=1\r\n", L"h"}, Run{"Format=2\r\n", L"c"},
                                         Run{"Format=3\r\n", L"x"}, Run{"Format=4\r\n", L"a"},
                                         Run{"Format=6\r\nPath=C:\\paths.lst\r\n", L"t"}, Run{"Format=1\r\n", L"p"},
                                         Run{"Format=2\r\n", L"p"}, Run{"Format=3\r\n", L"p"}));

}  // namespace
}  // namespace folivant
