// Failures as sentences in the user's language.
#include "ui/ErrorText.h"

#include <new>

#include "platform/MessageBox.h"
#include "ui/Language.h"

namespace folivant {
namespace {

TextId TextOf(FailedAction action) {
  switch (action) {
    case FailedAction::CreateFile:
      return TextId::CannotCreateFile;
    case FailedAction::ReadFile:
      return TextId::CannotReadFile;
    case FailedAction::WriteFile:
      return TextId::CannotWriteFile;
    case FailedAction::WriteSetting:
      return TextId::CannotWriteSetting;
    case FailedAction::Print:
      return TextId::CannotPrint;
    case FailedAction::StartProgram:
      return TextId::CannotStartProgram;
    case FailedAction::UseMargins:
      return TextId::MarginsLeaveNoRoom;
    case FailedAction::UseFont:
      return TextId::FontDoesNotFit;
    case FailedAction::ListPaths:
      return TextId::NoPathInList;
    case FailedAction::ReadLargeFile:
      return TextId::FileTooLarge;
    case FailedAction::ReadWindow:
      return TextId::CannotReadWindow;
    case FailedAction::UseClipboard:
      return TextId::CannotUseClipboard;
    case FailedAction::OpenWindow:
      break;
  }
  return TextId::CannotOpenWindow;
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
    Show(texts[TextId::OutOfMemory]);  // as it stands in the table: there may be no memory for a copy
  } else {
    Show(texts[TextId::UnexpectedError]);
  }
}

}  // namespace folivant
