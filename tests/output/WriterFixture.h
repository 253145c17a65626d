// A writer under test with the records that it reads and the file that it writes.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/FakePlatform.h"
#include "fakes/RunRecords.h"
#include "output/TestTexts.h"
#include "scan/ListingWriter.h"

namespace folivant {

class WriterFixture : public testing::Test, protected fakes::RunRecords {
 protected:
  WriterFixture() {
    fakes::Fake().Now = {2026, 11, 16, 14, 5, 0};
    fakes::Fake().FreeSpace[L"C:\\"] = {5'000'000'000, 20'000'000'000};
    fakes::Tree().Dir(L"C:\\Out");
    fakes::Tree().Dir(L"C:\\Data");
    Texts = TestTexts();
    General.TextWidth = 80;
    General.Header = L"%p";
    General.FontName = L"Arial";
    Format.Files = {true, true, true, true, true};
    Format.Directories = {true, true, true, true};
  }

  void Style(ListingStyle style) { Format.ListingStyle = style; }
  std::string Written() const { return fakes::Fake().Content(OutputFile); }
  /// The lines written, without their CR LF. Fails the test when one ends otherwise.
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    std::string rest = Written();
    for (std::size_t end = rest.find("\r\n"); end != rest.npos; end = rest.find("\r\n")) {
      lines.push_back(rest.substr(0, end));
      rest.erase(0, end + 2);
    }
    EXPECT_EQ(rest, "") << "the last line has no end";
    return lines;
  }

  static FileRecord File(std::wstring_view name) {
    FileRecord record;
    record.Name = name;
    record.AlternateName = L"SHORT.NAM";
    record.Size = 1'234;
    record.ShownWrite = fakes::FileTime({2026, 1, 2, 3, 4, 0});
    record.Attributes = platform::kArchive;
    return record;
  }
  static FileRecord Directory(std::wstring_view name, std::int32_t level = 0) {
    FileRecord record = File(name);
    record.Size = 0;
    record.Attributes = platform::kDirectory;
    record.Level = level;
    return record;
  }
  /// Raises the event of a directory in the style that is set, with `records` in the given order.
  void List(ListingWriter& writer, std::wstring_view path, const std::vector<FileRecord>& records,
            std::int32_t level = 0) const {
    std::vector<std::uint32_t> order(records.size());
    for (std::uint32_t i = 0; i < order.size(); ++i) {
      order[i] = i;
    }
    const bool follow = Format.ListingStyle == ListingStyle::IncludeSubdirectories;
    const DirectoryListing listing{path, level, records, order, L"the summary", follow, path};
    if (Format.ListingStyle == ListingStyle::FullPathList) {
      writer.ListPaths(listing);
    } else {
      writer.ListDirectory(listing);
    }
  }

  ListingRun Run = MakeRun();
};

}  // namespace folivant
