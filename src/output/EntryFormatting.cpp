#include "output/EntryFormatting.h"

#include "base/DateValue.h"
#include "platform/Locale.h"
#include "ui/ValueText.h"

namespace folivant {
namespace {

const std::wstring& WordFor(std::int32_t count, TextId one, TextId many, const Messages& texts) {
  return texts[count == 1 ? one : many];
}

std::wstring ShortDate(DateValue date) {
  const platform::CalendarTime time = ToCalendarTime(date);
  return platform::FormatShortDate(time.Year, time.Month, time.Day);
}

}  // namespace

std::wstring TotalsSentence(const RunTotals& totals, const Messages& texts) {
  std::wstring text = std::to_wstring(totals.TotalFiles) + L' ';
  text += WordFor(totals.TotalFiles, TextId::File, TextId::Files, texts);
  text += texts[TextId::JoiningWord];
  text += L' ' + std::to_wstring(totals.TotalDirs) + L' ';
  text += WordFor(totals.TotalDirs, TextId::DirectoryWord, TextId::DirectoriesWord, texts);
  text += L", ";
  AppendSize(totals.TotalSize, texts, text);
  return text;
}

std::wstring FreeSpaceSentence(const platform::DiskSpace& space, const Messages& texts) {
  std::wstring text = FormatSize(Currency::FromWhole(space.TotalFree), texts);
  text += L' ' + texts[TextId::FreeOf] + L' ';
  AppendSize(Currency::FromWhole(space.Total), texts, text);
  text += L'.';
  return text;
}

std::wstring FilterDescription(const FilterSettings& filter, const Messages& texts) {
  std::wstring text;
  if (filter.NameOn) {
    text += filter.FilterName + L", ";
  }
  if (filter.SizeOn) {
    text += filter.SizeMin ? L'>' : L'<';
    text += std::to_wstring(filter.FilterSize) + L' ' + texts[TextId::Kilobytes] + L", ";
  }
  if (filter.DateOn) {
    text += ShortDate(filter.DateMin) + L" - " + ShortDate(filter.DateMax) + L", ";
  }
  const std::size_t lastComma = text.rfind(L',');
  text.resize(lastComma == text.npos ? 0 : lastComma);
  return text;
}

}  // namespace folivant
