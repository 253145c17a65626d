// Beside the table of its controls: each part of the filter follows its check box, and bare controls get texts for
// screen readers.
#include "scan/frmFilter.h"

#include "scan/FilterControls.h"
#include "ui/frmBase.h"

namespace folivant {
namespace {

constexpr int kAttributes = 5;

class frmFilter final : public frmBase {
 public:
  frmFilter(const DialogContext& context, FilterSettings& filter, const SaveRecord& save)
      : frmBase(dlgFilter, context), filter_(filter), save_(save) {}

 private:
  void Form_Load() override {
    SetTexts(kFilterControls);
    NameFields();
    NameAttributeButtons();
    Fill(kFilterControls, filter_);
    for (int i = 0; const AttributeChoice choice : filter_.Attributes) {
      Fill(kAttributeControls, choice, i++);
    }
    EnableParts();

    for (const int part : {chkName, chkSize, chkDate, chkAttr}) {
      OnClick(part, [this] { EnableParts(); });
    }
    OnClick(cmdOK, [this] { cmdOK_Click(); });
  }

  /// Each part follows its check box.
  void EnableParts() {
    Enable(txtName, Checked(chkName));
    for (const int control : {cmbSize, txtSize, lblKb}) {
      Enable(control, Checked(chkSize));
    }
    for (const int control : {LABEL_OF(DTPickMin), DTPickMin, LABEL_OF(DTPickMax), DTPickMax}) {
      Enable(control, Checked(chkDate));
    }
    for (const int control : {lblYes, lblAny, lblNo}) {
      Enable(control, Checked(chkAttr));
    }
    for (int i = 0; i < kAttributes; ++i) {
      for (const int control : {lblAttr, chkY, chkX, chkN}) {
        Enable(control + i, Checked(chkAttr));
      }
    }
  }

  /// Fields that a check box introduces have hidden labels for screen readers.
  void NameFields() {
    for (const auto& [field, box] : {std::pair(txtName, chkName), {cmbSize, chkSize}, {txtSize, chkSize}}) {
      SetText(LABEL_OF(field), FieldNameOf(*this, box));
    }
  }

  /// The buttons stand bare in their columns; their texts are for screen readers.
  void NameAttributeButtons() {
    for (int i = 0; i < kAttributes; ++i) {
      for (const auto& [button, head] : {std::pair(chkY, lblYes), std::pair(chkX, lblAny), std::pair(chkN, lblNo)}) {
        SetText(button + i, TextOf(lblAttr + i) + L": " + TextOf(head));
      }
    }
  }

  void cmdOK_Click() {
    FilterSettings filter = filter_;
    Read(kFilterControls, filter);
    for (int i = 0; AttributeChoice & choice : filter.Attributes) {
      Read(kAttributeControls, choice, i++);
    }
    filter_ = filter;
    save_();
    Close(IDOK);
  }

  /// A size that does not convert is asked for again, also when its part was switched off.
  void ShowField(int) override {
    SetChecked(chkSize, true);
    EnableParts();
  }

  FilterSettings& filter_;
  const SaveRecord& save_;
};

}  // namespace

void ShowFilterDialog(platform::Dialog& owner, const DialogContext& context, FilterSettings& filter,
                      const SaveRecord& save) {
  frmFilter(context, filter, save).ShowModal(owner.Window());
}

}  // namespace folivant
