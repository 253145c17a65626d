// Rows out of another program's list view, sixty-four at a time, through memory of that program.
#include "shell/FindResults.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "base/mdlFileRoutines.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "shell/ListViewRequest.h"

namespace folivant {
namespace {

// Name, folder, size and date; column 3, the file type, is never read.
constexpr std::array<std::int32_t, 4> kColumns = {0, 1, 2, 4};
constexpr std::int32_t kRowsPerBlock = 64;
constexpr std::size_t kCells = kRowsPerBlock * kColumns.size();
// The block: all requests, then all texts.
constexpr std::size_t kTextsOffset = kCells * kRequestSlotBytes;
constexpr std::size_t kBlockBytes = kTextsOffset + kCells * kCellBytes;

std::wstring TemporaryFile(const wchar_t* name) {
  return AddBackslash(platform::TemporaryDirectory()) + name;
}

std::size_t RequestOffset(std::size_t cell) {
  return cell * kRequestSlotBytes;
}
std::size_t TextOffset(std::size_t cell) {
  return kTextsOffset + cell * kCellBytes;
}
std::size_t CellOf(std::int32_t slotRow, std::size_t column) {
  return static_cast<std::size_t>(slotRow) * kColumns.size() + column;
}

}  // namespace

FindResults::FindResults(platform::WindowHandle listView, const std::wstring& title)
    : window_(listView, title),
      rowCount_(MaxValue(0, static_cast<std::int32_t>(window_.Send(kGetItemCount, 0, 0)))),
      block_(kBlockBytes),
      request_(L"FolivantMappingLVI", TemporaryFile(L"~fv00002.tmp"), kSharedRequestBytes),
      text_(L"FolivantMappingText", TemporaryFile(L"~fv00003.tmp"), kCellBytes) {}

void FindResults::Read(std::vector<FoundItem>& rows, const std::function<bool(std::int32_t row)>& goOn) {
  if (rowCount_ > 0) {
    blockAddress_ = window_.Reserve(kBlockBytes);
  }
  bool more = true;
  for (std::int32_t first = 0; more && first < rowCount_; first += kRowsPerBlock) {
    const std::int32_t count = MinValue(kRowsPerBlock, rowCount_ - first);
    WriteRequests(first, count);
    std::int32_t asked = 0;
    while (more && asked < count) {
      AskForRow(first + asked, asked);
      more = goOn(first + asked);
      ++asked;
    }
    FetchTexts(rows, first, asked);
  }
}

void FindResults::WriteRequests(std::int32_t first, std::int32_t count) {
  for (std::int32_t row = 0; row < count; ++row) {
    for (std::size_t column = 0; column < kColumns.size(); ++column) {
      const std::size_t cell = CellOf(row, column);
      WriteListViewRequest(window_.Layout(), first + row, kColumns[column], blockAddress_ + TextOffset(cell),
                           std::span(block_).subspan(RequestOffset(cell), kRequestSlotBytes));
    }
  }
  // The texts too: a cell that the list view leaves alone must read as empty, not as a cell of sixty-four rows before.
  std::fill(block_.begin() + static_cast<std::ptrdiff_t>(kTextsOffset), block_.end(), std::byte{0});
  window_.Write(0, block_);
}

void FindResults::AskForRow(std::int32_t row, std::int32_t slotRow) {
  for (std::size_t column = 0; column < kColumns.size(); ++column) {
    WriteListViewRequest(platform::RecordLayout::Bits32, row, kColumns[column], text_.Address(), request_.Bytes());
    // What the list view answers is not looked at: a cell without text stays empty.
    window_.Send(kGetItemAnsi, 0, blockAddress_ + RequestOffset(CellOf(slotRow, column)));
  }
}

void FindResults::FetchTexts(std::vector<FoundItem>& rows, std::int32_t first, std::int32_t count) {
  const std::size_t bytes = CellOf(count, 0) * kCellBytes;
  window_.Read(kTextsOffset, std::span(block_).subspan(kTextsOffset, bytes));
  for (std::int32_t row = 0; row < count; ++row) {
    FoundItem& item = rows.at(static_cast<std::size_t>(first) + static_cast<std::size_t>(row));
    item.Name = GetFindCell(CellOf(row, 0));
    item.InFolder = GetFindCell(CellOf(row, 1));
    item.Size = GetFindCell(CellOf(row, 2));
    item.Modified = GetFindCell(CellOf(row, 3));
  }
}

std::wstring FindResults::GetFindCell(std::size_t cell) {
  const auto bytes = std::span(block_).subspan(TextOffset(cell), kCellBytes);
  std::copy(bytes.begin(), bytes.end(), text_.Bytes().begin());
  // From this buffer even if the list view names another: that address would be one in the other process.
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  return StripNulls(platform::FromAnsi(text.substr(0, text.find('\0'))));
}

}  // namespace folivant
