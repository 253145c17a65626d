// The request record that a list view reads when it is asked for the text of one cell, byte for byte as list views
// know it. Which layout holds depends on the program that owns the list view.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/FindWindows.h"

namespace folivant {

inline constexpr std::uint32_t kGetItemCount = 0x1004;  ///< LVM_GETITEMCOUNT
inline constexpr std::uint32_t kGetItemAnsi = 0x1005;   ///< LVM_GETITEMA
/// The capacity that a request states, the closing NUL included.
inline constexpr std::size_t kCellBytes = 260;
/// The record as Folivant shows it in its own mapping: the 32-bit layout.
inline constexpr std::size_t kSharedRequestBytes = 40;
/// Room for one record in either layout. List views of later systems look at more fields than they are asked for; those
/// stay zero.
inline constexpr std::size_t kRequestSlotBytes = 96;

/// Writes the record that asks for the text at `item` and `column`, counted from 0, to be put at `textAddress`. `slot`
/// holds at least 40 bytes for 32-bit owners and 88 for 64-bit ones; all of it is overwritten. An address beyond four
/// gigabytes does not fit into the 32-bit layout and loses its upper half.
void WriteListViewRequest(platform::RecordLayout layout, std::int32_t item, std::int32_t column,
                          std::uint64_t textAddress, std::span<std::byte> slot);

}  // namespace folivant
