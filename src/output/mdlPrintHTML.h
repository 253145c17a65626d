// The writer of HTML pages: headings and tables, with a link from a subdirectory's row to its own table when
// subdirectories are included. The missing end tags, the rows behind a table's end and the unescaped names are by
// design.
#pragma once

#include <string>
#include <string_view>

#include "output/ListingFile.h"
#include "output/ListingRun.h"
#include "scan/ListingWriter.h"

namespace folivant {

/// Appends the link target of `name` in `directory`, or of the directory itself for an empty name: the path with
/// trailing backslash, in lower case, with "\", ":", "'", "#" and blanks encoded. The code of the apostrophe is not the
/// usual one; it only has to be the same at both ends of a link.
void AppendAnchor(std::wstring_view directory, std::wstring_view name, std::wstring& out);

class HtmlWriter final : public ListingWriter {
 public:
  explicit HtmlWriter(const ListingRun& run) : run_(run) {}

  void BeginListing() override;
  void ListDirectory(const DirectoryListing& directory) override;
  void BeginTree(std::wstring_view root) override;
  void TreeEntry(const FileRecord& entry) override;
  void DirectoryViewEntry(const DirNode& node) override;
  void FindList(std::span<const FoundItem> rows) override;
  void EndListing() override;
  void AbortListing() noexcept override;

 private:
  void WriteDirectoryViewHead();
  void WriteHeading(std::wstring_view path);
  void WriteFooter(std::wstring_view summary);
  void WriteFullPaths(const DirectoryListing& directory);
  /// `directory` holds the entry; a tree, which has no links, leaves it empty.
  void WriteEntry(std::wstring_view directory, const FileRecord& entry);
  void AppendNameCell(std::wstring_view directory, const FileRecord& entry);

  const ListingRun& run_;
  ListingFile file_;
};

}  // namespace folivant
