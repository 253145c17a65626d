// The printer window: which printer, in which quality, from which tray, on which sides.
#include "ui/frmPrinter.h"

#include <string>
#include <vector>

#include "platform/Printers.h"
#include "ui/PrinterChoice.h"
#include "ui/frmBase.h"

namespace folivant {
namespace {

constexpr Binding<NoRecord> kCaptions[] = {
    {cmbPrinter, Text::PrinterLabel},
    {cmbQuality, Text::Quality},
    {cmbPaperBin, Text::PaperBin},
    {fraDuplex, Text::Duplex},
    {optDuplex, Text::Simplex},
    {optDuplex + 1, Text::DuplexVertical},
    {optDuplex + 2, Text::DuplexHorizontal},
    {cmdOK, Text::Ok},
    {cmdCancel, Text::Cancel},
};

struct ListEntry {
  int List;
  Text Item;
};
constexpr ListEntry kListEntries[] = {
    {cmbQuality, Text::QualityDraft}, {cmbQuality, Text::QualityLow}, {cmbQuality, Text::QualityMedium},
    {cmbQuality, Text::QualityHigh},  {cmbPaperBin, Text::BinUpper},  {cmbPaperBin, Text::BinLower},
    {cmbPaperBin, Text::BinMiddle},   {cmbPaperBin, Text::BinManual},
};

constexpr int kDuplexModes = 3;

class frmPrinter final : public frmBase {
 public:
  frmPrinter(const DialogContext& context, PrinterSettings& settings)
      : frmBase(dlgPrinter, context), settings_(settings), printers_(platform::PrinterNames()) {}

 private:
  void Form_Load() override;
  void cmdOK_Click();
  void Select(int list, int position) { Send(list, CB_SETCURSEL, static_cast<WPARAM>(position)); }
  int Selected(int list) const { return static_cast<int>(Send(list, CB_GETCURSEL)); }
  void SetDuplex(int mode);
  int GetDuplex() const;

  PrinterSettings& settings_;
  const std::vector<std::wstring> printers_;
};

void frmPrinter::Form_Load() {
  SetWindowTextW(Window(), Texts()[Text::PrinterTitle].c_str());
  SetCaptions<NoRecord>(kCaptions);
  for (const std::wstring& printer : printers_) {
    AddItem(cmbPrinter, printer);
  }
  for (const ListEntry& entry : kListEntries) {
    AddItem(entry.List, Texts()[entry.Item]);
  }
  const PrinterChoice choice = ChoiceFor(settings_, printers_);
  Select(cmbPrinter, choice.Printer);
  Select(cmbQuality, choice.Quality);
  Select(cmbPaperBin, choice.PaperBin);
  SetDuplex(choice.Duplex);
  for (int mode = 0; mode < kDuplexModes; ++mode) {
    SetPicture(picDuplex + mode, picSimplex + mode);
    OnClick(picDuplex + mode, [this, mode] { SetDuplex(mode); });
  }
  OnClick(cmdOK, [this] { cmdOK_Click(); });
  OnClick(cmdCancel, [this] { Close(); });
}

void frmPrinter::cmdOK_Click() {
  ApplyChoice({Selected(cmbPrinter), Selected(cmbQuality), Selected(cmbPaperBin), GetDuplex()}, printers_, settings_);
  Close(cmdOK);
}

void frmPrinter::SetDuplex(int mode) {
  Choose({optDuplex, optDuplex + 1, optDuplex + 2}, optDuplex + mode);
}

int frmPrinter::GetDuplex() const {
  return Checked(optDuplex) ? 0 : Checked(optDuplex + 1) ? 1 : 2;
}

}  // namespace

bool ShowPrinterDialog(platform::Dialog& owner, const DialogContext& context, PrinterSettings& settings) {
  return frmPrinter(context, settings).ShowModal(owner.Window()) == cmdOK;
}

}  // namespace folivant
