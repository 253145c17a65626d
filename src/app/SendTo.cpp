#include "app/SendTo.h"

#include <optional>
#include <string>
#include <vector>

#include "base/mdlFileRoutines.h"
#include "platform/Files.h"
#include "platform/FindFiles.h"

namespace folivant {
namespace {

constexpr wchar_t kTarget[] = L"Folivant.s2f";

std::vector<std::wstring> SubdirectoriesOf(const std::wstring& folder) {
  std::vector<std::wstring> names;
  platform::FindFiles files(folder, platform::ShortNames::Skip);
  for (platform::FindData data; files.Next(data);) {
    if (data.IsDirectory()) {
      names.emplace_back(data.Name);
    }
  }
  return names;
}

}  // namespace

void RecreateSendTo() {
  if (const std::optional<std::wstring> folder = platform::SendToFolder()) {
    platform::TruncateFile(AddBackslash(*folder) + kTarget);
  }
}

void DeleteSendTo() {
  const std::optional<std::wstring> folder = platform::SendToFolder();
  if (!folder) {
    return;
  }
  // Where every profile holds its Send To folder directly, the profiles lie two levels up. Today the folder lies deeper
  // and that may be another user's, so the user's own target is deleted by its own path.
  const std::wstring own = AddBackslash(*folder);
  const std::wstring profiles = GetFolder(GetFolder(GetFolder(own)));
  for (const std::wstring& name : SubdirectoriesOf(profiles)) {
    platform::RemoveFile(profiles + L'\\' + name + L"\\SendTo\\" + kTarget);
  }
  platform::RemoveFile(own + kTarget);
}

}  // namespace folivant
