#include "scan/FileRecords.h"

#include <algorithm>

#include "base/mdlFileRoutines.h"
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

struct AttributeLetter {
  std::uint32_t Bit;
  wchar_t Letter;
};
constexpr std::array<AttributeLetter, 5> kLetters = {{{platform::kDirectory, L'd'},
                                                      {platform::kArchive, L'a'},
                                                      {platform::kReadOnly, L'r'},
                                                      {platform::kSystem, L's'},
                                                      {platform::kHidden, L'h'}}};
/// The texts of all combinations: they cost no room in any arena.
constexpr auto kAttributeTexts = [] {
  std::array<std::array<wchar_t, kLetters.size()>, 1U << kLetters.size()> texts{};
  for (std::size_t combination = 0; combination < texts.size(); ++combination) {
    for (std::size_t i = 0; i < kLetters.size(); ++i) {
      texts[combination][i] = (combination >> i & 1U) != 0 ? kLetters[i].Letter : L' ';
    }
  }
  return texts;
}();

void PutTwoDigits(std::uint64_t number, wchar_t* out) {
  out[0] = static_cast<wchar_t>(L'0' + number / 10);
  out[1] = static_cast<wchar_t>(L'0' + number % 10);
}

}  // namespace

std::wstring_view AttributeText(const platform::FindData& entry) {
  std::size_t combination = 0;
  for (std::size_t i = 0; i < kLetters.size(); ++i) {
    combination |= (entry.Attributes & kLetters[i].Bit) != 0 ? std::size_t{1} << i : 0;
  }
  return {kAttributeTexts[combination].data(), kLetters.size()};
}

FileRecordFiller::FileRecordFiller(const WalkSettings& settings)
    : settings_(settings), directorySize_(settings.Texts[Text::DirectorySizeText] + L"   ") {}

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
  record.SizeText = entry.IsDirectory() ? texts.Add(directorySize_) : AddSize(entry, texts);
  entry.LastWrite = platform::ToLocalFileTime(entry.LastWrite, settings_.LocalOffset);
  record.DateText = AddDate(entry.LastWrite, texts);
  record.AttrText = AttributeText(entry);
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

/// The run's date pattern for the day, and "hh:nn".
std::wstring_view FileRecordFiller::AddDate(std::uint64_t localFileTime, TextArena& texts) {
  const std::wstring_view day = DayText(localFileTime);
  constexpr std::size_t kTimeLength = 6;
  wchar_t* const text = texts.Reserve(day.size() + kTimeLength);
  wchar_t* const time = text + day.copy(text, day.size());
  const std::uint64_t minute = localFileTime / kTicksPerMinute % kMinutesPerDay;
  time[0] = L' ';
  PutTwoDigits(minute / 60, time + 1);
  time[3] = L':';
  PutTwoDigits(minute % 60, time + 4);
  return texts.Keep(day.size() + kTimeLength);
}

std::wstring_view FileRecordFiller::DayText(std::uint64_t localFileTime) {
  const std::uint64_t number = localFileTime / (kTicksPerMinute * kMinutesPerDay);
  Day& day = days_[number % days_.size()];
  if (day.Number != number) {
    day.Number = number;
    day.Text.clear();
    AppendDate(CalendarTimeOf(localFileTime), settings_.DatePattern, day.Text);
  }
  return day.Text;
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
      AppendDate(FileTimeOf(entry.LastWrite, settings_.LocalOffset), L"yyyymmddhhnn", sortKey_);
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
