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
#include "output/mdlPrint.h"

using namespace folivant;

namespace {

constexpr std::size_t kDirectories = 1'000;
constexpr std::size_t kEntries = 100;  // of each directory

/// Names and sizes of a directory as they come: most fit into their column, some do not.
class Entries {
 public:
  Entries() {
    for (std::size_t i = 0; i < kEntries; ++i) {
      names_.push_back((i % 10 == 9 ? L"A long name that does not fit into its column " : L"Document ") +
                       std::to_wstring(i) + L".txt");
      sizes_.push_back(std::to_wstring(i * 97 % 9'999) + (i % 2 == 0 ? L" b " : L" kb"));
    }
    for (std::size_t i = 0; i < kEntries; ++i) {
      FileRecord record;
      record.Name = names_[i];
      record.DosName = L"docume~1.txt";
      record.SizeText = sizes_[i];
      record.DateText = L"2001/02/03 04:05";
      record.AttrText = L" a   ";
      records_.push_back(record);
    }
    std::iota(order_.begin(), order_.end(), 0U);
  }
  DirectoryListing Listing() const { return {L"C:\\Data\\Some folder", 1, records_, order_, L"100 files, 4,882 kb"}; }

 private:
  std::vector<std::wstring> names_;
  std::vector<std::wstring> sizes_;
  std::vector<FileRecord> records_;
  std::vector<std::uint32_t> order_ = std::vector<std::uint32_t>(kEntries);
};

class Bench {
 public:
  explicit Bench(std::wstring file) : outputFile_(std::move(file)) {
    general_.TextWidth = 80;
    general_.MarginLeft = general_.MarginRight = general_.MarginTop = general_.MarginBottom = 20;
    general_.FontName = L"Courier New";
    general_.FontSize = 10;
    general_.Font80HF = true;
    general_.Header = L"%p";
    general_.Footer = L"- %n -";
    format_.Files = {true, true, true, true, true};
    tree_.StartPath = tree_.StartPathOnDisk = L"Z:\\";
  }

  double Seconds(OutputKind kind) {
    kind_ = kind;
    pageNumber_ = 0;
    const auto start = std::chrono::steady_clock::now();
    driver_.BeginListing();
    for (std::size_t i = 0; i < kDirectories; ++i) {
      driver_.ListDirectory(entries_.Listing());
    }
    driver_.EndListing();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  }

 private:
  Entries entries_;
  Messages texts_;
  GeneralSettings general_;
  PrinterSettings printer_;
  FilterSettings filter_;
  ListingFormat format_;
  ScanTree tree_;
  OutputKind kind_ = OutputKind::Text;
  std::wstring outputFile_;
  std::wstring datePattern_ = L"yyyy/mm/dd";
  std::int16_t pageNumber_ = 0;
  ListingRun run_{texts_, general_, printer_, filter_, format_, tree_, kind_, outputFile_, datePattern_, pageNumber_};
  OutputDriver driver_{run_};
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
