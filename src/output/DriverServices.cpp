#include "output/DriverServices.h"

#include "base/mdlFileRoutines.h"
#include "output/EntryFormatting.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "scan/NameRules.h"
#include "ui/ValueText.h"

namespace folivant {

std::wstring ExpandHeaderFooter(HeaderFooter which, const ListingRun& run, std::int16_t page) {
  std::wstring text = which == HeaderFooter::Header ? run.General.Header : run.General.Footer;
  const bool tree = !run.Format.IsFileList();
  const platform::CalendarTime now = platform::Now();
  // A replacement is searched for the placeholders that follow it here, so the order shows.
  const auto replace = [&text](std::wstring_view placeholder, std::wstring_view replacement) {
    text = ReplaceAll(text, placeholder, replacement);
  };
  replace(L"%p", tree ? run.Start.Shown : std::wstring());
  replace(L"%l", tree && text.find(L"%l") != text.npos ? DriveLabel(run.Start.Shown, run.Texts) : std::wstring());
  replace(L"%f", tree && run.Filter.NameOn ? run.Filter.FilterName : std::wstring());
  replace(L"%g", tree ? FilterDescription(run.Filter, run.Texts) : std::wstring());
  replace(L"%d", FormatDate(now, run.DatePattern));
  replace(L"%t", FormatDate(now, kTimePattern));
  replace(L"%n", std::to_wstring(page));
  return text;
}

std::wstring DriveLabel(const std::wstring& root, const Messages& texts) {
  std::wstring label;
  if (root.find(L":\\", 1) == 1) {
    label = platform::VolumeLabel(root.substr(0, 3));
  }
  return label.empty() ? texts[TextId::NoLabel] : ProperName(label);
}

std::wstring TotalsLine(const ListingRun& run) {
  return TotalsSentence(run.Totals, run.Texts);
}

std::wstring FreeSpaceLine(const std::wstring& path, const Messages& texts) {
  const std::optional<platform::DiskSpace> space = platform::FreeSpace(AddBackslash(path));
  return space ? FreeSpaceSentence(*space, texts) : std::wstring();
}

std::vector<std::wstring> ClosingSentences(const ListingRun& run) {
  const bool streamed = run.Format.ListingStyle == ListingStyle::IncludeSubdirectories;
  std::vector<std::wstring> sentences;
  if (streamed || run.Format.IsCollected()) {
    sentences.push_back(TotalsLine(run));
  }
  if (streamed || run.Format.IsCollected() || run.Format.ListingStyle == ListingStyle::NoSubdirectories) {
    sentences.push_back(FreeSpaceLine(run.Start.OnDisk, run.Texts));
  }
  return sentences;
}

}  // namespace folivant
