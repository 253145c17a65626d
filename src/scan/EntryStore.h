// The entries of a whole tree, packed: about forty bytes for a name of ordinary length.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "scan/FileRecord.h"
#include "scan/PackedStore.h"

namespace folivant {

class EntryStore {
 public:
  /// The number under which the entry is found again.
  std::uint32_t Add(const FileRecord& entry);
  /// The entry; its names lie in `names` and are valid until that changes.
  FileRecord Read(std::uint32_t number, std::wstring& names) const;

 private:
  std::uint64_t ShiftNumber(std::uint64_t shift);

  PackedStore packed_;
  PackedRecord record_;
  /// From the time on disk to the time that is shown: the local offset, once or three times, but for times that begin
  /// before the calendar does. An entry keeps the position here.
  std::vector<std::uint64_t> shifts_;
};

}  // namespace folivant
