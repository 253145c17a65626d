#include "platform/Files.h"
#include "platform/FindFiles.h"
#include "platform/Text.h"

namespace folivant::platform {
namespace {

/// "*" and "?" as in file patterns. Both texts are in lower case.
bool Matches(std::wstring_view name, std::wstring_view pattern) {
  std::size_t afterStar = pattern.npos;  // where matching goes on when the last "*" takes one character more
  std::size_t taken = 0;
  std::size_t n = 0;
  std::size_t p = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == L'*') {
      afterStar = ++p;
      taken = n;
    } else if (p < pattern.size() && (pattern[p] == L'?' || pattern[p] == name[n])) {
      ++p;
      ++n;
    } else if (afterStar != pattern.npos) {
      p = afterStar;
      n = ++taken;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(L'*', p) == pattern.npos;
}

}  // namespace

// The system's own matching also looks at 8.3 names, so that "*.ini" would find "a.inix".
std::vector<std::wstring> FindNames(const std::wstring& folder, const std::wstring& pattern) {
  const std::wstring lowerPattern = ToLower(pattern);
  std::vector<std::wstring> names;
  FindFiles files(folder, ShortNames::Skip);
  for (FindData data; files.Next(data);) {
    if (Matches(ToLower(data.Name), lowerPattern)) {
      names.emplace_back(data.Name);
    }
  }
  return names;
}

}  // namespace folivant::platform
