// The writer of plain, tab-delimited and CSV text. All three are one layout, that of a fixed-width listing; the
// delimited ones trim every field and put a separator after it, the last one of a line included.
#pragma once

#include <cstddef>
#include <string>

#include "output/Columns.h"
#include "output/ListingFile.h"
#include "output/ListingRun.h"
#include "scan/ListingWriter.h"

namespace folivant {

inline constexpr wchar_t kPlainText = L'\0';  ///< no separator: fields keep their padding
inline constexpr wchar_t kTabDelimited = L'\t';
inline constexpr wchar_t kCsv = L';';  ///< fields are never quoted, on purpose

class TextWriter final : public ListingWriter {
 public:
  TextWriter(const ListingRun& run, wchar_t separator) : run_(run), separator_(separator) {}

  void BeginListing() override;
  void ListDirectory(const DirectoryListing& directory) override;
  void BeginTree(std::wstring_view root) override;
  void TreeEntry(const FileRecord& entry) override;
  void DirectoryViewEntry(const DirNode& node) override;
  void FindList(std::span<const FoundItem> rows) override;
  void EndListing() override;
  void AbortListing() noexcept override;

 private:
  double NameWidth() const;
  void WriteDirectoryViewCaptions();
  void WriteHeading(std::wstring_view path);
  void WriteFullPaths(const DirectoryListing& directory);
  void AppendFoundCell(const FoundColumn& column, std::wstring_view text);
  /// Makes what the line holds from `start` on a name of `width` characters: shortened, and padded. A delimited file
  /// shows names whole.
  void FitName(std::size_t start, double width);
  /// The field filter, for what the line holds from `start` on.
  void EndField(std::size_t start);
  /// One field as a line of its own.
  void WriteField(std::wstring_view field);

  const ListingRun& run_;
  const wchar_t separator_;
  ListingFile file_;
  double nameWidth_ = 0;  ///< characters; a fraction in the file lists, never below zero
  std::wstring value_;    ///< buffer for one value of a line
};

}  // namespace folivant
