#include "platform/Files.h"
#include "platform/FindFiles.h"
#include "platform/Text.h"

namespace folivant::platform {

// Not by the system's own matching of "*.ini": it also looks at 8.3 names and would find "a.inix".
std::vector<std::wstring> FindNames(const std::wstring& folder, std::wstring_view ending) {
  const std::wstring lowerEnding = ToLower(ending);
  std::vector<std::wstring> names;
  FindFiles files(folder, ShortNames::Skip);
  for (FindData data; files.Next(data);) {
    if (ToLower(data.Name).ends_with(lowerEnding)) {
      names.emplace_back(data.Name);
    }
  }
  return names;
}

}  // namespace folivant::platform
