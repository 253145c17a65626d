#include "scan/ScanTree.h"

namespace folivant {

void ScanTree::ResetTotals() {
  Totals = {};
  Cancelled = false;
  Unreadable = false;
}

void ScanTree::ReleaseLists() {
  std::deque<DirNode>().swap(DirNodes);
  std::deque<FileRecord>().swap(TreeRecords);
  std::vector<std::uint32_t>().swap(TreeList);
  std::vector<FoundItem>().swap(FoundList);
  FoundCount = 0;
  Texts = TextArena();
}

}  // namespace folivant
