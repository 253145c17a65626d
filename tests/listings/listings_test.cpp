// Whole runs compared byte for byte with expectations that were worked out by hand. A folder holds a tree (tree.txt)
// and, for each run below, one file for every kind of output, whose ending tells the kind. Expectations are UTF-8 with
// plain line ends, whatever the kind's own encoding and line ends; lengths, blanks at the ends of lines included, are
// exact.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <sstream>

#include "fakes/RunRecords.h"
#include "listings/TreeFile.h"
#include "output/TestTexts.h"
#include "output/mdlPrint.h"
#include "res/Version.h"
#include "scan/mdlScan.h"
#include "shell/mdlFind.h"

namespace folivant::listings {
namespace {

const std::wstring kOutput = L"C:\\Out\\list";

/// Cancels the run when a directory is shown.
class CancelAt final : public Progress {
 public:
  explicit CancelAt(std::wstring_view directory) : directory_(directory) {}
  void ShowDirectory(std::wstring_view path) override { cancelled_ = cancelled_ || path == directory_; }
  void SetProgress(std::int32_t) override {}
  void LetEventsThrough() override {}
  bool Cancelled() const override { return cancelled_; }

 private:
  std::wstring_view directory_;
  bool cancelled_ = false;
};

/// The records of a run, and how each run below sets them.
struct Records : fakes::RunRecords {
  FoundRows FindWindow;

  /// Name, size and date in lines of 44 characters: 16 for the name.
  void UsualColumns() {
    General.TextWidth = 44;
    General.Header = L"%p %d %t";
    General.FontName = L"Courier New";
    General.DateFormat = 5;
    Filter.NameOn = true;
    Filter.FilterName = L"*.*";
    Format.Files = {.Name = true, .Size = true, .Date = true};
    Format.Directories = {true, true, true, true};
  }

  void NamesOnly() {
    UsualColumns();
    General.TextWidth = 20;
    General.Header = L"%p";
    Filter.NameOn = false;
    Format.Files = {.Name = true};
    Format.Directories = {};
  }

  template <ListingStyle style>
  void Usual() {
    UsualColumns();
    Format.ListingStyle = style;
  }

  void UsualView() {
    Usual<ListingStyle::DirectoryView>();
    General.TextWidth = 70;
  }

  void UsualFileList() {
    UsualColumns();
    General.TextWidth = 80;
  }

  void FindWindowRows() {
    UsualFileList();
    Format.ListingStyle = ListingStyle::FindWindow;
    FindWindow.Title = L"Find: *.txt";
    FindWindow.Items = {
        {L"Deep.txt", L"C:\\Data\\Alpha\\Beta", L"10KB", L"1/4/2026 5:06 AM"},
        {L"a&b <c> rather long.txt", L"C:\\Data\\Some.folder with a long name here & there", L"1KB",
         L"1/8/2026 9:10 AM"},
    };
  }

  void PathListRows() {
    UsualFileList();
    Format.ListingStyle = ListingStyle::PathListFile;
    fakes::Tree().File(L"C:\\list.txt", "C:\\Data\\readme.txt\r\n\r\nc:\\data\\alpha\\one.bin\r\n");
    Start = {L"C:\\list.txt", L"C:\\list.txt"};
  }

  template <ListingStyle style, std::int32_t subLevel>
  void Names() {
    NamesOnly();
    Format.ListingStyle = style;
    Format.SubLevel = subLevel;
  }

  template <ListingStyle style>
  void NoColumns() {
    Names<style, 0>();
    Format.Files = {};
  }

  template <ListingStyle style, std::int32_t subLevel>
  void NamesAndEmptyDirectories() {
    Names<style, subLevel>();
    General.EmptyDirs = true;
  }

  template <std::int32_t subLevel>
  void FilesAndTotalSize() {
    Names<ListingStyle::DirectoryView, subLevel>();
    General.TextWidth = 50;
    Format.Directories = {.Files = true, .TotalSize = true};
  }

  template <ListingStyle style>
  void AllColumns() {
    Usual<style>();
    General.TextWidth = 80;
    General.Header = L"%p [%l] %f %g p.%n";
    Format.Files = {true, true, true, true, true};
  }

  template <ListingStyle style>
  void NamesAndLabel() {
    Names<style, 0>();
    General.Header = L"%p %l";
  }
};

struct Step {
  void (Records::*Configure)();
  std::wstring_view CancelledAt;  ///< empty for a run that nobody cancels
};

struct ListedRun {
  const char* Tree;
  const char* Name;
  const char* Kinds;  ///< endings of the expectations
  std::vector<Step> Steps;
};

constexpr const char* kAll = "txt tab csv html xml exact-csv jsonl sha256";

const std::vector<ListedRun>& Runs() {
  using enum ListingStyle;
  static const std::vector<ListedRun> runs = {
      {"office", "no-subdirectories", kAll, {{&Records::Usual<NoSubdirectories>, {}}}},
      {"office", "include-subdirectories", kAll, {{&Records::Usual<IncludeSubdirectories>, {}}}},
      {"office", "tree-style", kAll, {{&Records::Usual<TreeStyle>, {}}}},
      {"office", "directory-view", kAll, {{&Records::UsualView, {}}}},
      {"office", "full-path-list", kAll, {{&Records::Usual<FullPathList>, {}}}},
      {"office", "find-window", kAll, {{&Records::FindWindowRows, {}}}},
      {"office", "path-list-file", kAll, {{&Records::PathListRows, {}}}},

      {"office", "depth-1", "txt html xml", {{&Records::Names<IncludeSubdirectories, 1>, {}}}},
      {"office",
       "depth-2-empty-listed",
       "txt html xml",
       {{&Records::NamesAndEmptyDirectories<IncludeSubdirectories, 2>, {}}}},
      {"office", "depth-negative", "txt", {{&Records::Names<IncludeSubdirectories, -1>, {}}}},
      {"office", "tree-depth-1", "txt html xml", {{&Records::Names<TreeStyle, 1>, {}}}},
      {"office", "tree-depth-negative", "xml", {{&Records::Names<TreeStyle, -3>, {}}}},
      {"office", "view-depth-1", "txt html xml", {{&Records::FilesAndTotalSize<1>, {}}}},
      {"office", "view-depth-negative", "txt html xml", {{&Records::FilesAndTotalSize<-1>, {}}}},

      {"office", "tree-no-columns", "txt html xml", {{&Records::NoColumns<TreeStyle>, {}}}},
      {"office", "include-no-columns", "tab csv", {{&Records::NoColumns<IncludeSubdirectories>, {}}}},
      {"office", "view-no-columns", "txt xml", {{&Records::NoColumns<DirectoryView>, {}}}},

      {"office",
       "cancelled",
       "txt html xml exact-csv jsonl sha256",
       {{&Records::NamesAndEmptyDirectories<IncludeSubdirectories, 1>, L"C:\\Data\\Alpha"}}},
      {"office", "tree-cancelled", "txt html xml", {{&Records::Names<TreeStyle, 0>, L"C:\\Data\\Alpha\\Beta"}}},
      // Breaks off in the middle of a line, so the expectation has no last line end.
      {"office", "tree-depth-1-cancelled", "xml", {{&Records::Names<TreeStyle, 1>, L"C:\\Data\\Alpha"}}},
      {"office",
       "tree-after-cancelled",
       "txt html xml",
       {{&Records::Names<TreeStyle, 0>, L"C:\\Data\\Alpha\\Beta"}, {&Records::Names<TreeStyle, 0>, {}}}},
      {"office",
       "view-after-cancelled",
       "xml",
       {{&Records::Names<TreeStyle, 0>, L"C:\\Data\\Alpha\\Beta"}, {&Records::Names<DirectoryView, 0>, {}}}},

      {"odd-names", "all-columns", kAll, {{&Records::AllColumns<IncludeSubdirectories>, {}}}},
      {"odd-names", "tree-all-columns", "html xml", {{&Records::AllColumns<TreeStyle>, {}}}},

      {"drive-root",
       "include-subdirectories",
       "txt tab csv html",
       {{&Records::NamesAndLabel<IncludeSubdirectories>, {}}}},
      {"drive-root", "full-path-list", "txt html xml", {{&Records::NamesAndLabel<FullPathList>, {}}}},
      {"drive-root", "directory-view", "txt xml", {{&Records::NamesAndLabel<DirectoryView>, {}}}},

      {"nothing",
       "include-subdirectories",
       "txt html xml exact-csv jsonl sha256",
       {{&Records::Names<IncludeSubdirectories, 0>, {}}}},
      {"nothing", "tree-style", "txt html xml", {{&Records::Names<TreeStyle, 0>, {}}}},
      {"nothing", "directory-view", "xml", {{&Records::Names<DirectoryView, 0>, {}}}},
      {"nothing", "full-path-list", "txt", {{&Records::Names<FullPathList, 0>, {}}}},
  };
  return runs;
}

struct Case {
  const ListedRun* Listed;
  std::string Ending;
};

std::string NameOf(const Case& listing) {
  std::string name = std::string(listing.Listed->Tree) + "_" + listing.Listed->Name + "_" + listing.Ending;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

void PrintTo(const Case& listing, std::ostream* out) {
  *out << NameOf(listing);
}

std::vector<Case> Cases() {
  std::vector<Case> cases;
  for (const ListedRun& run : Runs()) {
    std::istringstream endings(run.Kinds);
    for (std::string ending; endings >> ending;) {
      cases.push_back({&run, ending});
    }
  }
  return cases;
}

/// What an expectation's ending tells: the kind, and how its text stands in the file.
struct Ending {
  OutputKind Kind;
  std::string (*InFile)(const std::string& expectation);
};

/// UTF-8 with a mark, lines that end in CR LF.
std::string WithMark(const std::string& utf8) {
  return "\xEF\xBB\xBF" + std::regex_replace(utf8, std::regex("\n"), "\r\n");
}
/// UTF-8 and LF, as the expectation itself.
std::string WithVersion(const std::string& utf8) {
  return std::regex_replace(utf8, std::regex("<version>"), VERSION_TEXT);
}

const Ending& EndingOf(const std::string& name) {
  static const std::map<std::string, Ending> endings = {{"txt", {OutputKind::Text, AsListed}},
                                                        {"tab", {OutputKind::TabDelimited, AsListed}},
                                                        {"csv", {OutputKind::Csv, AsListed}},
                                                        {"html", {OutputKind::Html, AsListed}},
                                                        {"xml", {OutputKind::Xml, AsListed}},
                                                        {"exact-csv", {OutputKind::ExactCsv, WithMark}},
                                                        {"jsonl", {OutputKind::JsonLines, WithVersion}},
                                                        {"sha256", {OutputKind::Sha256, WithVersion}}};
  return endings.at(name);
}

/// The rows of a Find window are prepared; those of a path list are read.
class Rows final : public FoundRowSource {
 public:
  Rows(const FoundRows& findWindow, const DialogContext& context) : findWindow_(findWindow), context_(context) {}
  FoundRows PrintFromFind(ListingRun&) override { return findWindow_; }
  FoundRows PrintFromFileList(ListingRun& run) override {
    FoundRows rows = FindCapture(context_).PrintFromFileList(run);
    rows.Title = findWindow_.Title;
    return rows;
  }

 private:
  const FoundRows& findWindow_;
  const DialogContext& context_;
};

class Listings : public testing::TestWithParam<Case> {};

TEST_P(Listings, MatchTheExpectationByteForByte) {
  const ListedRun& listed = *GetParam().Listed;
  Records records;
  records.Texts = TestTexts();
  records.OutputFile = kOutput;
  ASSERT_TRUE(SetStartPath(MakeTree(listed.Tree), records.Start, records.Format));
  OutputDriver driver;
  const Ending& ending = EndingOf(GetParam().Ending);
  driver.Choose(ending.Kind);

  for (const Step& step : listed.Steps) {
    (records.*step.Configure)();
    CancelAt progress(step.CancelledAt);
    ListingRun run = records.MakeRun(progress);
    Rows rows(records.FindWindow, records.Context);
    RunListing(run, driver, rows);
  }

  const std::string expected =
      ending.InFile(ReadTestFile(std::string(listed.Tree) + "/" + listed.Name + "." + GetParam().Ending));
  EXPECT_EQ(fakes::Fake().Content(kOutput), expected);
  EXPECT_EQ(fakes::Fake().OpenOutputFiles, 0);
}

INSTANTIATE_TEST_SUITE_P(Runs, Listings, testing::ValuesIn(Cases()),
                         [](const auto& listing) { return NameOf(listing.param); });

}  // namespace
}  // namespace folivant::listings
