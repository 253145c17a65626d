// Storage for millions of small records that are written once and read in any order: bytes without gaps, each record
// found by a number of 32 bits. Numbers and characters take as many bytes as their value needs, so that a name of plain
// letters costs one byte a letter.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace folivant {

/// A record being put together.
class PackedRecord {
 public:
  void Clear() { bytes_.clear(); }
  void Put(std::uint64_t number);
  /// Any characters, unpaired surrogates included.
  void Put(std::wstring_view text);
  const std::vector<unsigned char>& Bytes() const { return bytes_; }

 private:
  std::vector<unsigned char> bytes_;
};

/// Reads a record in the order in which it was put together.
class PackedReader {
 public:
  explicit PackedReader(const unsigned char* record) : at_(record) {}
  std::uint64_t Number();
  void AppendText(std::wstring& out);

 private:
  const unsigned char* at_;
};

class PackedStore {
 public:
  /// The number of the record. Throws std::length_error beyond sixteen gigabytes.
  std::uint32_t Add(const PackedRecord& record);
  PackedReader Read(std::uint32_t record) const;

 private:
  static constexpr std::size_t kBlock = std::size_t{1} << 20;  ///< bytes
  static constexpr std::size_t kStep = 4;                      ///< records begin at multiples of it

  std::vector<std::unique_ptr<unsigned char[]>> blocks_;
  std::size_t used_ = kBlock;  ///< bytes of the last block
};

}  // namespace folivant
