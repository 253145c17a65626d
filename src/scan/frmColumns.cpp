#include "scan/frmColumns.h"

#include "scan/ColumnsControls.h"
#include "ui/frmBase.h"

namespace folivant {
namespace {

class frmColumns final : public frmBase {
 public:
  frmColumns(const DialogContext& context, ListingFormat& format, const SaveRecord& save)
      : frmBase(dlgColumns, context), format_(format), save_(save) {}

 private:
  void Form_Load() override {
    SetTexts(kColumnsControls);
    Fill(kColumnsControls, format_);
    OnClick(cmdOK, [this] { cmdOK_Click(); });
  }

  void cmdOK_Click() {
    ListingFormat format = format_;
    Read(kColumnsControls, format);
    format_ = format;
    save_();
    Close(IDOK);
  }

  ListingFormat& format_;
  const SaveRecord& save_;
};

}  // namespace

void ShowColumnsDialog(platform::Dialog& owner, const DialogContext& context, ListingFormat& format,
                       const SaveRecord& save) {
  frmColumns(context, format, save).ShowModal(owner.Window());
}

}  // namespace folivant
