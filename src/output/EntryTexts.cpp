// Names, sizes, dates and attributes of entries as text, appended to the line being written.
#include "output/EntryTexts.h"

#include <algorithm>

#include "platform/Text.h"
#include "scan/FileDates.h"
#include "scan/NameRules.h"
#include "ui/ValueText.h"

namespace folivant {
namespace {

constexpr std::uint64_t kTicksPerMinute = 600'000'000;
constexpr std::uint64_t kMinutesPerDay = 24 * 60;
constexpr std::wstring_view kAfterDirectorySize = L"   ";

struct AttributeLetter {
  std::uint32_t Bit;
  wchar_t Letter;
};
constexpr AttributeLetter kLetters[] = {{platform::kDirectory, L'd'},
                                        {platform::kArchive, L'a'},
                                        {platform::kReadOnly, L'r'},
                                        {platform::kSystem, L's'},
                                        {platform::kHidden, L'h'}};

/// Room for `count` characters at the end of `out`, to be filled at once.
wchar_t* Extend(std::wstring& out, std::size_t count) {
  out.resize(out.size() + count);
  return out.data() + out.size() - count;
}

void PutTwoDigits(std::uint64_t number, wchar_t* out) {
  out[0] = static_cast<wchar_t>(L'0' + number / 10);
  out[1] = static_cast<wchar_t>(L'0' + number % 10);
}

}  // namespace

void EntryTexts::AppendName(const FileRecord& entry, std::wstring& out) {
  const std::size_t start = out.size();
  wchar_t* const name = Extend(out, entry.Name.size());
  out.resize(start + ProperNameInto(entry.Name, name));
}

void EntryTexts::AppendDosName(const FileRecord& entry, std::wstring& out) {
  const std::wstring_view name = entry.AlternateName.empty() ? entry.Name : entry.AlternateName;
  platform::LowerInto(name, Extend(out, name.size()));
}

void EntryTexts::AppendSize(const FileRecord& entry, std::wstring& out) {
  if (entry.IsDirectory()) {
    out += texts_[TextId::DirectorySizeText];
    out += kAfterDirectorySize;
  } else {
    folivant::AppendSize(Currency::FromWhole(entry.Size), texts_, out);
  }
}

void EntryTexts::AppendDate(const FileRecord& entry, std::wstring& out) {
  out += DayText(entry.ShownWrite);
  const std::uint64_t minute = entry.ShownWrite / kTicksPerMinute % kMinutesPerDay;
  wchar_t* const time = Extend(out, 6);
  time[0] = L' ';
  PutTwoDigits(minute / 60, time + 1);
  time[3] = L':';
  PutTwoDigits(minute % 60, time + 4);
}

void EntryTexts::AppendAttributes(const FileRecord& entry, std::wstring& out) {
  for (const AttributeLetter& each : kLetters) {
    out += (entry.Attributes & each.Bit) != 0 ? each.Letter : L' ';
  }
}

const std::wstring& EntryTexts::DayText(std::uint64_t localFileTime) {
  const std::uint64_t number = localFileTime / (kTicksPerMinute * kMinutesPerDay);
  Day& day = days_[number % days_.size()];
  if (day.Number != number) {
    day.Number = number;
    day.Text.clear();
    folivant::AppendDate(CalendarTimeOf(localFileTime), datePattern_, day.Text);
  }
  return day.Text;
}

}  // namespace folivant
