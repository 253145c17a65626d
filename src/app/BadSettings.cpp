#include "app/BadSettings.h"

#include <algorithm>
#include <span>

#include "ui/Language.h"

namespace folivant {
namespace {

// A file damaged from its first line on would fill the screen.
constexpr std::size_t kMostLines = 10;
constexpr std::size_t kMostCharacters = 60;  ///< of a value

std::wstring OneSetting(const BadSetting& setting, const Messages& texts) {
  std::wstring text = WithPlaceholders(texts[TextId::BadSetting], setting.Location, setting.Key, setting.Value);
  if (setting.Limits) {
    text += L"\r\n" + WithPlaceholders(texts[TextId::ValidValues], setting.Limits->Lowest, setting.Limits->Highest);
  }
  return text;
}

std::wstring Line(const BadSetting& setting) {
  std::wstring line = setting.Key + L"=" + setting.Value.substr(0, kMostCharacters);
  if (setting.Value.size() > kMostCharacters) {
    line += L"...";
  }
  if (setting.Limits) {
    line += L"   (" + setting.Limits->Lowest + L" - " + setting.Limits->Highest + L")";
  }
  return line;
}

}  // namespace

std::wstring BadSettingsText(const std::vector<BadSetting>& bad, const Messages& texts) {
  if (bad.size() == 1) {
    return OneSetting(bad.front(), texts);
  }
  // A line for each below the name of its store or file.
  std::wstring text;
  std::wstring location;
  for (const BadSetting& setting : std::span(bad).first(std::min(bad.size(), kMostLines))) {
    if (setting.Location != location) {
      location = setting.Location;
      text += text.empty() ? L"" : L"\r\n\r\n";
      text += WithPlaceholders(texts[TextId::BadSettings], location) + L"\r\n";
    }
    text += L"\r\n" + Line(setting);
  }
  if (bad.size() > kMostLines) {
    text += L"\r\n" + WithPlaceholders(texts[TextId::MoreBadSettings], std::to_wstring(bad.size() - kMostLines));
  }
  return text;
}

}  // namespace folivant
