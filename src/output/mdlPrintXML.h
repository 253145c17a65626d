// The writer of XML documents: a block that tells how the listing was made, then directory and file elements. By design
// there is no declaration, and names are not escaped: one with "&" or "<" makes the document ill-formed.
#pragma once

#include <cstdint>
#include <string_view>

#include "output/ListingFile.h"
#include "output/ListingRun.h"
#include "scan/ListingWriter.h"

namespace folivant {

class XmlWriter final : public ListingWriter {
 public:
  explicit XmlWriter(const ListingRun& run) : run_(run) {}

  void BeginListing() override;
  void ListDirectory(const DirectoryListing& directory) override;
  void BeginTree(std::wstring_view root) override;
  void TreeEntry(const FileRecord& entry) override;
  void DirectoryViewEntry(const DirNode& node) override;
  void FindList(std::span<const FoundItem> rows) override;
  void EndListing() override;
  void AbortListing() noexcept override;

 private:
  void WriteDirectoryTag(std::wstring_view path);
  void WriteFullPaths(const DirectoryListing& directory);
  void AppendElement(std::wstring_view element, std::wstring_view text, bool escaped);
  void AppendEntryColumns(const FileRecord& entry);
  void CloseDirectoriesAbove(std::int32_t level);

  const ListingRun& run_;
  ListingFile file_;
  /// Directory elements that an entry of the tree or of the directory view opened and that are not closed yet. Only
  /// EndListing empties it: the run after a cancelled one begins by closing that one's directories, on purpose.
  std::int16_t openDirectories_ = 0;
  std::wstring value_;  ///< buffer for one value
};

}  // namespace folivant
