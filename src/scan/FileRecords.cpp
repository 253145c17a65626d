#include "scan/FileRecords.h"

#include <algorithm>

#include "app/mdlFileRoutines.h"
#include "output/EntryFormatting.h"
#include "platform/Text.h"
#include "scan/FileDates.h"
#include "scan/Filter.h"
#include "scan/NameRules.h"

namespace folivant {
namespace {

constexpr std::uint64_t kTicksPerMinute = 600'000'000;
constexpr std::uint64_t kMinutesPerDay = 24 * 60;
constexpr std::size_t kSizeDigits = 15;
constexpr std::size_t kExtensionLength = 5;

void PutTwoDigits(std::uint64_t number, wchar_t* out) {
  out[0] = static_cast<wchar_t>(L'0' + number / 10);
  out[1] = static_cast<wchar_t>(L'0' + number % 10);
}

}  // namespace

std::array<wchar_t, 5> AttributeText(const platform::FindData& entry) {
  const auto letter = [&](std::uint32_t bit, wchar_t c) { return (entry.Attributes & bit) != 0 ? c : L' '; };
  return {letter(platform::kDirectory, L'd'), letter(platform::kArchive, L'a'), letter(platform::kReadOnly, L'r'),
          letter(platform::kSystem, L's'), letter(platform::kHidden, L'h')};
}

FileRecordFiller::FileRecordFiller(const WalkSettings& settings)
    : settings_(settings),
      datePattern_(settings.DatePattern + L" hh:nn"),
      directorySize_(settings.Texts[Text::DirectorySizeText] + L"   ") {}

platform::ShortNames FileRecordFiller::ShortNames() const {
  const bool used = settings_.Format.Files.DosName || settings_.Filter.OrderBy == OrderBy::DosName;
  return used ? platform::ShortNames::Read : platform::ShortNames::Skip;
}

FileRecord FileRecordFiller::FillFileRecord(platform::FindData& entry, std::int32_t level, TextArena& texts) {
  FileRecord record;
  wchar_t* const name = texts.Reserve(entry.Name.size());
  record.Name = texts.Keep(ProperNameInto(entry.Name, name));
  if (ShortNames() == platform::ShortNames::Read) {
    record.DosName = AddDosName(entry, texts);
  }
  record.SizeText = entry.IsDirectory() ? std::wstring_view(directorySize_) : AddSize(entry, texts);
  entry.LastWrite = platform::ToLocalFileTime(entry.LastWrite);
  record.DateText = AddDate(entry.LastWrite, texts);
  const std::array<wchar_t, 5> attributes = AttributeText(entry);
  record.AttrText = texts.Add({attributes.data(), attributes.size()});
  MakeSortKey(entry, record);
  record.SortKey = sortKey_;
  record.Level = level;
  return record;
}

std::wstring_view FileRecordFiller::AddDosName(const platform::FindData& entry, TextArena& texts) const {
  const std::wstring_view name = entry.AlternateName.empty() ? entry.Name : entry.AlternateName;
  platform::LowerInto(name, texts.Reserve(name.size()));
  return texts.Keep(name.size());
}

std::wstring_view FileRecordFiller::AddSize(const platform::FindData& entry, TextArena& texts) {
  sizeText_.clear();
  AppendSize(FileSizeOf(entry), settings_.Texts, sizeText_);
  return texts.Add(sizeText_);
}

std::wstring_view FileRecordFiller::AddDate(std::uint64_t localFileTime, TextArena& texts) {
  const std::uint64_t minute = localFileTime / kTicksPerMinute;
  if (minute != lastMinute_) {
    if (lastMinute_ == ~0ULL || minute / kMinutesPerDay != lastMinute_ / kMinutesPerDay) {
      dateText_.clear();
      AppendDate(CalendarTimeOf(localFileTime), datePattern_, dateText_);
    } else {  // another minute of the same day: only the "hh:nn" at the end differs
      wchar_t* const time = dateText_.data() + dateText_.size() - 5;
      PutTwoDigits(minute / 60 % 24, time);
      PutTwoDigits(minute % 60, time + 3);
    }
    lastMinute_ = minute;
  }
  return texts.Add(dateText_);
}

void FileRecordFiller::MakeSortKey(platform::FindData& entry, const FileRecord& record) {
  sortKey_.clear();
  const bool filesLead = settings_.Format.ListingStyle == ListingStyle::TreeStyle && settings_.General.FilesFirst;
  sortKey_ += entry.IsDirectory() != filesLead ? L'a' : L'b';
  switch (settings_.Filter.OrderBy) {
    case OrderBy::Name:
      sortKey_.resize(1 + entry.Name.size());
      platform::LowerInto(entry.Name, sortKey_.data() + 1);
      return;
    case OrderBy::DosName:
      sortKey_ += record.DosName;
      return;
    case OrderBy::Size: {
      const std::wstring digits = std::to_wstring(FileSizeOf(entry).Whole());
      sortKey_.append(kSizeDigits - std::min(digits.size(), kSizeDigits), L'0');
      sortKey_.append(digits, digits.size() - std::min(digits.size(), kSizeDigits));
      break;
    }
    case OrderBy::Date:
      AppendDate(FileTimeOf(entry.LastWrite), L"yyyymmddhhnn", sortKey_);
      break;
    case OrderBy::Extension: {
      std::wstring extension = GetExtension(entry.Name);
      extension.resize(kExtensionLength, L' ');
      sortKey_ += extension + L'.';
      break;
    }
    case OrderBy::None:
    default:
      sortKey_.clear();  // not even the group: the order of the enumeration stays
      return;
  }
  sortKey_ += entry.Name;
}

}  // namespace folivant
