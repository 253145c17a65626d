#include "output/mdlPrintSha256.h"

#include <algorithm>

#include "base/mdlFileRoutines.h"
#include "output/RecordWriter.h"
#include "platform/Utf8.h"

namespace folivant {
namespace {

class Sha256Writer final : public RecordWriter {
 private:
  void Begin(std::string&) override {}
  void End(std::string&) override {}
  void AppendEntry(const RecordedEntry& entry, std::string& out) override { AppendSum(entry, out); }
  void AppendDirectory(const DirNode&, std::string&) override {}
  void AppendFound(const FoundItem& row, std::string& out) override;

  void AppendSum(const RecordedEntry& entry, std::string& out);
  std::wstring PathFromStart(std::wstring_view path) const;
};

/// A Find window tells no more than texts; where they make the path of a file, that is the one.
void Sha256Writer::AppendFound(const FoundItem& row, std::string& out) {
  const std::wstring path = AddBackslash(row.InFolder) + row.Name;
  AppendSum({path, row.Name, {}}, out);
}

void Sha256Writer::AppendSum(const RecordedEntry& entry, std::string& out) {
  const std::optional<std::wstring> sum = Facts().Sha256(entry);
  if (!sum) {
    return;
  }
  std::wstring path = PathFromStart(entry.Path);
  const bool escaped = path.find_first_of(L"\\\r\n") != path.npos;
  if (escaped) {
    path = ReplaceAll(ReplaceAll(ReplaceAll(path, L"\\", L"\\\\"), L"\n", L"\\n"), L"\r", L"\\r");
  }
  out += escaped ? "\\" : "";
  platform::AppendUtf8(*sum, out);
  out += "  ";
  platform::AppendUtf8(path, out);
  out += '\n';
}

/// With "/" between components; a file that lies elsewhere has its full path.
std::wstring Sha256Writer::PathFromStart(std::wstring_view path) const {
  const std::wstring start = AddBackslash(Run().Start.OnDisk);
  if (path.starts_with(start)) {
    path.remove_prefix(start.size());
  }
  std::wstring relative(path);
  std::replace(relative.begin(), relative.end(), L'\\', L'/');
  return relative;
}

}  // namespace

std::unique_ptr<ListingWriter> MakeSha256Writer() {
  return std::make_unique<Sha256Writer>();
}

}  // namespace folivant
