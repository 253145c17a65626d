#include "ui/Help.h"

#include "base/mdlFileRoutines.h"
#include "platform/Files.h"

namespace folivant {

std::wstring ManualFile(const std::wstring& programFolder, const std::wstring& language) {
  const std::wstring folder = AddBackslash(programFolder) + L"help\\";
  const std::wstring own = folder + language.substr(0, language.find(L'.')) + L".html";
  return platform::PathExists(own) ? own : folder + L"english.html";
}

}  // namespace folivant
