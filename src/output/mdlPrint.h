// The output driver: it forwards listing events to the writer of the current output kind and offers the services that
// all writers share. A new output kind is one row in the table of mdlPrint.cpp.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "output/ListingRun.h"
#include "scan/ListingWriter.h"

namespace folivant {

/// Owns one writer of each kind for the life of the process (some remember things between runs, on purpose).
/// A directory other than the root without listed entries is dropped here unless "EmptyDirs" is on.
class OutputDriver final : public ListingWriter {
 public:
  explicit OutputDriver(ListingRun& run);
  ~OutputDriver() override;

  void BeginListing() override;
  void ListDirectory(const DirectoryListing& directory) override;
  void BeginTree(std::wstring_view root) override;
  void TreeEntry(const FileRecord& entry) override;
  void DirectoryViewEntry(const DirNode& node) override;
  void FindList(std::span<const FoundItem> rows) override;
  void EndListing() override;
  void AbortListing() noexcept override;

 private:
  ListingRun& run_;
  std::vector<std::unique_ptr<ListingWriter>> writers_;
  ListingWriter* current_ = nullptr;
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
