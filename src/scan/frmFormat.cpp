#include "scan/frmFormat.h"

#include "scan/FormatChoice.h"
#include "scan/frmColumns.h"
#include "ui/frmBase.h"

namespace folivant {
namespace {

constexpr Binding<NoRecord> kCaptions[] = {
    {fraStyle, Text::Style},
    {optNoSub, Text::NoSubdirectories},
    {optSub, Text::IncludeSubdirectories},
    {optSubTree, Text::TreeStyle},
    {optFull, Text::FullPathList},
    {optTree, Text::DirectoryView},
    {optFind, Text::FindWindowStyle},
    {Command1, Text::Columns},
    {cmdOK, Text::Ok},
    {cmdCancel, Text::Cancel},
    {cmdHelp, Text::Help},
};

/// By the style's code.
constexpr int kStyleButtons[] = {optNoSub, optSub, optSubTree, optTree, optFull, optFind};

class frmFormat final : public frmBase {
 public:
  frmFormat(const DialogContext& context, ListingFormat& format, const FormatSaves& saves)
      : frmBase(dlgFormat, context), format_(format), saves_(saves) {}

 private:
  void Form_Load() override {
    SetWindowTextW(Window(), Texts()[Text::FormatTitle].c_str());
    SetCaptions<NoRecord>(kCaptions);
    ShowStyle(format_.ListingStyle);
    for (const int button : kStyleButtons) {
      OnClick(button, [this] { ShowStyle(ChosenStyle()); });
      OnDoubleClick(button, [this] { cmdOK_Click(); });
    }
    OnClick(Command1, [this] { ShowColumnsDialog(*this, Context(), format_, saves_.Columns); });
    OnClick(cmdOK, [this] { cmdOK_Click(); });
    OnClick(cmdHelp, [this] { ShowHelp(); });
  }

  ListingStyle ChosenStyle() const {
    return StyleOf({.NoSub = Checked(optNoSub),
                    .Sub = Checked(optSub),
                    .SubTree = Checked(optSubTree),
                    .Tree = Checked(optTree),
                    .Find = Checked(optFind)});
  }

  /// A style without a picture sets nothing.
  void ShowStyle(ListingStyle style) {
    if (const auto picture = PreviewPictureOf(style)) {
      Choose({optNoSub, optSub, optSubTree, optTree, optFull, optFind}, kStyleButtons[*picture - picStyles]);
      SetPicture(picPreview, *picture);
    }
  }

  void cmdOK_Click() {
    format_.ListingStyle = ChosenStyle();
    saves_.Style();
    Close(IDOK);
  }

  ListingFormat& format_;
  const FormatSaves& saves_;
};

}  // namespace

void ShowFormatDialog(platform::Dialog& owner, const DialogContext& context, ListingFormat& format,
                      const FormatSaves& saves) {
  frmFormat(context, format, saves).ShowModal(owner.Window());
}

}  // namespace folivant
