// A listing run in memory: whatever is listed comes back as lines, one per event.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "app/mdlVars.h"
#include "fakes/FakePlatform.h"
#include "platform/RuntimeError.h"
#include "scan/ListingWriter.h"
#include "scan/mdlScan.h"

namespace folivant {

/// Writes down every event as one line.
class RecordingWriter : public ListingWriter {
 public:
  std::vector<std::wstring> Events;
  bool Details = false;  ///< entries with all their texts, "|" between them
  bool Silent = false;   ///< directories are not written down
  std::function<void()> OnEvent = [] {};

  void BeginListing() override { Record(L"begin"); }
  void ListDirectory(const DirectoryListing& directory) override {
    if (Silent) {
      return;
    }
    std::wstring line = std::to_wstring(directory.Level) + L" " + std::wstring(directory.Path) + L":";
    for (const std::uint32_t index : directory.Order) {
      line += L" " + Text(directory.Records[index]);
    }
    Record(line + L" (" + std::wstring(directory.Summary) + L")");
  }
  void BeginTree(std::wstring_view root) override { Record(L"tree " + std::wstring(root)); }
  void TreeEntry(const FileRecord& entry) override { Record(std::to_wstring(entry.Level) + L" " + Text(entry)); }
  void DirectoryViewEntry(const DirNode& node) override {
    Record(std::to_wstring(node.Level) + L" " + std::wstring(node.Name) + L" " + std::wstring(node.Path) + L" " +
           std::to_wstring(node.Files) + L" " + std::to_wstring(node.Size.Whole()) + L" " +
           std::to_wstring(node.TotalFiles) + L" " + std::to_wstring(node.TotalSize.Whole()));
  }
  void FindList(std::span<const FoundItem>) override { Record(L"find"); }
  void EndListing() override { Record(L"end"); }
  void AbortListing() noexcept override { Events.push_back(L"abort"); }

 private:
  void Record(std::wstring line) {
    Events.push_back(std::move(line));
    OnEvent();
  }
  std::wstring Text(const FileRecord& record) const {
    std::wstring text(record.Name);
    if (Details) {
      for (const std::wstring_view part : {record.DosName, record.SizeText, record.DateText, record.AttrText}) {
        text += L'|';
        text += part;
      }
    }
    return text;
  }
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

class ListingTest : public testing::Test {
 protected:
  void SetUp() override {
    using enum AttributeChoice;
    mdlVars::Filter.NameOn = true;
    mdlVars::Filter.FilterName = L"*.*";
    mdlVars::Filter.Attributes = {DoNotCare, DoNotCare, DoNotCare, DoNotCare, DoNotCare};
    mdlVars::General.DateFormat = 5;
    const std::pair<Text, const wchar_t*> texts[] = {
        {Text::File, L"file"},        {Text::Files, L"files"},      {Text::DirectorySizeText, L"<DIR>"},
        {Text::UnitBytes, L"b "},     {Text::UnitKilobytes, L"kb"}, {Text::UnitMegabytes, L"Mb"},
        {Text::UnitGigabytes, L"Gb"}, {Text::UnitTerabytes, L"Tb"}};
    for (const auto& [number, text] : texts) {
      mdlVars::Texts.Set(static_cast<std::size_t>(number), text);
    }
  }

  static fakes::FakeTree& Tree() { return fakes::Tree(); }
  /// Lists `path` in `style` and returns the events.
  const std::vector<std::wstring>& List(ListingStyle style, const std::wstring& path = L"C:\\Data") {
    mdlVars::Format.ListingStyle = style;
    EXPECT_TRUE(SetStartPath(path));
    Writer.Events.clear();
    RunListing(Writer, Watcher);
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
};

inline constexpr ListingStyle kFlat = ListingStyle::NoSubdirectories;
inline constexpr ListingStyle kDeep = ListingStyle::IncludeSubdirectories;
inline constexpr ListingStyle kTree = ListingStyle::TreeStyle;
inline constexpr ListingStyle kView = ListingStyle::DirectoryView;
inline constexpr ListingStyle kFull = ListingStyle::FullPathList;

}  // namespace folivant
