#include "ui/frmLanguageList.h"

#include <utility>

#include "platform/Files.h"
#include "res/Controls.h"
#include "ui/Language.h"

namespace folivant {
namespace {

constexpr int kFlagWidth = 20;  // pixels at 96 per inch

}  // namespace

void LanguageList::ShowFlags() {
  const int percent = dialog_.Scaled(100);
  const int strip = picFlags + (percent <= 100 ? 0 : percent <= 150 ? 1000 : 2000);
  const int width = kFlagWidth * (percent <= 100 ? 100 : percent <= 150 ? 150 : 200) / 100;
  platform::OwnedImageList flags(ImageList_LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(strip), width, 0,
                                                      CLR_NONE, IMAGE_BITMAP, LR_CREATEDIBSECTION));
  dialog_.Send(list_, CBEM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(flags.Get()));
  flags_ = std::move(flags);
}

void LanguageList::Fill(const std::wstring& current) {
  for (LanguageEntry& language : ListLanguages(platform::ProgramFolder())) {
    COMBOBOXEXITEMW item{};
    item.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_SELECTEDIMAGE | CBEIF_LPARAM;
    item.iItem = -1;
    item.pszText = language.Name.data();
    item.iImage = language.Flag;
    item.iSelectedImage = language.Flag;
    item.lParam = static_cast<LPARAM>(files_.size());
    const LRESULT row = dialog_.Send(list_, CBEM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    if (lstrcmpiW(language.FileName.c_str(), current.c_str()) == 0) {
      dialog_.Send(list_, CB_SETCURSEL, static_cast<WPARAM>(row));
    }
    files_.push_back(std::move(language.FileName));
  }
}

std::optional<std::wstring> LanguageList::SelectedFile() const {
  const int row = dialog_.Selected(list_);
  if (row == platform::kNothingSelected) {
    return std::nullopt;
  }
  COMBOBOXEXITEMW item{};
  item.mask = CBEIF_LPARAM;
  item.iItem = row;
  dialog_.Send(list_, CBEM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  return files_[static_cast<std::size_t>(item.lParam)];
}

}  // namespace folivant
