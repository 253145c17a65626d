#include "app/win32/SaveDialog.h"

#include "output/OutputKinds.h"
#include "platform/Files.h"
#include "platform/win32/Shell.h"

namespace folivant {

std::optional<DestinationChooser::Choice> CDTextfile::AskForFile(const Choice& preset) {
  platform::FileDialog dialog;
  dialog.Types = SaveDialogTypes(texts_);
  dialog.FileName = preset.FileName;
  dialog.TypeIndex = SaveDialogIndexOf(preset.Kind);
  dialog.Folder = platform::CurrentDirectory();
  if (!platform::AskForSaveName(owner_, dialog)) {
    return std::nullopt;
  }
  return Choice{dialog.FileName, KindAtSaveDialogIndex(dialog.TypeIndex)};
}

}  // namespace folivant
