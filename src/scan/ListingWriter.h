// The listing events. The run and the walks raise them; output/mdlPrint forwards each to the writer of the current
// output kind. A writer is one class per document format; it lives as long as the process, streams what it is given and
// overrides the events that its format has something to write for. Once the run is cancelled a writer whose document is
// thrown away then may leave an event half done and ignore later ones: the run ends with AbortListing.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "scan/DirNode.h"
#include "scan/FileRecord.h"
#include "scan/FoundRows.h"

namespace folivant {

struct ListingRun;

/// One directory of the streaming styles. Everything in it is valid until the handler returns.
struct DirectoryListing {
  std::wstring_view Path;                ///< as shown; a drive root ends in a backslash
  std::int32_t Level = 0;                ///< 0 is the start directory
  std::span<const FileRecord> Records;   ///< in the order of the enumeration
  std::span<const std::uint32_t> Order;  ///< indexes into Records, in listing order; as many as Records
  std::wstring_view Summary;             ///< "3 files, 1,204 kb"
  bool SubdirectoriesFollow = false;     ///< whether each subdirectory has a listing of its own, further down
  std::wstring_view PathOnDisk = {};     ///< Path as the file system spells it
};

class ListingWriter {
 public:
  virtual ~ListingWriter() = default;
  /// First event of a run, which outlives the last one. Throws RuntimeError when the destination cannot be opened.
  virtual void BeginListing(ListingRun& run) = 0;
  /// Styles 0 and 1, once per directory.
  virtual void ListDirectory(const DirectoryListing&) {}
  /// Style 4, once per directory: the same as paths.
  virtual void ListPaths(const DirectoryListing&) {}
  /// Style 2, before the scan.
  virtual void BeginTree(std::wstring_view /*root*/) {}
  /// Style 2, once per collected entry.
  virtual void TreeEntry(const FileRecord&) {}
  /// Style 3, before the scan.
  virtual void BeginDirectoryView() {}
  /// Style 3, once per directory.
  virtual void DirectoryViewEntry(const DirNode&) {}
  /// Styles 5 and 6, once, after the rows were collected.
  virtual void FindList(const FoundRows&) {}
  /// Last event of a run that went well: totals, end, close.
  virtual void EndListing() = 0;
  /// Last event of a run that was cancelled or failed: close only. Throws nothing.
  virtual void AbortListing() noexcept = 0;
};

}  // namespace folivant
