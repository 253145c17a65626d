// Values that no table can hold are looked after here: fonts, the printer with its own dialog, and margins, which must
// leave room on the sheet of the chosen printer before anything is stored.
#include "ui/frmOptions.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "platform/MessageBox.h"
#include "platform/Printers.h"
#include "platform/RuntimeError.h"
#include "platform/win32/Shell.h"
#include "ui/Margins.h"
#include "ui/OptionsControls.h"
#include "ui/PrinterControls.h"
#include "ui/ValueText.h"
#include "ui/frmLanguageList.h"
#include "ui/frmPages.h"
#include "ui/frmPrinter.h"

namespace folivant {
namespace {

constexpr PageDesign kPages[] = {
    {dlgPageGeneral, TextId::PageGeneral},   {dlgPagePrinter, TextId::PagePrinter},
    {dlgPageFont, TextId::PageFont},         {dlgPageHeaderFooter, TextId::PageHeaderFooter},
    {dlgPageLanguage, TextId::PageLanguage}, {dlgPageListing, TextId::PageListing},
};

struct Legend {
  const wchar_t* Code;  // the blanks line the texts up
  TextId Meaning;
};
constexpr Legend kLegend[] = {
    {L"%p  ", TextId::LegendPath},   {L"%l   ", TextId::LegendLabel}, {L"%f   ", TextId::LegendNamePattern},
    {L"%g  ", TextId::LegendFilter}, {L"%d  ", TextId::LegendDate},   {L"%t   ", TextId::LegendTime},
    {L"%n  ", TextId::LegendPage},
};

std::wstring FontText(const std::wstring& name, int points) {
  return name + L", " + std::to_wstring(points);
}

class frmOptions final : public frmPages {
 public:
  frmOptions(const DialogContext& context, GeneralSettings& general, PrinterSettings& printer,
             const OptionsCaller& caller)
      : frmPages(dlgOptions, context),
        generalResult_(general),
        printerResult_(printer),
        caller_(caller),
        general_(general),
        printer_(printer) {}

 private:
  void Form_Load() override;
  void Form_QueryClose() override { CloseKeepingTab(IDCANCEL); }
  void Form_DpiChanged() override {
    languages_.ShowFlags();
    PlacePages();
  }

  void FillDateFormats();
  void SetHandlers();
  void SetUnitLabels();
  void ShowFonts();

  void cmdBrowse_Click();
  void cmdPrinter_Click();
  void cmdFont_Click();
  void cmdFontHF_Click();
  void cmdOK_Click();

  bool CheckMargins(const Margins& minimum);
  bool CheckRoom(std::unique_ptr<platform::PageSurface> surface, const GeneralSettings& general);
  Margins EnteredMargins() const;
  void CloseKeepingTab(int result);

  GeneralSettings& generalResult_;
  PrinterSettings& printerResult_;
  const OptionsCaller& caller_;
  GeneralSettings general_;  ///< as far as it has been edited; the controls hold the rest
  PrinterSettings printer_;
  LanguageList languages_{*this, cmbLang};
};

void frmOptions::Form_Load() {
  MakePages(kPages);
  SetTexts(kOptionsControls);
  SetTexts(kCopiesControls);
  for (int i = 0; const Legend& row : kLegend) {
    SetText(lblLegend + i++, row.Code + Texts()[row.Meaning]);
  }
  FillDateFormats();
  languages_.ShowFlags();
  languages_.Fill(general_.Language);
  Fill(kOptionsControls, general_);
  Fill(kCopiesControls, printer_);
  SetText(lblPrinter, ShownPrinterName(printer_, Texts()));
  SetPicture(picPort, picPortrait);
  SetPicture(picLand, picLandscape);
  SetUnitLabels();
  ShowFonts();
  SetHandlers();
  PlacePages();
  ShowPage(std::clamp(caller_.LoadLastTab(), 1, static_cast<int>(std::size(kPages))) - 1);
}

void frmOptions::FillDateFormats() {
  for (std::int32_t i = 0; !DatePatternOf(i).empty(); ++i) {
    AddItem(cmbDate, std::wstring(DatePatternOf(i)));
  }
}

void frmOptions::SetHandlers() {
  OnClick(optInches, [this] { SetUnitLabels(); });
  OnClick(optMilimeter, [this] { SetUnitLabels(); });
  OnClick(picPort, [this] { ChooseButton(kOptionsControls, optPort); });
  OnClick(picLand, [this] { ChooseButton(kOptionsControls, optLand); });
  OnClick(chkFontHF, [this] { ShowFonts(); });
  OnClick(cmdBrowse, [this] { cmdBrowse_Click(); });
  OnClick(cmdPrinter, [this] { cmdPrinter_Click(); });
  OnClick(cmdFont, [this] { cmdFont_Click(); });
  OnClick(cmdFontHF, [this] { cmdFontHF_Click(); });
  OnClick(cmdOK, [this] { cmdOK_Click(); });
}

/// The numbers in the boxes stay as they are, on purpose: after a change of the unit the user enters margins anew.
void frmOptions::SetUnitLabels() {
  general_.Inches = Checked(optInches);
  for (int i = 0; i < 4; ++i) {
    SetText(lblUnit + i, Texts()[general_.Inches ? TextId::UnitInches : TextId::UnitMillimeter]);
  }
}

void frmOptions::ShowFonts() {
  SetText(lblFont, FontText(general_.FontName, general_.FontSize));
  SetText(lblFontHF, FontText(general_.FontNameHF, general_.FontSizeHF));
  for (const int control : {lblFontHF, cmdFontHF}) {
    Enable(control, !Checked(chkFontHF));
  }
}

void frmOptions::cmdBrowse_Click() {
  platform::FileDialog dialog;
  dialog.Types = Texts()[TextId::ProgramFiles] + L" (*.exe)|*.exe|" + Texts()[TextId::AllFiles] + L"|*.*";
  if (platform::AskForOpenName(Window(), dialog)) {
    SetText(txtViewer, dialog.FileName);
  }
}

void frmOptions::cmdPrinter_Click() {
  if (platform::PrinterNames().empty()) {
    platform::ShowMessage(Texts()[TextId::NoPrinter], platform::BoxIcon::Exclamation, platform::BoxButtons::Ok);
  } else if (ShowPrinterDialog(*this, Context(), printer_)) {
    SetText(lblPrinter, ShownPrinterName(printer_, Texts()));
  }
}

void frmOptions::cmdFont_Click() {
  platform::FontChoice font{general_.FontName, general_.FontSize};
  if (platform::AskForFont(Window(), font)) {
    general_.FontName = font.Name;
    general_.FontSize = static_cast<std::int16_t>(font.Points);
    ShowFonts();
  }
}

void frmOptions::cmdFontHF_Click() {
  platform::FontChoice font{general_.FontNameHF, general_.FontSizeHF};
  if (platform::AskForFont(Window(), font)) {
    general_.FontNameHF = font.Name;
    general_.FontSizeHF = font.Points;
    ShowFonts();
  }
}

Margins frmOptions::EnteredMargins() const {
  return {.Left = SingleOf(*this, txtLeft),
          .Top = SingleOf(*this, txtTop),
          .Right = SingleOf(*this, txtRight),
          .Bottom = SingleOf(*this, txtBottom)};
}

/// `minimum` is what the printer can reach. False when the dialog has to stay open.
bool frmOptions::CheckMargins(const Margins& minimum) {
  const Margins entered = EnteredMargins();
  if (MarginsSuffice(entered, minimum)) {
    return true;
  }
  const auto answer = platform::ShowMessage(Texts()[TextId::MarginsTooSmall] + L"\r\n" + Texts()[TextId::RaiseMargins],
                                            platform::BoxIcon::Question, platform::BoxButtons::YesNoCancel);
  if (answer == platform::BoxAnswer::Yes) {
    const Margins raised = RaisedMargins(entered, minimum, Checked(optInches));
    SetText(txtLeft, SingleText(static_cast<float>(raised.Left)));
    SetText(txtTop, SingleText(static_cast<float>(raised.Top)));
    SetText(txtRight, SingleText(static_cast<float>(raised.Right)));
    SetText(txtBottom, SingleText(static_cast<float>(raised.Bottom)));
  }
  return answer != platform::BoxAnswer::Cancel;
}

/// Whether a run with these settings would find room on its pages; it would refuse with the same words. False when the
/// dialog has to stay open, at the field that is to blame.
bool frmOptions::CheckRoom(std::unique_ptr<platform::PageSurface> surface, const GeneralSettings& general) {
  try {
    caller_.CheckRoom(std::move(surface), general);
  } catch (const RuntimeError& problem) {
    if (problem.Action() == FailedAction::Print) {  // a printer that cannot be asked keeps nobody here
      return true;
    }
    ShowProblem(problem);
    const int field = problem.Action() == FailedAction::UseMargins ? txtLeft : cmdFont;
    ShowField(field);
    SetFocusTo(field);
    return false;
  }
  return true;
}

void frmOptions::cmdOK_Click() {
  std::unique_ptr<platform::PageSurface> surface = SurfaceOf(printer_, Checked(optPort));
  if (!CheckMargins(surface ? MinimumMargins(surface->Area(), Checked(optInches)) : Margins{})) {
    return;
  }
  GeneralSettings general = general_;
  PrinterSettings printer = printer_;
  Read(kOptionsControls, general);
  Read(kCopiesControls, printer);
  if (const auto language = languages_.SelectedFile()) {
    general.Language = *language;
  }
  if (surface && !CheckRoom(std::move(surface), general)) {
    return;
  }
  generalResult_ = general;
  printerResult_ = printer;
  caller_.Save();
  CloseKeepingTab(IDOK);
}

/// However the dialog is closed, the page that was shown comes back next time. A store that refuses keeps nobody here.
void frmOptions::CloseKeepingTab(int result) {
  try {
    caller_.SaveLastTab(ShownPage() + 1);
  } catch (const std::exception& problem) {
    ShowProblem(problem);
  }
  Close(result);
}

}  // namespace

void ShowOptionsDialog(platform::Dialog& owner, const DialogContext& context, GeneralSettings& general,
                       PrinterSettings& printer, const OptionsCaller& caller) {
  frmOptions(context, general, printer, caller).ShowModal(owner.Window());
}

}  // namespace folivant
