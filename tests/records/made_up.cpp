// Writes an exact record of entries that are on no disk, as many as are asked for, among them names that no file system
// of this machine could hold. tests/records/records_test.py knows the same rules and reads them back; bench/run.py
// measures the memory.
//    made_up KIND FILE COUNT
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <string>
#include <vector>

#include "fakes/RunRecords.h"
#include "output/OutputKinds.h"
#include "output/mdlPrint.h"

using namespace folivant;

namespace {

constexpr std::uint64_t kPerDirectory = 1'000;

std::wstring NameOf(std::uint64_t number) {
  const std::wstring digits = std::to_wstring(number);
  switch (number % 8) {
    case 0:
      return L"Document " + digits + L".txt";
    case 1:
      return L"\u0416\u65E5\u672C " + digits;
    case 2:
      return L"comma, \"quote\" " + digits;
    case 3:
      return L"first half \xD83D " + digits;
    case 4:
      return L"second half " + digits + L"\xDE00";
    case 5:
      return L"both \U0001F600 " + digits;
    case 6:
      return L"line\r\nbreak\t" + digits;
    default:
      return L"=1+" + digits + L" ";
  }
}

/// One directory at a time.
class Entries {
 public:
  Entries() : records_(kPerDirectory), names_(kPerDirectory), order_(kPerDirectory) {
    std::iota(order_.begin(), order_.end(), 0U);
  }

  DirectoryListing Directory(std::uint64_t number, std::uint64_t count) {
    path_ = L"Z:\\Made up\\Folder " + std::to_wstring(number);
    for (std::uint64_t i = 0; i < count; ++i) {
      const std::uint64_t entry = number * kPerDirectory + i;
      names_[i] = NameOf(entry);
      records_[i] = {.Name = names_[i],
                     .AlternateName = {},
                     .Size = entry * 1'000'003,
                     .LastWrite = 100'000'000'000'000'000 + entry * 123'456'789'123,
                     .Attributes = platform::kArchive};
    }
    return {.Path = path_,
            .Records = {records_.data(), count},
            .Order = {order_.data(), count},
            .Summary = {},
            .PathOnDisk = path_};
  }

 private:
  std::vector<FileRecord> records_;
  std::vector<std::wstring> names_;
  std::vector<std::uint32_t> order_;
  std::wstring path_;
};

int List(std::wstring_view kind, const std::wstring& file, std::uint64_t count) {
  const OutputKindRow* row = RowOfSwitchWord(kind);
  if (row == nullptr) {
    return 2;
  }
  fakes::RunRecords records;
  records.OutputFile = file;
  records.Start = {L"Z:\\Made up", L"Z:\\Made up"};
  records.Format.ListingStyle = ListingStyle::IncludeSubdirectories;
  ListingRun run = records.MakeRun();
  OutputDriver driver;
  driver.Choose(row->Kind);
  driver.BeginListing(run);
  Entries entries;
  for (std::uint64_t listed = 0; listed < count; listed += kPerDirectory) {
    driver.ListDirectory(entries.Directory(listed / kPerDirectory, std::min(kPerDirectory, count - listed)));
  }
  driver.EndListing();
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 4) {
    return 2;
  }
  const auto wide = [](const std::string& ascii) { return std::wstring(ascii.begin(), ascii.end()); };
  return List(wide(arguments[1]), wide(arguments[2]), std::strtoull(arguments[3], nullptr, 10));
}
