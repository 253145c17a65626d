// Failures as sentences in the user's language.
#include "ui/ErrorText.h"

#include <new>

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
    case FailedAction::UseMargins:
      return Text::MarginsLeaveNoRoom;
    case FailedAction::UseFont:
      return Text::FontDoesNotFit;
    case FailedAction::ListPaths:
      return Text::NoPathInList;
    case FailedAction::ReadLargeFile:
      return Text::FileTooLarge;
    case FailedAction::ReadWindow:
      return Text::CannotReadWindow;
    case FailedAction::OpenWindow:
      break;
  }
  return Text::CannotOpenWindow;
}

/// The system's words come with a line break at their end.
std::wstring WithoutEnd(std::wstring text, const wchar_t* end) {
  text.resize(text.find_last_not_of(end) + 1);
  return text;
}

void Show(const std::wstring& text) {
  platform::ShowMessage(text, platform::BoxIcon::Exclamation, platform::BoxButtons::Ok);
}

}  // namespace

std::wstring ErrorText(const RuntimeError& error, const Messages& texts) {
  std::wstring sentence = texts[TextOf(error.Action())];
  if (sentence.find(L"%1") == sentence.npos &&
      sentence.find(L"%2") == sentence.npos) {  // without a language file the facts are shown all the same
    sentence += error.Object().empty() ? L": %2 (%3)" : L" \"%1\": %2 (%3)";
  }
  const std::size_t systemsWords = sentence.find(L"%2");
  if (error.SystemText().empty() && error.SystemCode() == 0 && systemsWords != sentence.npos) {
    sentence = WithoutEnd(sentence.substr(0, systemsWords), L" :,(") + L'.';  // all that is known is what failed
  }
  return WithPlaceholders(sentence, error.Object(), WithoutEnd(error.SystemText(), L" \r\n"),
                          std::to_wstring(error.SystemCode()));
}

void ShowError(const std::exception& error, const Messages& texts) {
  const auto* known = dynamic_cast<const RuntimeError*>(&error);
  if (known != nullptr && known->EndedByUser()) {
    return;
  }
  if (known != nullptr) {
    Show(ErrorText(*known, texts));
  } else if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr) {
    Show(texts[Text::OutOfMemory]);  // as it stands in the table: there may be no memory for a copy
  } else {
    Show(texts[Text::UnexpectedError]);
  }
}

}  // namespace folivant
