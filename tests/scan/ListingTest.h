// A listing run in memory: whatever is listed comes back as lines, one per event.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "fakes/FakePlatform.h"
#include "fakes/RunRecords.h"
#include "output/EntryTexts.h"
#include "platform/RuntimeError.h"
#include "scan/ListingWriter.h"
#include "scan/mdlScan.h"

namespace folivant {

/// Writes down every event as one line.
class RecordingWriter : public ListingWriter {
 public:
  std::vector<std::wstring> Events;
  bool Details = false;  ///< entries with 8.3 name, size, date and attributes, "|" between them
  bool Silent = false;   ///< directories are not written down
  std::function<void()> OnEvent = [] {};

  void BeginListing(ListingRun& run) override {
    texts_.emplace(run);
    Record(L"begin");
  }
  void ListDirectory(const DirectoryListing& directory) override { List(directory); }
  void ListPaths(const DirectoryListing& directory) override { List(directory); }
  void BeginTree(std::wstring_view root) override { Record(L"tree " + std::wstring(root)); }
  void TreeEntry(const FileRecord& entry) override { Record(std::to_wstring(entry.Level) + L" " + Text(entry)); }
  void DirectoryViewEntry(const DirNode& node) override {
    Record(std::to_wstring(node.Level) + L" " + std::wstring(node.Name) + L" " + std::wstring(node.Path) + L" " +
           std::to_wstring(node.Files) + L" " + std::to_wstring(node.Size.Whole()) + L" " +
           std::to_wstring(node.TotalFiles) + L" " + std::to_wstring(node.TotalSize.Whole()));
  }
  void FindList(const FoundRows& rows) override {
    Record(L"find " + rows.Title + L": " + std::to_wstring(rows.Items.size()));
  }
  void EndListing() override { Record(L"end"); }
  void AbortListing() noexcept override { Events.push_back(L"abort"); }

 private:
  void List(const DirectoryListing& directory) {
    if (Silent) {
      return;
    }
    std::wstring line = std::to_wstring(directory.Level) + L" " + std::wstring(directory.Path) + L":";
    for (const std::uint32_t index : directory.Order) {
      line += L" " + Text(directory.Records[index]);
    }
    Record(line + L" (" + std::wstring(directory.Summary) + L")");
  }
  void Record(std::wstring line) {
    Events.push_back(std::move(line));
    OnEvent();
  }
  std::wstring Text(const FileRecord& record) {
    std::wstring text;
    texts_->AppendName(record, text);
    if (Details) {
      text.append(L"|").append(record.AlternateName);
      for (const auto append : {&EntryTexts::AppendSize, &EntryTexts::AppendDate, &EntryTexts::AppendAttributes}) {
        text += L'|';
        ((*texts_).*append)(record, text);
      }
    }
    return text;
  }

  std::optional<EntryTexts> texts_;
};

/// Writes down what is shown and reported, and lets a test cancel the run.
class RecordingProgress : public Progress {
 public:
  std::vector<std::wstring> Shown;
  std::vector<std::int32_t> Shares;
  int Pumped = 0;
  bool CancelNow = false;
  std::function<void(std::wstring_view path)> OnDirectory = [](std::wstring_view) {};
  std::function<void()> OnPump = [] {};

  void ShowDirectory(std::wstring_view path) override {
    Shown.emplace_back(path);
    OnDirectory(path);
  }
  void SetProgress(std::int32_t share) override { Shares.push_back(share); }
  void LetEventsThrough() override {
    ++Pumped;
    OnPump();
  }
  bool Cancelled() const override { return CancelNow; }
  void CancelIn(const std::wstring& directory) {
    OnDirectory = [this, directory](std::wstring_view path) { CancelNow = CancelNow || path == directory; };
  }
};

/// Gives the rows of the file lists that a test says.
class PreparedRows final : public FoundRowSource {
 public:
  FoundRows Rows;
  FoundRows PrintFromFind(ListingRun&) override { return Rows; }
  FoundRows PrintFromFileList(ListingRun&) override { return Rows; }
};

class ListingTest : public testing::Test, protected fakes::RunRecords {
 protected:
  void SetUp() override {
    using enum AttributeChoice;
    Filter.NameOn = true;
    Filter.FilterName = L"*.*";
    Filter.Attributes = {DoNotCare, DoNotCare, DoNotCare, DoNotCare, DoNotCare};
    General.DateFormat = 5;
    const std::pair<TextId, const wchar_t*> texts[] = {
        {TextId::File, L"file"},        {TextId::Files, L"files"},      {TextId::DirectorySizeText, L"<DIR>"},
        {TextId::UnitBytes, L"b "},     {TextId::UnitKilobytes, L"kb"}, {TextId::UnitMegabytes, L"Mb"},
        {TextId::UnitGigabytes, L"Gb"}, {TextId::UnitTerabytes, L"Tb"}};
    for (const auto& [number, text] : texts) {
      Texts.Set(static_cast<std::size_t>(number), text);
    }
  }

  static fakes::FakeTree& Tree() { return fakes::Tree(); }
  bool SetStart(const std::wstring& path) { return SetStartPath(path, Start, Format); }
  /// Lists `path` in `style` and returns the events. What the run learned stands in Run.
  const std::vector<std::wstring>& List(ListingStyle style, const std::wstring& path = L"C:\\Data") {
    Format.ListingStyle = style;
    EXPECT_TRUE(SetStart(path));
    Writer.Events.clear();
    RunListing(Run, Writer, Rows);
    return Writer.Events;
  }
  /// Lists C:\Data in `style`; how often events got through before each event of the listing, after the one before it.
  std::vector<int> PumpsBetweenEvents(ListingStyle style) {
    std::vector<int> pumps;
    int before = Watcher.Pumped;
    Writer.OnEvent = [&] {
      pumps.push_back(Watcher.Pumped - before);
      before = Watcher.Pumped;
    };
    List(style);
    Writer.OnEvent = [] {};
    return pumps;
  }

  RecordingWriter Writer;
  RecordingProgress Watcher;
  PreparedRows Rows;
  ListingRun Run = MakeRun(Watcher);
};

inline constexpr ListingStyle kFlat = ListingStyle::NoSubdirectories;
inline constexpr ListingStyle kDeep = ListingStyle::IncludeSubdirectories;
inline constexpr ListingStyle kTree = ListingStyle::TreeStyle;
inline constexpr ListingStyle kView = ListingStyle::DirectoryView;
inline constexpr ListingStyle kFull = ListingStyle::FullPathList;

}  // namespace folivant
