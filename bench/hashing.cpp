// Sums one file as a run does, and measures what Cancel would wait for: the longest time between two moments at which
// the run looks at events. Prints it with the time of the whole.
//    hashing FILE
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>

#include "fakes/RunRecords.h"
#include "output/RecordFields.h"

using namespace folivant;

namespace {

using Clock = std::chrono::steady_clock;

/// Nobody cancels; what counts is how long they would have waited.
class Impatient final : public Progress {
 public:
  void ShowDirectory(std::wstring_view) override { last_ = Clock::now(); }
  void SetProgress(std::int32_t) override {}
  void LetEventsThrough() override {
    const Clock::time_point now = Clock::now();
    longest_ = std::max(longest_, now - last_);
    last_ = now;
  }
  bool Cancelled() const override { return false; }

  double LongestMilliseconds() const { return std::chrono::duration<double, std::milli>(longest_).count(); }

 private:
  Clock::time_point last_;
  Clock::duration longest_{};
};

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    return 2;
  }
  const std::string file = arguments[1];
  const std::wstring path = L"Z:" + std::wstring(file.begin(), file.end());
  fakes::RunRecords records;
  Impatient watcher;
  ListingRun run = records.MakeRun(watcher);
  RecordedFacts facts(run);
  const FileRecord entry;
  const Clock::time_point start = Clock::now();
  const bool summed = facts.Sha256({.Path = path, .Name = path, .Entry = entry}).has_value();
  const std::chrono::duration<double> whole = Clock::now() - start;
  std::printf("longest %.1f ms of %.1f s\n", watcher.LongestMilliseconds(), whole.count());
  return summed ? 0 : 1;
}
