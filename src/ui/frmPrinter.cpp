// The printer window: which printer, in which quality, from which tray, on which sides.
#include "ui/frmPrinter.h"

#include <string>

#include "platform/Printers.h"
#include "ui/PrinterControls.h"
#include "ui/frmBase.h"

namespace folivant {
namespace {

constexpr int kDuplexModes = 3;

class frmPrinter final : public frmBase {
 public:
  frmPrinter(const DialogContext& context, PrinterSettings& settings)
      : frmBase(dlgPrinter, context), settings_(settings) {}

 private:
  void Form_Load() override;
  void cmdOK_Click();

  PrinterSettings& settings_;
};

void frmPrinter::Form_Load() {
  SetTexts(kPrinterControls);
  for (const std::wstring& printer : platform::PrinterNames()) {
    AddItem(cmbPrinter, printer);
  }
  Fill(kPrinterControls, settings_);
  for (int mode = 0; mode < kDuplexModes; ++mode) {
    SetPicture(picDuplex + mode, picSimplex + mode);
    OnClick(picDuplex + mode, [this, mode] { ChooseButton(kPrinterControls, optDuplex + mode); });
  }
  OnClick(cmdOK, [this] { cmdOK_Click(); });
  OnClick(cmdCancel, [this] { Close(); });
}

void frmPrinter::cmdOK_Click() {
  Read(kPrinterControls, settings_);
  Close(cmdOK);
}

}  // namespace

bool ShowPrinterDialog(platform::Dialog& owner, const DialogContext& context, PrinterSettings& settings) {
  return frmPrinter(context, settings).ShowModal(owner.Window()) == cmdOK;
}

}  // namespace folivant
