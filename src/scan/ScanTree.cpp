#include "scan/ScanTree.h"

namespace folivant {

void ScanTree::ResetTotals() {
  Totals = {};
  Cancelled = false;
  Unreadable = false;
}

/// An error may be on its way, that memory has run out among others: nothing here may need any. An empty deque does.
void ScanTree::ReleaseLists() noexcept {
  DirNodes.clear();
  DirNodes.shrink_to_fit();
  TreeRecords.clear();
  TreeRecords.shrink_to_fit();
  std::vector<std::uint32_t>().swap(TreeList);
  std::vector<FoundItem>().swap(FoundList);
  FoundCount = 0;
  Texts = TextArena();
}

}  // namespace folivant
