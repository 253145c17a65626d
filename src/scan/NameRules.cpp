// How names are shown and paths are found: re-casing, and the way from a typed path to the one on disk.
#include "scan/NameRules.h"

#include <algorithm>

#include "base/Lengths.h"
#include "base/mdlFileRoutines.h"
#include "platform/FindFiles.h"
#include "platform/Text.h"

namespace folivant {
namespace {

constexpr std::size_t kLongestRecased = 256;

/// Whether a name is written all in capitals or all in small letters.
bool IsOneCase(std::wstring_view name) {
  bool anyLower = false;
  bool anyUpper = false;
  for (const wchar_t c : name) {
    if (c >= 0x80) {
      return name == platform::ToLower(name) || name == platform::ToUpper(name);
    }
    anyLower |= c >= L'a' && c <= L'z';
    anyUpper |= c >= L'A' && c <= L'Z';
  }
  return !(anyLower && anyUpper);
}

/// Takes the text up to and including its first backslash, or all of it, off the front of `rest`.
std::wstring_view TakeComponent(std::wstring_view& rest) {
  const std::size_t end = rest.find(L'\\');
  const std::wstring_view taken = rest.substr(0, end == rest.npos ? end : end + 1);
  rest.remove_prefix(taken.size());
  return taken;
}

/// "\\server\share\" at the front of a network path, which is not looked up; empty without a share.
LongPath TakeServerAndShare(std::wstring_view& rest) {
  rest.remove_prefix(2);
  const std::wstring_view server = TakeComponent(rest);
  if (!server.ends_with(L'\\')) {
    return {};
  }
  const std::wstring_view share = TakeComponent(rest);
  return {L"\\\\" + ProperName(server) + ProperName(share), L"\\\\" + std::wstring(server) + std::wstring(share)};
}

/// "X:\" at the front of a path; empty when something else stands there.
LongPath TakeDrive(std::wstring_view& rest) {
  if (rest.size() < 3 || rest.substr(1, 2) != L":\\") {
    return {};
  }
  const std::wstring drive = platform::ToUpper(rest.substr(0, 3));
  rest.remove_prefix(3);
  return {drive, drive};
}

/// Takes the last component off `path`, whose first `root` characters stay.
void GoUp(std::wstring& path, std::size_t root) {
  path.resize(std::max(root, path.rfind(L'\\')));
}

/// Appends `component` in both spellings; false when there is nothing of that name.
bool GoDown(LongPath& path, std::wstring_view component) {
  path.OnDisk = AddBackslash(path.OnDisk);
  const std::optional<platform::FoundEntry> found = platform::FindEntry(path.OnDisk + std::wstring(component));
  if (!found) {
    return false;
  }
  path.OnDisk += found->Name;
  path.Shown = AddBackslash(path.Shown) + ProperName(found->Name);
  return true;
}

}  // namespace

std::size_t ProperNameInto(std::wstring_view name, wchar_t* out) {
  if (name.empty() || !IsOneCase(name)) {
    return name.copy(out, name.size());
  }
  name = name.substr(0, kLongestRecased);
  platform::UpperInto(name.substr(0, 1), out);
  platform::LowerInto(name.substr(1), out + 1);
  return name.size();
}

std::wstring ProperName(std::wstring_view name) {
  name = name.substr(0, name.find(L'\0'));
  std::wstring result(name.size(), L'\0');
  result.resize(ProperNameInto(name, result.data()));
  return result;
}

LongPath GetLongPath(std::wstring_view path) {
  const std::wstring separated = WithBackslashes(path);
  std::wstring_view rest = separated;
  LongPath result = rest.starts_with(L"\\\\") ? TakeServerAndShare(rest) : TakeDrive(rest);
  if (result.Shown.empty()) {
    return {};
  }
  const std::size_t shownRoot = result.Shown.size();
  const std::size_t rootOnDisk = result.OnDisk.size();
  while (!rest.empty() && rest.front() != L'\\') {
    std::wstring_view component = TakeComponent(rest);
    if (component.ends_with(L'\\')) {
      component.remove_suffix(1);
    }
    if (component == L"..") {
      GoUp(result.Shown, shownRoot);
      GoUp(result.OnDisk, rootOnDisk);
    } else if (component != L"." && !GoDown(result, component)) {
      return {};
    }
  }
  return result;
}

std::wstring FitPathToWidth(std::wstring_view path, double width, const TextMeasure& form) {
  if (IsShorter(form.WidthOf(path), width)) {
    return std::wstring(path);
  }
  const std::size_t last = path.rfind(L'\\');
  const std::wstring_view leading = path.substr(0, last == path.npos ? 0 : last);
  const std::wstring tail = L"...\\" + std::wstring(path.substr(last + 1));  // without a backslash the whole path
  const auto candidate = [&](std::size_t kept) { return std::wstring(leading.substr(0, kept)) + tail; };
  return candidate(LargestFitting(leading.size(),
                                  [&](std::size_t kept) { return IsShorter(form.WidthOf(candidate(kept)), width); }));
}

}  // namespace folivant
