// Reads every row of another program's list view, with few calls across the process border: the requests of many rows
// are written there at once, each cell then costs its message, and the texts of the rows come back at once.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/FindWindows.h"
#include "scan/FoundRows.h"

namespace folivant {

class FindResults {
 public:
  /// `title` names the window in errors. Throws RuntimeError (ReadWindow), as do the other functions.
  FindResults(platform::WindowHandle listView, const std::wstring& title);

  std::int32_t RowCount() const { return rowCount_; }
  /// Fills `rows` from its beginning; it must hold RowCount() rows. `goOn` is asked after every row whether to read the
  /// next one; once it says no, the rows read so far are filled.
  void Read(std::vector<FoundItem>& rows, const std::function<bool(std::int32_t row)>& goOn);

 private:
  void WriteRequests(std::int32_t first, std::int32_t count);
  void AskForRow(std::int32_t row, std::int32_t slotRow);
  void FetchTexts(std::vector<FoundItem>& rows, std::int32_t first, std::int32_t count);
  std::wstring GetFindCell(std::size_t cell);

  platform::ForeignWindow window_;
  std::int32_t rowCount_;
  std::uint64_t blockAddress_ = 0;
  std::vector<std::byte> block_;  // what the block in the other program is filled with, and what comes back
  platform::SharedMapping request_;
  platform::SharedMapping text_;
};

}  // namespace folivant
