#include "ui/ErrorText.h"

#include <string_view>

#include "platform/MessageBox.h"
#include "ui/Language.h"

namespace folivant {
namespace {

Text TextOf(FailedAction action) {
  switch (action) {
    case FailedAction::CreateFile:
      return Text::CannotCreateFile;
    case FailedAction::ReadFile:
      return Text::CannotReadFile;
    case FailedAction::WriteFile:
      return Text::CannotWriteFile;
    case FailedAction::WriteSetting:
      return Text::CannotWriteSetting;
    case FailedAction::Print:
      return Text::CannotPrint;
    case FailedAction::StartProgram:
      return Text::CannotStartProgram;
    case FailedAction::ListPaths:
      return Text::NoPathInList;
    case FailedAction::ReadLargeFile:
      return Text::FileTooLarge;
    case FailedAction::ReadWindow:
      break;
  }
  return Text::CannotReadWindow;
}

/// The system's words come with a line break at their end.
std::wstring WithoutEnd(std::wstring text, const wchar_t* end) {
  text.resize(text.find_last_not_of(end) + 1);
  return text;
}

}  // namespace

std::wstring ErrorText(const RuntimeError& error, const Messages& texts) {
  std::wstring sentence = texts[TextOf(error.Action())];
  if (sentence.find(L"%1") == sentence.npos) {  // without a language file the facts are shown all the same
    sentence += L" \"%1\": %2 (%3)";
  }
  const std::size_t system = sentence.find(L"%2");
  if (error.SystemText().empty() && error.SystemCode() == 0 && system != sentence.npos) {
    sentence = WithoutEnd(sentence.substr(0, system), L" :,(") + L'.';  // nothing to say but what could not be done
  }
  return WithPlaceholders(sentence, error.Object(), WithoutEnd(error.SystemText(), L" \r\n"),
                          std::to_wstring(error.SystemCode()));
}

void ShowError(const std::exception& error, const Messages& texts) {
  const auto* known = dynamic_cast<const RuntimeError*>(&error);
  if (known != nullptr && known->EndedByUser()) {
    return;
  }
  const std::string_view words = error.what();
  platform::ShowMessage(known != nullptr ? ErrorText(*known, texts) : std::wstring(words.begin(), words.end()),
                        platform::BoxIcon::Exclamation, platform::BoxButtons::Ok);
}

}  // namespace folivant
