// The output driver: it forwards listing events to the writer of the current output kind, and finds the file that they
// are written to.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "output/OutputKind.h"
#include "scan/ListingRun.h"
#include "scan/ListingWriter.h"

namespace folivant {

/// Owns one writer of each kind for the life of the process (some remember things between runs, on purpose).
/// A directory other than the root without listed entries is dropped here unless "EmptyDirs" is on.
class OutputDriver final : public ListingWriter {
 public:
  OutputDriver();
  ~OutputDriver() override;

  /// The kind of the runs that follow; plain text until it is called.
  void Choose(OutputKind kind);

  void BeginListing(ListingRun& run) override;
  void ListDirectory(const DirectoryListing& directory) override;
  void ListPaths(const DirectoryListing& directory) override;
  void BeginTree(std::wstring_view root) override { current_->BeginTree(root); }
  void TreeEntry(const FileRecord& entry) override { current_->TreeEntry(entry); }
  void BeginDirectoryView() override { current_->BeginDirectoryView(); }
  void DirectoryViewEntry(const DirNode& node) override { current_->DirectoryViewEntry(node); }
  void FindList(const FoundRows& rows) override { current_->FindList(rows); }
  void EndListing() override { current_->EndListing(); }
  void AbortListing() noexcept override { current_->AbortListing(); }

 private:
  bool IsListed(const DirectoryListing& directory) const;

  std::map<OutputKind, std::unique_ptr<ListingWriter>> writers_;
  ListingWriter* current_;
  const ListingRun* run_ = nullptr;
};

/// What the save dialog offers and answers; the windows implement it, a test plays it.
class DestinationChooser {
 public:
  virtual ~DestinationChooser() = default;
  struct Choice {
    std::wstring FileName;  ///< full path
    OutputKind Kind = OutputKind::Text;
  };
  /// Shows the dialog preset with `preset`; nothing when the user cancels.
  virtual std::optional<Choice> AskForFile(const Choice& preset) = 0;
};

/// The save dialog with its extension rule and its overwrite question, repeated until the user accepts or cancels.
/// On true `choice` holds the chosen file and kind; on false it is unchanged.
bool ChooseOutputFile(DestinationChooser& chooser, const Messages& texts, DestinationChooser::Choice& choice);

/// `fileName` with ".xml", ".html" or ".txt" appended when its file-name part holds no dot. CSV gets ".txt", on
/// purpose.
std::wstring WithDefaultExtension(const std::wstring& fileName, OutputKind kind);

/// The file that every screen run writes: "~fv00001.tmp" in the temporary directory.
std::wstring ScreenFileName();

}  // namespace folivant
