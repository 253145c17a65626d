// The listing events. The run and the walks raise them; mdlPrint forwards each to the writer of the current output
// kind. A writer is one class per document format; it lives as long as the process and streams what it is given. Once
// the run is cancelled a writer whose document is thrown away then may leave an event half done and ignore later ones:
// the run ends with AbortListing.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "scan/ScanTree.h"

namespace folivant {

/// One directory of the streaming styles. Everything in it is valid until the handler returns.
struct DirectoryListing {
  std::wstring_view Path;                ///< as shown; a drive root ends in a backslash
  std::int32_t Level = 0;                ///< 0 is the start directory
  std::span<const FileRecord> Records;   ///< in the order of the enumeration
  std::span<const std::uint32_t> Order;  ///< indexes into Records, in listing order; as many as Records
  std::wstring_view Summary;             ///< "3 files, 1,204 kb"
};

class ListingWriter {
 public:
  virtual ~ListingWriter() = default;
  /// First event of a run. Throws RuntimeError when the destination cannot be opened.
  virtual void BeginListing() = 0;
  /// Styles 0, 1 and 4, once per directory.
  virtual void ListDirectory(const DirectoryListing& directory) = 0;
  /// Style 2, before the scan.
  virtual void BeginTree(std::wstring_view root) = 0;
  /// Style 2, once per collected entry.
  virtual void TreeEntry(const FileRecord& entry) = 0;
  /// Style 3, once per directory.
  virtual void DirectoryViewEntry(const DirNode& node) = 0;
  /// Styles 5 and 6, once, after the rows were collected (ScanTree::FoundList and FindWindowTitle).
  virtual void FindList(std::span<const FoundItem> rows) = 0;
  /// Last event of a run that went well: totals, end, close.
  virtual void EndListing() = 0;
  /// Last event of a run that was cancelled or failed: close only. Throws nothing.
  virtual void AbortListing() noexcept = 0;
};

}  // namespace folivant
