// A page writer under test and the recording printer that it prints on. Every number in its tests is worked out by hand
// from the printer's measures: in 10 points a character is 120 twips wide, a blank 60 and a line 220 high (in bold 130,
// 70, 220); in 8 points 96, 48 and 176. The sheet is 12,000 by 16,000 twips with margins of one inch, so lines begin at
// 1,440 and are 9,120 wide, and the body ends at 14,560.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "fakes/FakePlatform.h"
#include "fakes/RecordingSurface.h"
#include "fakes/RunRecords.h"
#include "output/mdlPrintPrinter.h"

namespace folivant {

inline constexpr double kOrigin = 1440;
inline constexpr double kLine = 220;
/// The header's line of 8 points, and two empty ones below the top margin.
inline constexpr double kCaptions = 1440 + 176 + 2 * kLine;
/// Where the first line of a page without a heading stands.
inline constexpr double kFirstLine = kCaptions + kLine;
/// Heading of the first directory: one empty line, the heading, one empty line, captions, one empty line.
inline constexpr double kFirstHeading = kFirstLine + kLine;
inline constexpr double kFirstEntry = kFirstHeading + 4 * kLine;

class PageWriter : public ::testing::Test, protected fakes::RunRecords {
 protected:
  PageWriter() {
    printer.Reset();
    printer.Area = {12000, 16000, 0, 0, 0, 0};
    SetUpTexts();
    General.Inches = true;
    General.MarginLeft = General.MarginRight = General.MarginTop = General.MarginBottom = 1;
    General.Portrait = true;
    General.FontName = L"Courier New";
    General.FontSize = 10;
    General.Font80HF = true;
    General.Header = L"H %n";
    General.Footer = L"F %n";
    Format.Files = {true, true, true, true, true};
    Format.Directories = {true, true, true, true};
    Printer = {L"Laser", 3, 2, -4, 4};
    fakes::Fake().FreeSpace[L"C:\\"] = {5'000'000, 20'000'000};
  }

  void SetUpTexts() {
    const std::pair<TextId, const wchar_t*> rows[] = {{TextId::NameCaption, L"Name"},
                                                      {TextId::DosNameCaption, L"DosName"},
                                                      {TextId::SizeCaption, L"Size"},
                                                      {TextId::DateCaption, L"Date"},
                                                      {TextId::AttributesCaption, L"Attr"},
                                                      {TextId::FolderCaption, L"Folder"},
                                                      {TextId::DirectoryHeading, L"Directory"},
                                                      {TextId::DirectoryCaption, L"Where"},
                                                      {TextId::FilesCaption, L"Files"},
                                                      {TextId::DirectorySizeCaption, L"Bytes"},
                                                      {TextId::TotalFilesCaption, L"All"},
                                                      {TextId::TotalSizeCaption, L"Sum"},
                                                      {TextId::UnitBytes, L"b "},
                                                      {TextId::UnitKilobytes, L"kb"},
                                                      {TextId::UnitMegabytes, L"Mb"},
                                                      {TextId::File, L"file"},
                                                      {TextId::Files, L"files"},
                                                      {TextId::JoiningWord, L","},
                                                      {TextId::DirectoryWord, L"directory"},
                                                      {TextId::DirectoriesWord, L"directories"},
                                                      {TextId::FreeOf, L"free of"},
                                                      {TextId::NoLabel, L"no label"}};
    for (const auto& [number, text] : rows) {
      Texts.Set(static_cast<std::size_t>(number), text);
    }
  }

  ListingWriter& Begin(ListingStyle style) { return Begin(style, Run); }
  ListingWriter& Begin(ListingStyle style, ListingRun& run) {
    Format.ListingStyle = style;
    writer->BeginListing(run);
    if (style == ListingStyle::DirectoryView) {
      writer->BeginDirectoryView();
    }
    return *writer;
  }

  /// "Entry.txt", "short.txt", "1,024 b ", "2001/02/03 04:05" and " a   " on a page, for the name "entry.txt".
  static FileRecord Entry(std::wstring_view name, std::int32_t level = 0) {
    FileRecord entry;
    entry.Name = name;
    entry.AlternateName = L"SHORT.TXT";
    entry.Size = 1'024;
    entry.ShownWrite = fakes::FileTime({2001, 2, 3, 4, 5, 0});
    entry.Attributes = platform::kArchive;
    entry.Level = level;
    return entry;
  }

  /// One directory with `count` entries of the same name.
  void ListDirectory(std::wstring_view path, std::size_t count, std::wstring_view name = L"entry.txt") {
    const std::vector<FileRecord> records(count, Entry(name));
    std::vector<std::uint32_t> order(count);
    std::iota(order.begin(), order.end(), 0U);
    const DirectoryListing listing{path, 0, records, order, L"the summary"};
    if (Format.ListingStyle == ListingStyle::FullPathList) {
      writer->ListPaths(listing);
    } else {
      writer->ListDirectory(listing);
    }
  }

  static DirNode Node(std::wstring_view name, std::int32_t level) {
    DirNode node;
    node.Name = node.Path = name;
    node.Level = level;
    node.Files = 7;
    node.Size = Currency::FromWhole(9'999);
    node.TotalFiles = 1'234;
    node.TotalSize = Currency::FromWhole(5'000'000);
    return node;
  }

  fakes::RecordingPrinter& printer = fakes::Printer();  ///< where a job arrives; Printer are its settings
  ListingRun Run = MakeRun();
  std::unique_ptr<ListingWriter> writer = MakePrinterWriter();
};

}  // namespace folivant
