#include "base/ProfileFile.h"

#include <utility>

#include "platform/Files.h"

namespace folivant {
namespace {

platform::ProfileText ReadIfThere(const std::wstring& path) {
  return platform::PathExists(path) ? platform::ProfileText(platform::ReadWholeFile(path)) : platform::ProfileText();
}

}  // namespace

ProfileFile::ProfileFile(std::wstring path) : path_(std::move(path)), text_(ReadIfThere(path_)) {}

std::wstring ProfileFile::Read(const std::wstring& section, const std::wstring& key, const std::wstring& preset,
                               std::size_t limit) const {
  return text_.Read(section, key).value_or(preset).substr(0, limit);
}

void ProfileFile::Write(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
  text_.Write(section, key, value);
}

void ProfileFile::Remove(const std::wstring& section, const std::wstring& key) {
  text_.Remove(section, key);
}

void ProfileFile::Save() const {
  platform::ReplaceFile(path_, text_.Bytes());
}

}  // namespace folivant
