// Measures the page writer, drawing on a printer in memory, against the text writer: 100,000 entries of 1,000
// directories, in alternating pairs, without the walk. Prints the median of the paired ratios.
//    writers TEXTFILE [rounds]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <numeric>
#include <string>
#include <vector>

#include "fakes/RecordingSurface.h"
#include "fakes/RunRecords.h"
#include "output/mdlPrint.h"

using namespace folivant;

namespace {

constexpr std::size_t kDirectories = 1'000;
constexpr std::size_t kEntries = 100;  // of each directory

/// The entries of a directory as they come: most names fit into their column, some do not.
class Entries {
 public:
  Entries() {
    for (std::size_t i = 0; i < kEntries; ++i) {
      names_.push_back((i % 10 == 9 ? L"A long name that does not fit into its column " : L"Document ") +
                       std::to_wstring(i) + L".txt");
    }
    for (std::size_t i = 0; i < kEntries; ++i) {
      FileRecord record;
      record.Name = names_[i];
      record.AlternateName = L"docume~1.txt";
      record.Size = i * 97'531;
      record.ShownWrite = 126'000'000'000'000'000 + i * 987'654'321'000;
      record.Attributes = platform::kArchive;
      records_.push_back(record);
    }
    std::iota(order_.begin(), order_.end(), 0U);
  }
  DirectoryListing Listing() const {
    return {.Path = L"Z:\\Data\\Some folder",
            .Level = 1,
            .Records = records_,
            .Order = order_,
            .Summary = L"100 files, 4,882 kb"};
  }

 private:
  std::vector<std::wstring> names_;
  std::vector<FileRecord> records_;
  std::vector<std::uint32_t> order_ = std::vector<std::uint32_t>(kEntries);
};

class Bench : fakes::RunRecords {
 public:
  explicit Bench(std::wstring file) {
    OutputFile = std::move(file);
    General.TextWidth = 80;
    General.MarginLeft = General.MarginRight = General.MarginTop = General.MarginBottom = 20;
    General.FontName = L"Courier New";
    General.FontSize = 10;
    General.Font80HF = true;
    General.Header = L"%p";
    General.Footer = L"- %n -";
    Format.Files = {true, true, true, true, true};
    Start = {L"Z:\\", L"Z:\\"};
  }

  double Seconds(OutputKind kind) {
    ListingRun run = MakeRun();
    driver_.Choose(kind);
    const auto start = std::chrono::steady_clock::now();
    driver_.BeginListing(run);
    for (std::size_t i = 0; i < kDirectories; ++i) {
      driver_.ListDirectory(entries_.Listing());
    }
    driver_.EndListing();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  }

 private:
  Entries entries_;
  OutputDriver driver_;
};

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) {
    return 2;
  }
  const std::string file = arguments[1];
  const int rounds = count > 2 ? std::atoi(arguments[2]) : 9;
  Bench bench(L"Z:" + std::wstring(file.begin(), file.end()));
  std::vector<double> ratios;
  std::vector<double> texts;
  for (int i = 0; i < rounds; ++i) {
    texts.push_back(bench.Seconds(OutputKind::Text));
    ratios.push_back(bench.Seconds(OutputKind::Printer) / texts.back());
  }
  const auto median = [](std::vector<double>& values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
  };
  std::printf("text %.3f s, pages %.2f times that, %d pages\n", median(texts), median(ratios), fakes::Printer().Pages);
  return 0;
}
