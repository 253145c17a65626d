#include "app/win32/FilterFileDialog.h"

#include "app/mdlVars.h"
#include "platform/win32/Shell.h"

namespace folivant {
namespace {

platform::FileDialog FilterFileDialog() {
  platform::FileDialog dialog;
  dialog.Types = mdlVars::Texts[TextId::FilterFiles] + L" (*.fvf)|*.fvf|" + mdlVars::Texts[TextId::AllFiles] + L"|*.*";
  dialog.FileName = mdlVars::FilterFile;
  return dialog;
}

}  // namespace

std::optional<std::wstring> AskForFilterFileToLoad(HWND owner) {
  platform::FileDialog dialog = FilterFileDialog();
  return platform::AskForOpenName(owner, dialog) ? std::optional(dialog.FileName) : std::nullopt;
}

std::optional<std::wstring> AskForFilterFileToSave(HWND owner) {
  platform::FileDialog dialog = FilterFileDialog();
  dialog.DefaultExtension = L"fvf";
  dialog.AskBeforeOverwriting = true;
  return platform::AskForSaveName(owner, dialog) ? std::optional(dialog.FileName) : std::nullopt;
}

}  // namespace folivant
