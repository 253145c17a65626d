#include "scan/PackedStore.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace folivant {
namespace {

constexpr unsigned kDataBits = 7;  ///< of each byte; the eighth tells that more bytes follow
constexpr unsigned kMore = 0x80;

}  // namespace

void PackedRecord::Put(std::uint64_t number) {
  for (; number >= kMore; number >>= kDataBits) {
    bytes_.push_back(static_cast<unsigned char>(number | kMore));
  }
  bytes_.push_back(static_cast<unsigned char>(number));
}

void PackedRecord::Put(std::wstring_view text) {
  Put(text.size());
  for (const wchar_t c : text) {
    Put(static_cast<std::uint64_t>(c));
  }
}

std::uint64_t PackedReader::Number() {
  std::uint64_t number = 0;
  unsigned shift = 0;
  for (; (*at_ & kMore) != 0; shift += kDataBits) {
    number |= std::uint64_t{*at_++ & (kMore - 1)} << shift;
  }
  return number | std::uint64_t{*at_++} << shift;
}

void PackedReader::AppendText(std::wstring& out) {
  for (std::uint64_t left = Number(); left > 0; --left) {
    out += static_cast<wchar_t>(Number());
  }
}

std::uint32_t PackedStore::Add(const PackedRecord& record) {
  const std::size_t size = record.Bytes().size();
  if (size > kBlock - used_) {
    blocks_.push_back(std::make_unique_for_overwrite<unsigned char[]>(std::max(kBlock, size)));
    used_ = 0;
  }
  const std::size_t place = ((blocks_.size() - 1) * kBlock + used_) / kStep;
  if (place > std::numeric_limits<std::uint32_t>::max()) {
    throw std::length_error("PackedStore");
  }
  std::copy(record.Bytes().begin(), record.Bytes().end(), blocks_.back().get() + used_);
  used_ = std::min(kBlock, (used_ + size + kStep - 1) / kStep * kStep);
  return static_cast<std::uint32_t>(place);
}

PackedReader PackedStore::Read(std::uint32_t record) const {
  const std::size_t place = std::size_t{record} * kStep;
  return PackedReader(blocks_[place / kBlock].get() + place % kBlock);
}

}  // namespace folivant
