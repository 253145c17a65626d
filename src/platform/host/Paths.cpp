#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>

#include "platform/Text.h"
#include "platform/host/Host.h"

namespace folivant::platform {
namespace {

void AppendUtf8(char32_t c, std::string& out) {
  const auto tail = [&](int shift) { out.push_back(static_cast<char>(0x80 | ((c >> shift) & 0x3F))); };
  if (c < 0x80) {
    out.push_back(static_cast<char>(c));
  } else if (c < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (c >> 6)));
    tail(0);
  } else if (c < 0x10000) {
    out.push_back(static_cast<char>(0xE0 | (c >> 12)));
    tail(6);
    tail(0);
  } else {
    out.push_back(static_cast<char>(0xF0 | (c >> 18)));
    tail(12);
    tail(6);
    tail(0);
  }
}

/// Length of the well-formed sequence at the front of `bytes` and its character; length 0 when it is not well formed.
std::size_t DecodeOne(std::string_view bytes, char32_t& c) {
  const unsigned lead = static_cast<unsigned char>(bytes[0]);
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  if (length == 0 || length > bytes.size()) {
    return 0;
  }
  c = length == 1 ? lead : lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const unsigned next = static_cast<unsigned char>(bytes[i]);
    if ((next & 0xC0) != 0x80) {
      return 0;
    }
    c = (c << 6) | (next & 0x3F);
  }
  constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  return c >= kSmallest[length] && c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF) ? length : 0;
}

bool Exists(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0;
}

/// The entry of `folder` that equals `name` but for letter case; empty when there is none.
std::string FindOtherCase(const std::string& folder, const std::string& name) {
  const std::unique_ptr<DIR, int (*)(DIR*)> directory(opendir(folder.c_str()), closedir);
  const std::wstring wanted = ToLower(FromUtf8(name));
  while (const dirent* entry = directory ? readdir(directory.get()) : nullptr) {
    if (ToLower(FromUtf8(entry->d_name)) == wanted) {
      return entry->d_name;
    }
  }
  return {};
}

std::string WithDiskCase(const std::string& path) {
  std::string result;
  for (std::size_t start = 1; start < path.size();) {
    const std::size_t end = std::min(path.find('/', start), path.size());
    std::string name = path.substr(start, end - start);
    if (!name.empty()) {
      if (!Exists(result + '/' + name)) {
        name = FindOtherCase(result.empty() ? "/" : result, name);
        if (name.empty()) {
          return path;
        }
      }
      result += '/' + name;
    }
    start = end + 1;
  }
  return result.empty() ? "/" : result;
}

}  // namespace

std::string ToUtf8(std::wstring_view text) {
  std::string result;
  result.reserve(text.size());
  for (const wchar_t c : text) {
    AppendUtf8(static_cast<char32_t>(c), result);
  }
  return result;
}

std::size_t FromUtf8Into(std::string_view bytes, wchar_t* out) {
  wchar_t* const begin = out;
  while (!bytes.empty()) {
    if (static_cast<unsigned char>(bytes[0]) < 0x80) {
      *out++ = static_cast<wchar_t>(bytes[0]);
      bytes.remove_prefix(1);
      continue;
    }
    char32_t c = 0;
    const std::size_t length = DecodeOne(bytes, c);
    *out++ = length == 0 ? L'\xFFFD' : static_cast<wchar_t>(c);
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return static_cast<std::size_t>(out - begin);
}

std::wstring FromUtf8(std::string_view bytes) {
  std::wstring result(bytes.size(), L'\0');
  result.resize(FromUtf8Into(bytes, result.data()));
  return result;
}

std::string ToNativePath(std::wstring_view path) {
  const bool drive = path.size() >= 2 && path[1] == L':';
  std::string native = ToUtf8(drive ? path.substr(2) : path);
  std::replace(native.begin(), native.end(), '\\', '/');
  if (native.empty() && drive) {
    native = "/";
  }
  // A path too long for one system call cannot be tested here; OpenDirectory takes it in pieces.
  constexpr std::size_t kLongest = 4000;
  if (!native.starts_with('/') || native.size() > kLongest || Exists(native)) {
    return native;
  }
  return WithDiskCase(native);
}

std::wstring FromNativePath(std::string_view path) {
  std::wstring result = L"Z:" + FromUtf8(path);
  std::replace(result.begin(), result.end(), L'/', L'\\');
  return result;
}

RuntimeError SystemError(FailedAction action, const std::wstring& object) {
  const int code = errno;
  return {action, object, FromUtf8(std::strerror(code)), static_cast<std::uint32_t>(code)};
}

}  // namespace folivant::platform
