// Reads ten thousand rows of another program's list view, against the floor of sending as many bare messages as there
// are cells; prints both times and their ratio. How many calls cross the process border is counted by a unit test.
#include <cstdio>

#include "find/StandIn.h"
#include "shell/FindChoice.h"
#include "shell/FindResults.h"

using namespace folivant;

int main() {
  constexpr int kRows = 10'000;
  const tests::StandIn window(L"Find: bench",
                              std::vector<std::string>(kRows, "name.txt\tC:\\Data\t1 KB\tText\t1/2/2001"));
  FindChoice choice;
  choice.FindCandidates();
  choice.Choose(0);
  for (int round = 0; round < 3; ++round) {
    const ULONGLONG start = GetTickCount64();
    FindResults results(choice.FindListHandle, choice.FindWindowTitle);
    std::vector<FoundItem> rows(static_cast<std::size_t>(results.RowCount()));
    results.Read(rows, [](std::int32_t) { return true; });
    const ULONGLONG read = GetTickCount64();
    platform::ForeignWindow bare(choice.FindListHandle, choice.FindWindowTitle);
    for (int cell = 0; cell < 4 * kRows; ++cell) {
      bare.Send(0x1004, 0, 0);
    }
    const ULONGLONG floor = GetTickCount64();
    std::printf("%d rows: %llu ms, %d bare messages: %llu ms, ratio %.2f\n", kRows, read - start, 4 * kRows,
                floor - read, static_cast<double>(read - start) / static_cast<double>(floor - read));
  }
}
