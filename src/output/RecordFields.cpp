#include "output/RecordFields.h"

#include <algorithm>
#include <utility>

#include "platform/InputFile.h"
#include "platform/RuntimeError.h"
#include "scan/FileDates.h"

namespace folivant {
namespace {

constexpr std::size_t kBlock = std::size_t{1} << 20;  ///< bytes that are hashed between two looks at events

/// What the letters of Windows' own attribute tool stand for, in its order, then those that it does not show.
constexpr std::pair<std::uint32_t, wchar_t> kAttributeLetters[] = {
    {0x20, L'A'},   {0x4, L'S'},     {0x2, L'H'},      {0x1, L'R'},   {0x1000, L'O'}, {0x2000, L'I'}, {0x20000, L'X'},
    {0x8000, L'V'}, {0x80000, L'P'}, {0x100000, L'U'}, {0x800, L'C'}, {0x4000, L'E'}, {0x400, L'L'},  {0x100, L'T'}};

bool AppendNumber(std::uint64_t number, std::wstring& out) {
  out += std::to_wstring(number);
  return true;
}

bool AppendText(std::wstring_view text, std::wstring& out) {
  out += text;
  return true;
}

void AppendPadded(int number, std::size_t width, std::wstring& out) {
  const std::wstring digits = std::to_wstring(number);
  out.append(width - std::min(width, digits.size()), L'0');
  out += digits;
}

bool AppendAttributes(std::uint32_t attributes, std::wstring& out) {
  for (const auto& [bit, letter] : kAttributeLetters) {
    if ((attributes & bit) != 0) {
      out += letter;
    }
  }
  return true;
}

using Facts = RecordedFacts;

constexpr RecordField<RecordedEntry> kEntryRows[] = {
    {L"path", FieldType::Text,
     [](const auto& entry, Facts&, std::wstring& out) { return AppendText(entry.Path, out); }},
    {L"name", FieldType::Text,
     [](const auto& entry, Facts&, std::wstring& out) { return AppendText(entry.Name, out); }},
    {L"type", FieldType::Text,
     [](const auto& entry, Facts&, std::wstring& out) { return AppendText(EntryType(entry.Entry), out); }},
    {L"size", FieldType::Number,
     [](const auto& entry, Facts&, std::wstring& out) {
       return !entry.Entry.IsDirectory() && AppendNumber(entry.Entry.Size, out);
     }},
    {L"modified", FieldType::Text,
     [](const auto& entry, Facts&, std::wstring& out) { return AppendUtcTime(entry.Entry.LastWrite, out); }},
    {L"created", FieldType::Text,
     [](const auto& entry, Facts&, std::wstring& out) { return AppendUtcTime(entry.Entry.Created, out); }},
    {L"accessed", FieldType::Text,
     [](const auto& entry, Facts&, std::wstring& out) { return AppendUtcTime(entry.Entry.LastAccess, out); }},
    {L"attributes", FieldType::Text,
     [](const auto& entry, Facts&, std::wstring& out) { return AppendAttributes(entry.Entry.Attributes, out); }},
    {L"owner", FieldType::Text,
     [](const auto& entry, Facts& facts, std::wstring& out) { return facts.AppendOwner(entry, out); },
     &GeneralSettings::RecordOwner},
    {L"links", FieldType::Number,
     [](const auto& entry, Facts& facts, std::wstring& out) { return facts.AppendLinks(entry, out); },
     &GeneralSettings::RecordLinks},
    {L"sha256", FieldType::Text,
     [](const auto& entry, Facts& facts, std::wstring& out) { return facts.AppendSha256(entry, out); },
     &GeneralSettings::RecordSha256},
};

constexpr RecordField<DirNode> kDirectoryRows[] = {
    {L"path", FieldType::Text,
     [](const auto& node, Facts&, std::wstring& out) { return AppendText(node.PathOnDisk, out); }},
    {L"files", FieldType::Number,
     [](const auto& node, Facts&, std::wstring& out) {
       return AppendNumber(static_cast<std::uint64_t>(node.Files), out);
     }},
    {L"size", FieldType::Number,
     [](const auto& node, Facts&, std::wstring& out) {
       return AppendNumber(static_cast<std::uint64_t>(node.Size.Whole()), out);
     }},
    {L"total_files", FieldType::Number,
     [](const auto& node, Facts&, std::wstring& out) {
       return AppendNumber(static_cast<std::uint64_t>(node.TotalFiles), out);
     }},
    {L"total_size", FieldType::Number,
     [](const auto& node, Facts&, std::wstring& out) {
       return AppendNumber(static_cast<std::uint64_t>(node.TotalSize.Whole()), out);
     }},
};

constexpr RecordField<FoundItem> kFoundRows[] = {
    {L"name", FieldType::Text, [](const auto& row, Facts&, std::wstring& out) { return AppendText(row.Name, out); }},
    {L"folder", FieldType::Text,
     [](const auto& row, Facts&, std::wstring& out) { return AppendText(row.InFolder, out); }},
    {L"size", FieldType::Text, [](const auto& row, Facts&, std::wstring& out) { return AppendText(row.Size, out); }},
    {L"modified", FieldType::Text,
     [](const auto& row, Facts&, std::wstring& out) { return AppendText(row.Modified, out); }},
};

}  // namespace

constinit const RecordFields<RecordedEntry> kEntryFields{kEntryRows};
constinit const RecordFields<DirNode> kDirectoryFields{kDirectoryRows};
constinit const RecordFields<FoundItem> kFoundFields{kFoundRows};

std::wstring_view EntryType(const FileRecord& entry) {
  if (platform::StandsForAnother(entry.Attributes, entry.ReparseTag)) {
    return L"link";
  }
  return entry.IsDirectory() ? L"directory" : L"file";
}

bool AppendUtcTime(std::uint64_t fileTime, std::wstring& out) {
  constexpr std::uint64_t kTicks = 10'000'000;
  if (fileTime == 0) {
    return false;
  }
  const platform::CalendarTime time = CalendarTimeOf(fileTime);
  if (time.Year > 9999) {
    out += L'+';  // the standard's mark of a year with more digits
  }
  AppendPadded(time.Year, 4, out);
  const std::pair<wchar_t, int> parts[] = {
      {L'-', time.Month}, {L'-', time.Day}, {L'T', time.Hour}, {L':', time.Minute}, {L':', time.Second}};
  for (const auto& [separator, part] : parts) {
    out += separator;
    AppendPadded(part, 2, out);
  }
  out += L'.';
  AppendPadded(static_cast<int>(fileTime % kTicks), 7, out);
  out += L'Z';
  return true;
}

template <class Read>
bool RecordedFacts::Append(const RecordedEntry& entry, Read read) {
  try {
    return read();
  } catch (const RuntimeError& error) {
    if (run_.Unread.empty() || run_.Unread.back().Path != entry.Path) {  // each field of a row tries again
      run_.Unread.push_back({std::wstring(entry.Path), ReasonOf(error)});
    }
    return false;
  }
}

bool RecordedFacts::AppendOwner(const RecordedEntry& entry, std::wstring& out) {
  return Append(entry, [&] { return AppendText(platform::OwnerOf(entry.Path), out); });
}

bool RecordedFacts::AppendLinks(const RecordedEntry& entry, std::wstring& out) {
  return Append(entry, [&] { return AppendNumber(platform::LinkCountOf(entry.Path), out); });
}

bool RecordedFacts::AppendSha256(const RecordedEntry& entry, std::wstring& out) {
  if (entry.Entry.IsDirectory() || run_.IsCancelled()) {
    return false;
  }
  if (platform::IsPlaceholder(entry.Entry.Attributes)) {
    run_.Unread.push_back({std::wstring(entry.Path), {}});
    return false;
  }
  run_.Watcher.ShowDirectory(entry.Path);
  return Append(entry, [&] {
    platform::Sha256 hash;
    return Hash(entry, hash) && AppendText(hash.Hex(), out);
  });
}

/// False when the run was cancelled meanwhile.
bool RecordedFacts::Hash(const RecordedEntry& entry, platform::Sha256& hash) {
  platform::InputFile file{std::wstring(entry.Path)};
  block_.resize(kBlock);
  while (const std::size_t read = file.Read(block_)) {
    hash.Add(std::span<const char>(block_).first(read));
    run_.Watcher.LetEventsThrough();
    if (run_.IsCancelled()) {
      return false;
    }
  }
  return true;
}

}  // namespace folivant
