#include "scan/frmFormat.h"

#include "scan/FormatControls.h"
#include "scan/frmColumns.h"
#include "ui/frmBase.h"

namespace folivant {
namespace {

class frmFormat final : public frmBase {
 public:
  frmFormat(const DialogContext& context, ListingFormat& format, const FormatSaves& saves)
      : frmBase(dlgFormat, context), format_(format), saves_(saves) {}

 private:
  void Form_Load() override {
    SetTexts(kFormatControls);
    SetTexts(kStyleControls);
    ShowStyle(format_);
    for (const Binding<ListingFormat>& style : kStyleControls) {
      OnClick(style.Control, [this] { ShowStyle(Chosen()); });
      OnDoubleClick(style.Control, [this] { cmdOK_Click(); });
    }
    OnClick(Command1, [this] { ShowColumnsDialog(*this, Context(), format_, saves_.Columns); });
    OnClick(cmdOK, [this] { cmdOK_Click(); });
  }

  /// The format with the style whose button is set.
  ListingFormat Chosen() const {
    ListingFormat format = format_;
    Read(kStyleControls, format);
    return format;
  }

  /// A style without a picture has no button either, and leaves the picture.
  void ShowStyle(const ListingFormat& format) {
    Fill(kStyleControls, format);
    if (const auto picture = PreviewPictureOf(format.ListingStyle)) {
      SetPicture(picPreview, *picture);
    }
  }

  void cmdOK_Click() {
    Read(kStyleControls, format_);
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
