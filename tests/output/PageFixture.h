// A page writer under test and the recording printer that it prints on. Every number in its tests is worked out by hand
// from the printer's measures: in 10 points a character is 120 twips wide, a blank 60 and a line 220 high (in bold 130,
// 70, 220); in 8 points 96, 48 and 176. The sheet is 12,000 by 16,000 twips with margins of one inch, so lines begin at
// 1,440 and are 9,120 wide, and the body ends at 14,560.
#pragma once

#include <gtest/gtest.h>

#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "fakes/FakePlatform.h"
#include "fakes/RecordingSurface.h"
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

class PageWriter : public ::testing::Test {
 protected:
  PageWriter() {
    printer.Reset();
    printer.Area = {12000, 16000, 0, 0, 0, 0};
    SetUpTexts();
    general.Inches = true;
    general.MarginLeft = general.MarginRight = general.MarginTop = general.MarginBottom = 1;
    general.Portrait = true;
    general.FontName = L"Courier New";
    general.FontSize = 10;
    general.Font80HF = true;
    general.Header = L"H %n";
    general.Footer = L"F %n";
    format.Files = {true, true, true, true, true};
    format.Directories = {true, true, true, true};
    tree.StartPath = tree.StartPathOnDisk = L"C:\\Data";
    fakes::Fake().FreeSpace[L"C:\\"] = {5'000'000, 20'000'000};
  }

  void SetUpTexts() {
    const std::pair<Text, const wchar_t*> rows[] = {{Text::NameCaption, L"Name"},
                                                    {Text::DosNameCaption, L"DosName"},
                                                    {Text::SizeCaption, L"Size"},
                                                    {Text::DateCaption, L"Date"},
                                                    {Text::AttributesCaption, L"Attr"},
                                                    {Text::FolderCaption, L"Folder"},
                                                    {Text::DirectoryHeading, L"Directory"},
                                                    {Text::DirectoryCaption, L"Where"},
                                                    {Text::FilesCaption, L"Files"},
                                                    {Text::DirectorySizeCaption, L"Bytes"},
                                                    {Text::TotalFilesCaption, L"All"},
                                                    {Text::TotalSizeCaption, L"Sum"},
                                                    {Text::UnitBytes, L"b "},
                                                    {Text::UnitKilobytes, L"kb"},
                                                    {Text::UnitMegabytes, L"Mb"},
                                                    {Text::File, L"file"},
                                                    {Text::Files, L"files"},
                                                    {Text::JoiningWord, L","},
                                                    {Text::DirectoryWord, L"directory"},
                                                    {Text::DirectoriesWord, L"directories"},
                                                    {Text::FreeOf, L"free of"},
                                                    {Text::NoLabel, L"no label"}};
    for (const auto& [number, text] : rows) {
      texts.Set(static_cast<std::size_t>(number), text);
    }
  }

  PrinterWriter& Begin(ListingStyle style) {
    format.ListingStyle = style;
    pageNumber = 0;
    writer.BeginListing();
    return writer;
  }

  static FileRecord Entry(std::wstring_view name, std::int32_t level = 0) {
    FileRecord entry;
    entry.Name = name;
    entry.DosName = L"short.txt";
    entry.SizeText = L"1,024 b ";
    entry.DateText = L"2001/02/03 04:05";
    entry.AttrText = L" a   ";
    entry.Level = level;
    return entry;
  }

  /// One directory with `count` entries of the same name.
  void ListDirectory(std::wstring_view path, std::size_t count, std::wstring_view name = L"entry.txt") {
    const std::vector<FileRecord> records(count, Entry(name));
    std::vector<std::uint32_t> order(count);
    std::iota(order.begin(), order.end(), 0U);
    writer.ListDirectory({path, 0, records, order, L"the summary"});
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

  fakes::RecordingPrinter& printer = fakes::Printer();
  Messages texts;
  GeneralSettings general;
  PrinterSettings settings{L"Laser", 3, 2, -4, 4};
  FilterSettings filter;
  ListingFormat format;
  ScanTree tree;
  OutputKind kind = OutputKind::Printer;
  std::wstring outputFile;
  std::wstring datePattern = L"yyyy/mm/dd";
  std::int16_t pageNumber = 0;
  ListingRun run{texts, general, settings, filter, format, tree, kind, outputFile, datePattern, pageNumber};
  PrinterWriter writer{run};
};

}  // namespace folivant
