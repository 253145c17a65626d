// Sections and keys inside a profile file's text, read and written as the system's profile functions do.
#include "platform/ProfileText.h"

#include <algorithm>

#include "platform/Text.h"

namespace folivant::platform {
namespace {

constexpr std::wstring_view kBlanks = L" \t\r\x1A";

std::wstring_view TrimBlanks(std::wstring_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == text.npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool IsQuoted(std::wstring_view value) {
  return value.size() >= 2 && (value.front() == L'"' || value.front() == L'\'') && value.back() == value.front();
}

std::wstring_view SectionName(std::wstring_view line) {
  line = TrimBlanks(line);
  const std::size_t end = line.rfind(L']');
  return line.empty() || line.front() != L'[' || end == line.npos ? std::wstring_view() : line.substr(1, end - 1);
}

std::wstring_view KeyName(std::wstring_view line) {
  const std::size_t equals = line.find(L'=');
  return equals == line.npos ? std::wstring_view() : TrimBlanks(line.substr(0, equals));
}

}  // namespace

ProfileText::ProfileText(std::string_view bytes) {
  const EncodedText read = ReadText(bytes);
  encoding_ = read.Encoding;
  Parse(read.Text);
}

void ProfileText::Parse(std::wstring_view text) {
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(L'\n'), text.size());
    std::wstring_view line = text.substr(0, end);
    if (line.ends_with(L'\r')) {
      line.remove_suffix(1);
    }
    lines_.emplace_back(line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  Index();
}

void ProfileText::Index() {
  index_.clear();
  std::optional<std::wstring> section;  // nothing before the first section and in a repeated one
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (const std::wstring_view name = SectionName(lines_[i]); !name.empty()) {
      section = ToLower(TrimBlanks(name));
      if (!index_.try_emplace({*section, {}}, i).second) {
        section.reset();
      }
    } else if (const std::wstring_view key = KeyName(lines_[i]); section && !key.empty() && key.front() != L';') {
      index_.try_emplace({*section, ToLower(key)}, i);
    }
  }
}

bool ProfileText::HasSection(const std::wstring& section) const {
  return index_.contains({ToLower(section), {}});
}

std::optional<std::wstring> ProfileText::Read(const std::wstring& section, const std::wstring& key) const {
  const auto found = index_.find({ToLower(section), ToLower(key)});
  if (found == index_.end()) {
    return std::nullopt;
  }
  const std::wstring_view line = lines_[found->second];
  std::wstring_view value = TrimBlanks(line.substr(line.find(L'=') + 1));
  if (IsQuoted(value)) {
    value = value.substr(1, value.size() - 2);
  }
  return std::wstring(value);
}

void ProfileText::Write(const std::wstring& section, const std::wstring& key, std::wstring value) {
  value.resize(std::min(value.find_first_of(L"\r\n"), value.size()));
  if (TrimBlanks(value).size() != value.size() || IsQuoted(value)) {
    value = L'"' + value + L'"';
  }
  const auto keyLine = index_.find({ToLower(section), ToLower(key)});
  if (keyLine != index_.end()) {
    std::wstring& line = lines_[keyLine->second];
    line = line.substr(0, line.find(L'=') + 1) + value;
    return;
  }
  auto sectionLine = index_.find({ToLower(section), {}});
  if (sectionLine == index_.end()) {
    lines_.push_back(L'[' + section + L']');
    Index();
    sectionLine = index_.find({ToLower(section), {}});
  }
  std::size_t end = sectionLine->second + 1;  // after the section's last line that is not blank
  for (std::size_t i = end; i < lines_.size() && SectionName(lines_[i]).empty(); ++i) {
    if (ToLower(TrimBlanks(lines_[i])) == ToLower(key)) {
      lines_[i] += L'=' + value;  // the system takes the bare name for the key and would not look further
      Index();
      return;
    }
    if (!TrimBlanks(lines_[i]).empty()) {
      end = i + 1;
    }
  }
  lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(end), key + L'=' + value);
  Index();
}

void ProfileText::Remove(const std::wstring& section, const std::wstring& key) {
  const auto name = std::pair(ToLower(section), ToLower(key));
  // A second line of the name would hold in place of the first.
  for (auto keyLine = index_.find(name); keyLine != index_.end(); keyLine = index_.find(name)) {
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(keyLine->second));
    Index();
  }
}

std::string ProfileText::Bytes() const {
  std::wstring text;
  for (const std::wstring& line : lines_) {
    text += line;
    text += L"\r\n";
  }
  return TextBytes(text, encoding_);
}

}  // namespace folivant::platform
