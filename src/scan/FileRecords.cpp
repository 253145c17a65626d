// The record and the sort key of an entry, from what the file system says of it.
#include "scan/FileRecords.h"

#include <algorithm>

#include "base/mdlFileRoutines.h"
#include "platform/Clock.h"
#include "platform/Text.h"
#include "scan/FileDates.h"
#include "scan/Filter.h"
#include "ui/ValueText.h"

namespace folivant {
namespace {

constexpr std::size_t kSizeDigits = 15;
constexpr std::size_t kExtensionLength = 5;

void AppendLower(std::wstring_view text, std::wstring& out) {
  const std::size_t start = out.size();
  out.resize(start + text.size());
  platform::LowerInto(text, out.data() + start);
}

/// The last fifteen digits, with zeros in front.
void AppendSizeKey(std::uint64_t size, std::wstring& key) {
  const std::wstring digits = std::to_wstring(size);
  key.append(kSizeDigits - std::min(digits.size(), kSizeDigits), L'0');
  key.append(digits, digits.size() - std::min(digits.size(), kSizeDigits));
}

void AppendExtensionKey(std::wstring_view name, std::wstring& key) {
  std::wstring extension = GetExtension(name);
  extension.resize(kExtensionLength, L' ');
  key += extension;
  key += L'.';
}

}  // namespace

platform::ShortNames ShortNamesFor(const ListingRun& run) {
  const bool used = run.Format.Files.DosName || run.Filter.OrderBy == OrderBy::DosName;
  return used ? platform::ShortNames::Read : platform::ShortNames::Skip;
}

platform::Digits DigitsFor(const ListingRun& run) {
  const bool byName = run.Filter.OrderBy == OrderBy::Name || run.Filter.OrderBy == OrderBy::DosName;
  return byName && run.General.NaturalOrder ? platform::Digits::AsNumbers : platform::Digits::AsCharacters;
}

FileRecordFiller::FileRecordFiller(const ListingRun& run)
    : run_(run),
      filesLead_(run.Format.ListingStyle == ListingStyle::TreeStyle && run.General.FilesFirst),
      keepsShortNames_(ShortNamesFor(run) == platform::ShortNames::Read) {}

FileRecord FileRecordFiller::FillFileRecord(platform::FindData& entry, std::uint64_t lastWrite, std::int32_t level,
                                            TextArena& texts) {
  entry.LastWrite = platform::ToLocalFileTime(entry.LastWrite, run_.LocalOffset);
  FileRecord record;
  record.Name = texts.Add(entry.Name);
  if (keepsShortNames_) {
    record.AlternateName = texts.Add(entry.AlternateName);
  }
  record.Size = entry.Size;
  record.LastWrite = lastWrite;
  record.Created = entry.Created;
  record.LastAccess = entry.LastAccess;
  record.ShownWrite = entry.LastWrite;
  record.Attributes = entry.Attributes;
  record.ReparseTag = entry.ReparseTag;
  record.Level = level;
  MakeSortKey(entry);
  return record;
}

void FileRecordFiller::MakeSortKey(platform::FindData& entry) {
  sortKey_.assign(1, entry.IsDirectory() != filesLead_ ? L'a' : L'b');
  switch (run_.Filter.OrderBy) {
    case OrderBy::Name:
      AppendLower(entry.Name, sortKey_);
      return;
    case OrderBy::DosName:
      AppendLower(entry.AlternateName.empty() ? entry.Name : entry.AlternateName, sortKey_);
      return;
    case OrderBy::Size:
      AppendSizeKey(static_cast<std::uint64_t>(FileSizeOf(entry).Whole()), sortKey_);
      break;
    case OrderBy::Date:
      AppendDate(FileTimeOf(entry.LastWrite, run_.LocalOffset), L"yyyymmddhhnn", sortKey_);
      break;
    case OrderBy::Extension:
      AppendExtensionKey(entry.Name, sortKey_);
      break;
    case OrderBy::None:
    default:
      sortKey_.clear();  // not even the group: the order of the enumeration stays
      return;
  }
  sortKey_ += entry.Name;
}

}  // namespace folivant
