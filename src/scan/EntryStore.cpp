#include "scan/EntryStore.h"

#include <algorithm>

namespace folivant {
namespace {

/// A difference that wraps round as a number that is small where the difference is.
std::uint64_t Zigzag(std::uint64_t difference) {
  return difference << 1 ^ (difference >> 63 != 0 ? ~0ULL : 0);
}
std::uint64_t Unzigzag(std::uint64_t number) {
  return number >> 1 ^ (0 - (number & 1));
}

}  // namespace

std::uint32_t EntryStore::Add(const FileRecord& entry) {
  record_.Clear();
  record_.Put(entry.Name);
  record_.Put(entry.AlternateName);
  record_.Put(entry.Size);
  record_.Put(entry.LastWrite);
  record_.Put(Zigzag(entry.Created - entry.LastWrite));
  record_.Put(Zigzag(entry.LastAccess - entry.LastWrite));
  record_.Put(ShiftNumber(entry.ShownWrite - entry.LastWrite));
  record_.Put(entry.Attributes);
  record_.Put(entry.ReparseTag);
  record_.Put(static_cast<std::uint64_t>(entry.Level));
  return packed_.Add(record_);
}

FileRecord EntryStore::Read(std::uint32_t number, std::wstring& names) const {
  PackedReader packed = packed_.Read(number);
  names.clear();
  packed.AppendText(names);
  const std::size_t nameLength = names.size();
  packed.AppendText(names);
  FileRecord entry;
  entry.Name = std::wstring_view(names).substr(0, nameLength);
  entry.AlternateName = std::wstring_view(names).substr(nameLength);
  entry.Size = packed.Number();
  entry.LastWrite = packed.Number();
  entry.Created = entry.LastWrite + Unzigzag(packed.Number());
  entry.LastAccess = entry.LastWrite + Unzigzag(packed.Number());
  entry.ShownWrite = entry.LastWrite + shifts_[packed.Number()];  // wraps round where the shift is a negative one
  entry.Attributes = static_cast<std::uint32_t>(packed.Number());
  entry.ReparseTag = static_cast<std::uint32_t>(packed.Number());
  entry.Level = static_cast<std::int32_t>(packed.Number());
  return entry;
}

std::uint64_t EntryStore::ShiftNumber(std::uint64_t shift) {
  const auto known = std::find(shifts_.begin(), shifts_.end(), shift);
  const auto number = static_cast<std::uint64_t>(known - shifts_.begin());
  if (known == shifts_.end()) {
    shifts_.push_back(shift);
  }
  return number;
}

}  // namespace folivant
