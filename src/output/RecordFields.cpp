// A row of a large listing has to cost little more than the look at its entry: what is known to be ASCII is made as
// bytes at once, and only names and paths go through the conversion.
#include "output/RecordFields.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/InputFile.h"
#include "platform/RuntimeError.h"
#include "scan/FileDates.h"

namespace folivant {
namespace {

/// Bytes that are hashed between two looks at events. A stick that reads five megabytes a second takes 50 ms for them.
constexpr std::size_t kBlock = std::size_t{256} * 1024;

/// What the letters of Windows' own attribute tool stand for, in its order, then those that it does not show.
constexpr std::pair<std::uint32_t, char> kAttributeLetters[] = {
    {0x20, 'A'},   {0x4, 'S'},     {0x2, 'H'},      {0x1, 'R'},   {0x1000, 'O'}, {0x2000, 'I'}, {0x20000, 'X'},
    {0x8000, 'V'}, {0x80000, 'P'}, {0x100000, 'U'}, {0x800, 'C'}, {0x4000, 'E'}, {0x400, 'L'},  {0x100, 'T'}};

/// "file", "directory" or "link".
std::string_view EntryType(const FileRecord& entry) {
  if (platform::StandsForAnother(entry.Attributes, entry.ReparseTag)) {
    return "link";
  }
  return entry.IsDirectory() ? "directory" : "file";
}

void PutTime(std::uint64_t fileTime, FieldSink& out) {
  if (fileTime == 0) {
    return out.None();
  }
  out.Plain(UtcTimeText(fileTime).Text());
}

void PutAttributes(std::uint32_t attributes, FieldSink& out) {
  std::array<char, std::size(kAttributeLetters)> letters;
  std::size_t count = 0;
  for (const auto& [bit, letter] : kAttributeLetters) {
    if ((attributes & bit) != 0) {
      letters[count++] = letter;
    }
  }
  out.Plain({letters.data(), count});
}

void PutCount(std::int64_t number, FieldSink& out) {
  out.Number(static_cast<std::uint64_t>(number));
}

using Facts = RecordedFacts;

constexpr RecordField<RecordedEntry> kEntryRows[] = {
    {"path", [](const auto& entry, Facts&, FieldSink& out) { out.Text(entry.Path); }},
    {"name", [](const auto& entry, Facts&, FieldSink& out) { out.Text(entry.Name); }},
    {"type", [](const auto& entry, Facts&, FieldSink& out) { out.Plain(EntryType(entry.Entry)); }},
    {"size", [](const auto& entry, Facts&,
                FieldSink& out) { entry.Entry.IsDirectory() ? out.None() : out.Number(entry.Entry.Size); }},
    {"modified", [](const auto& entry, Facts&, FieldSink& out) { PutTime(entry.Entry.LastWrite, out); }},
    {"created", [](const auto& entry, Facts&, FieldSink& out) { PutTime(entry.Entry.Created, out); }},
    {"accessed", [](const auto& entry, Facts&, FieldSink& out) { PutTime(entry.Entry.LastAccess, out); }},
    {"attributes", [](const auto& entry, Facts&, FieldSink& out) { PutAttributes(entry.Entry.Attributes, out); }},
    {"owner",
     [](const auto& entry, Facts& facts, FieldSink& out) {
       const auto owner = facts.Owner(entry);
       owner ? out.Text(*owner) : out.None();
     },
     &GeneralSettings::RecordOwner},
    {"links",
     [](const auto& entry, Facts& facts, FieldSink& out) {
       const auto links = facts.Links(entry);
       links ? out.Number(*links) : out.None();
     },
     &GeneralSettings::RecordLinks},
    {"sha256",
     [](const auto& entry, Facts& facts, FieldSink& out) {
       const auto sum = facts.Sha256(entry);
       sum ? out.Text(*sum) : out.None();
     },
     &GeneralSettings::RecordSha256},
};

constexpr RecordField<DirNode> kDirectoryRows[] = {
    {"path", [](const auto& node, Facts&, FieldSink& out) { out.Text(node.PathOnDisk); }},
    {"files", [](const auto& node, Facts&, FieldSink& out) { PutCount(node.Files, out); }},
    {"size", [](const auto& node, Facts&, FieldSink& out) { PutCount(node.Size.Whole(), out); }},
    {"total_files", [](const auto& node, Facts&, FieldSink& out) { PutCount(node.TotalFiles, out); }},
    {"total_size", [](const auto& node, Facts&, FieldSink& out) { PutCount(node.TotalSize.Whole(), out); }},
};

constexpr RecordField<FoundItem> kFoundRows[] = {
    {"name", [](const auto& row, Facts&, FieldSink& out) { out.Text(row.Name); }},
    {"folder", [](const auto& row, Facts&, FieldSink& out) { out.Text(row.InFolder); }},
    {"size", [](const auto& row, Facts&, FieldSink& out) { out.Text(row.Size); }},
    {"modified", [](const auto& row, Facts&, FieldSink& out) { out.Text(row.Modified); }},
};

/// Two digits; returns where the next character goes.
char* PutPair(std::uint32_t number, char* out) {
  static constexpr auto kPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
      pairs[2 * i] = static_cast<char>('0' + i / 10);
      pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
  }();
  return std::copy_n(kPairs.data() + std::size_t{2} * number, 2, out);
}

char* PutPair(char separator, int number, char* out) {
  *out = separator;
  return PutPair(static_cast<std::uint32_t>(number), out + 1);
}

}  // namespace

constinit const RecordFields<RecordedEntry> kEntryFields{kEntryRows};
constinit const RecordFields<DirNode> kDirectoryFields{kDirectoryRows};
constinit const RecordFields<FoundItem> kFoundFields{kFoundRows};

UtcTimeText::UtcTimeText(std::uint64_t fileTime) {
  constexpr std::uint64_t kTicks = 10'000'000;
  const platform::CalendarTime time = CalendarTimeOf(fileTime);
  const auto year = static_cast<std::uint32_t>(time.Year);
  const auto fraction = static_cast<std::uint32_t>(fileTime % kTicks);
  char* out = text_.data();
  if (year > 9999) {
    *out++ = '+';  // the standard's mark of a year with more digits
    *out++ = static_cast<char>('0' + year / 10'000);
  }
  out = PutPair(year / 100 % 100, out);
  out = PutPair(year % 100, out);
  out = PutPair('-', time.Month, out);
  out = PutPair('-', time.Day, out);
  out = PutPair('T', time.Hour, out);
  out = PutPair(':', time.Minute, out);
  out = PutPair(':', time.Second, out);
  *out++ = '.';
  out = PutPair(fraction / 100'000, out);
  out = PutPair(fraction / 1'000 % 100, out);
  out = PutPair(fraction / 10 % 100, out);
  *out++ = static_cast<char>('0' + fraction % 10);
  *out++ = 'Z';
  length_ = static_cast<std::size_t>(out - text_.data());
}

template <class Read>
auto RecordedFacts::ValueOf(const RecordedEntry& entry, Read read) -> decltype(read()) {
  try {
    return read();
  } catch (const RuntimeError& error) {
    if (run_.Unread.empty() || run_.Unread.back().Path != entry.Path) {  // each field of a row tries again
      run_.AddUnread(entry.Path, ReasonOf(error));
    }
    return std::nullopt;
  }
}

std::optional<std::wstring> RecordedFacts::Owner(const RecordedEntry& entry) {
  return ValueOf(entry, [&] { return std::optional(platform::OwnerOf(entry.Path)); });
}

std::optional<std::uint32_t> RecordedFacts::Links(const RecordedEntry& entry) {
  return ValueOf(entry, [&] { return std::optional(platform::LinkCountOf(entry.Path)); });
}

std::optional<std::wstring> RecordedFacts::Sha256(const RecordedEntry& entry) {
  if (entry.Entry.IsDirectory() || run_.IsCancelled()) {
    return std::nullopt;
  }
  if (platform::IsPlaceholder(entry.Entry.Attributes)) {
    run_.AddUnread(entry.Path, {});
    return std::nullopt;
  }
  run_.Watcher.ShowDirectory(entry.Path);
  return ValueOf(entry, [&] { return Hash(entry); });
}

std::optional<std::wstring> RecordedFacts::Hash(const RecordedEntry& entry) {
  platform::Sha256 hash;
  platform::InputFile file{std::wstring(entry.Path)};
  block_.resize(kBlock);
  while (const std::size_t read = file.Read(block_)) {
    hash.Add(std::span<const char>(block_).first(read));
    run_.Watcher.LetEventsThrough();
    if (run_.IsCancelled()) {
      return std::nullopt;
    }
  }
  return hash.Hex();
}

}  // namespace folivant
