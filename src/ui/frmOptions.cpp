// The options: five pages over the general settings and the printer, checked as a whole on OK.
#include "ui/frmOptions.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/Files.h"
#include "platform/MessageBox.h"
#include "platform/Printers.h"
#include "platform/RuntimeError.h"
#include "platform/win32/Owned.h"
#include "platform/win32/Shell.h"
#include "ui/Language.h"
#include "ui/MarginCheck.h"
#include "ui/PageMargins.h"
#include "ui/PrinterChoice.h"
#include "ui/ValueText.h"
#include "ui/frmBase.h"
#include "ui/frmPrinter.h"

namespace folivant {
namespace {

using General = GeneralSettings;

constexpr Binding<General> kBindings[] = {
    {txtViewer, Text::Viewer, Edits<&General::TextViewer>},
    {cmdBrowse, Text::Browse},
    {fraPage, Text::TextPage},
    {txtWidth, Text::Width, EditsLeadingNumber<&General::TextWidth, kReadableTextWidths, kTextWidths>},
    {lblChars, Text::Characters},
    {txtHeight, Text::Height, EditsLeadingNumber<&General::TextHeight>},
    {lblLines, Text::Lines},
    {cmbDate, Text::DateFormat},
    {chkExit, Text::ExitAfterPrinting, Edits<&General::ExitWhenDone>},
    {chkFF, Text::FilesBeforeDirs, Edits<&General::FilesFirst>},
    {chkEmptyDirs, Text::PrintEmptyDirs, Edits<&General::EmptyDirs>},
    {fraInches, Text::MarginsUnit},
    {optInches, Text::Inches},
    {optMilimeter, Text::Millimeter},
    {fraMargins, Text::Margins},
    {txtLeft, Text::MarginLeft, Edits<&General::MarginLeft>},
    {txtTop, Text::MarginTop, Edits<&General::MarginTop>},
    {txtRight, Text::MarginRight, Edits<&General::MarginRight>},
    {txtBottom, Text::MarginBottom, Edits<&General::MarginBottom>},
    {fraOrientation, Text::Orientation},
    {optPort, Text::Portrait},
    {optLand, Text::Landscape},
    {txtCopies, Text::Copies},
    {cmdPrinter, Text::PrinterButton},
    {cmdFont, Text::ChooseFont},
    {lblFont, Text::ListingsFont},
    {chkFontHF, Text::HeaderFooter80, Edits<&General::Font80HF>},
    {lblFontHF, Text::HeaderFooterFont},
    {cmdFontHF, Text::ChooseHeaderFooterFont},
    {txtHeader, Text::HeaderLabel, Edits<&General::Header>},
    {txtFooter, Text::FooterLabel, Edits<&General::Footer>},
    {fraLegend, Text::Placeholders},
    {cmbLang, Text::LanguageLabel},
    {lblRestart, Text::RestartNote},
    {cmdOK, Text::Ok},
    {cmdCancel, Text::Cancel},
    {cmdHelp, Text::Help},
};

struct PageDesign {
  int Template;
  Text Caption;
};
constexpr PageDesign kPages[] = {
    {dlgPageGeneral, Text::PageGeneral},           {dlgPagePrinter, Text::PagePrinter},   {dlgPageFont, Text::PageFont},
    {dlgPageHeaderFooter, Text::PageHeaderFooter}, {dlgPageLanguage, Text::PageLanguage},
};

struct Legend {
  const wchar_t* Code;  // the blanks line the texts up
  Text Meaning;
};
constexpr Legend kLegend[] = {
    {L"%p  ", Text::LegendPath},   {L"%l   ", Text::LegendLabel}, {L"%f   ", Text::LegendNamePattern},
    {L"%g  ", Text::LegendFilter}, {L"%d  ", Text::LegendDate},   {L"%t   ", Text::LegendTime},
    {L"%n  ", Text::LegendPage},
};

struct ImageListKind {
  using Raw = HIMAGELIST;
  static Raw Empty() { return nullptr; }
  static void Close(Raw list) { ImageList_Destroy(list); }
};
using OwnedImageList = platform::Owned<ImageListKind>;

constexpr int kFlagWidth = 20;  // dots at 96 per inch
constexpr int kPageBorder = 4;  // between the tab strip's frame and a page, likewise

std::wstring FontText(const std::wstring& name, int points) {
  return name + L", " + std::to_wstring(points);
}

class frmOptions final : public frmBase {
 public:
  frmOptions(const DialogContext& context, GeneralSettings& general, PrinterSettings& printer,
             const OptionsCaller& caller)
      : frmBase(dlgOptions, context),
        generalResult_(general),
        printerResult_(printer),
        caller_(caller),
        general_(general),
        printer_(printer) {}

 private:
  void Form_Load() override;
  void Form_QueryClose() override { CloseKeepingTab(IDCANCEL); }
  void Form_DpiChanged() override {
    ShowFlags();
    PlacePages();
  }
  bool Form_KeyDown(WPARAM key) override;
  void ShowField(int control) override;

  void MakePages();
  void PlacePages();
  void ShowPage(int index);
  int ShownPage() const { return static_cast<int>(Send(TabStrip, TCM_GETCURSEL)); }
  void FillDateFormats();
  void ShowFlags();
  void FillLanguages();
  void SetHandlers();
  void SetUnitLabels();
  void ShowFonts();

  void cmdBrowse_Click();
  void cmdPrinter_Click();
  void cmdFont_Click();
  void cmdFontHF_Click();
  void cmdOK_Click();

  bool CheckMargins(const PageMargins& device);
  bool CheckRoom(std::unique_ptr<platform::PageSurface> surface, const GeneralSettings& general);
  Margins EnteredMargins() const;
  void CloseKeepingTab(int result);

  GeneralSettings& generalResult_;
  PrinterSettings& printerResult_;
  const OptionsCaller& caller_;
  GeneralSettings general_;  ///< as far as it has been edited; the controls hold the rest
  PrinterSettings printer_;
  std::vector<HWND> pages_;
  std::vector<std::wstring> languageFiles_;  ///< by the position that a language's key tells
  OwnedImageList flags_;
};

void frmOptions::Form_Load() {
  SetWindowTextW(Window(), Texts()[Text::OptionsTitle].c_str());
  MakePages();
  SetCaptions<General>(kBindings);
  for (int i = 0; const Legend& row : kLegend) {
    SetText(lblLegend + i++, row.Code + Texts()[row.Meaning]);
  }
  FillDateFormats();
  ShowFlags();
  FillLanguages();
  Fill<General>(kBindings, general_);
  Choose({optInches, optMilimeter}, general_.Inches ? optInches : optMilimeter);
  Choose({optPort, optLand}, general_.Portrait ? optPort : optLand);
  SetText(txtCopies, WholeText(printer_.PrinterCopies));
  SetText(lblPrinter, ShownPrinterName(printer_, Texts()));
  SetPicture(picPort, picPortrait);
  SetPicture(picLand, picLandscape);
  SetUnitLabels();
  ShowFonts();
  SetHandlers();
  PlacePages();
  ShowPage(std::clamp(caller_.LoadLastTab(), 1, static_cast<int>(std::size(kPages))) - 1);
}

void frmOptions::MakePages() {
  for (const PageDesign& page : kPages) {
    std::wstring caption = Texts()[page.Caption];
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    Send(TabStrip, TCM_INSERTITEMW, pages_.size(), reinterpret_cast<LPARAM>(&item));
    pages_.push_back(AddPage(page.Template));
  }
}

/// Gives all pages the size of the largest one, and the tab strip and the window what that takes.
void frmOptions::PlacePages() {
  RECT strip{};
  GetWindowRect(Item(TabStrip), &strip);
  MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&strip), 2);
  RECT page = strip;
  Send(TabStrip, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&page));
  InflateRect(&page, -Scaled(kPageBorder), -Scaled(kPageBorder));
  SIZE needed{page.right - page.left, page.bottom - page.top};
  for (const HWND each : pages_) {
    const SIZE size = FitPageToTexts(each);
    needed = {std::max(needed.cx, size.cx), std::max(needed.cy, size.cy)};
  }
  Grow(TabStrip, {needed.cx - (page.right - page.left), needed.cy - (page.bottom - page.top)});
  for (const HWND each : pages_) {
    SetWindowPos(each, HWND_TOP, page.left, page.top, needed.cx, needed.cy, SWP_NOACTIVATE);
  }
  FitToTexts();
}

void frmOptions::ShowPage(int index) {
  Send(TabStrip, TCM_SETCURSEL, static_cast<WPARAM>(index));
  for (int i = 0; const HWND page : pages_) {
    ShowWindow(page, i++ == index ? SW_SHOW : SW_HIDE);
  }
}

void frmOptions::ShowField(int control) {
  const auto page = std::find(pages_.begin(), pages_.end(), GetParent(Item(control)));
  if (page != pages_.end()) {
    ShowPage(static_cast<int>(page - pages_.begin()));
  }
}

/// The keys that turn pages in the system's own property sheets.
bool frmOptions::Form_KeyDown(WPARAM key) {
  const bool backwards = key == VK_PRIOR || (key == VK_TAB && GetKeyState(VK_SHIFT) < 0);
  if (GetKeyState(VK_CONTROL) >= 0 || (key != VK_TAB && key != VK_NEXT && key != VK_PRIOR)) {
    return false;
  }
  const int count = static_cast<int>(pages_.size());
  ShowPage((ShownPage() + (backwards ? count - 1 : 1)) % count);
  SetFocusTo(TabStrip);
  return true;
}

void frmOptions::FillDateFormats() {
  for (std::int32_t i = 0; !DatePatternOf(i).empty(); ++i) {
    AddItem(cmbDate, std::wstring(DatePatternOf(i)));
  }
  Send(cmbDate, CB_SETCURSEL, static_cast<WPARAM>(general_.DateFormat));
}

void frmOptions::ShowFlags() {
  const int percent = Scaled(100);
  const int strip = picFlags + (percent <= 100 ? 0 : percent <= 150 ? 1000 : 2000);
  const int width = kFlagWidth * (percent <= 100 ? 100 : percent <= 150 ? 150 : 200) / 100;
  OwnedImageList flags(ImageList_LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(strip), width, 0, CLR_NONE,
                                            IMAGE_BITMAP, LR_CREATEDIBSECTION));
  Send(cmbLang, CBEM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(flags.Get()));
  flags_ = std::move(flags);
}

void frmOptions::FillLanguages() {
  for (LanguageEntry& language : ListLanguages(platform::ProgramFolder())) {
    COMBOBOXEXITEMW item{};
    item.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_SELECTEDIMAGE | CBEIF_LPARAM;
    item.iItem = -1;
    item.pszText = language.Name.data();
    item.iImage = language.Flag;
    item.iSelectedImage = language.Flag;
    item.lParam = static_cast<LPARAM>(languageFiles_.size());
    const LRESULT row = Send(cmbLang, CBEM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    if (lstrcmpiW(language.FileName.c_str(), general_.Language.c_str()) == 0) {
      Send(cmbLang, CB_SETCURSEL, static_cast<WPARAM>(row));
    }
    languageFiles_.push_back(std::move(language.FileName));
  }
}

void frmOptions::SetHandlers() {
  On(TabStrip, static_cast<int>(TCN_SELCHANGE), [this] { ShowPage(ShownPage()); });
  OnClick(optInches, [this] { SetUnitLabels(); });
  OnClick(optMilimeter, [this] { SetUnitLabels(); });
  OnClick(picPort, [this] { Choose({optPort, optLand}, optPort); });
  OnClick(picLand, [this] { Choose({optPort, optLand}, optLand); });
  OnClick(chkFontHF, [this] { ShowFonts(); });
  OnClick(cmdBrowse, [this] { cmdBrowse_Click(); });
  OnClick(cmdPrinter, [this] { cmdPrinter_Click(); });
  OnClick(cmdFont, [this] { cmdFont_Click(); });
  OnClick(cmdFontHF, [this] { cmdFontHF_Click(); });
  OnClick(cmdOK, [this] { cmdOK_Click(); });
  OnClick(cmdHelp, [this] { ShowHelp(); });
}

/// The numbers in the boxes stay as they are, on purpose: after a change of the unit the user enters margins anew.
void frmOptions::SetUnitLabels() {
  general_.Inches = Checked(optInches);
  for (int i = 0; i < 4; ++i) {
    SetText(lblUnit + i, Texts()[general_.Inches ? Text::UnitInches : Text::UnitMillimeter]);
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
  dialog.Types = Texts()[Text::ProgramFiles] + L" (*.exe)|*.exe|" + Texts()[Text::AllFiles] + L"|*.*";
  if (platform::AskForOpenName(Window(), dialog)) {
    SetText(txtViewer, dialog.FileName);
  }
}

void frmOptions::cmdPrinter_Click() {
  if (platform::PrinterNames().empty()) {
    platform::ShowMessage(Texts()[Text::NoPrinter], platform::BoxIcon::Exclamation, platform::BoxButtons::Ok);
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
  return {
      .Left = SingleOf(txtLeft), .Top = SingleOf(txtTop), .Right = SingleOf(txtRight), .Bottom = SingleOf(txtBottom)};
}

/// `device` are the printer's minimum margins. False when the dialog has to stay open.
bool frmOptions::CheckMargins(const PageMargins& device) {
  const Margins minimum{.Left = static_cast<float>(device.Left),
                        .Top = static_cast<float>(device.Top),
                        .Right = static_cast<float>(device.Right),
                        .Bottom = static_cast<float>(device.Bottom)};
  const Margins entered = EnteredMargins();
  if (MarginsSuffice(entered, minimum)) {
    return true;
  }
  const auto answer = platform::ShowMessage(Texts()[Text::MarginsTooSmall] + L"\r\n" + Texts()[Text::RaiseMargins],
                                            platform::BoxIcon::Question, platform::BoxButtons::YesNoCancel);
  if (answer == platform::BoxAnswer::Yes) {
    const Margins raised = RaisedMargins(entered, minimum, Checked(optInches));
    SetText(txtLeft, SingleText(raised.Left));
    SetText(txtTop, SingleText(raised.Top));
    SetText(txtRight, SingleText(raised.Right));
    SetText(txtBottom, SingleText(raised.Bottom));
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
  if (!CheckMargins(surface ? MinimumMargins(surface->Area(), Checked(optInches)) : PageMargins{})) {
    return;
  }
  GeneralSettings general = general_;
  PrinterSettings printer = printer_;
  Read<General>(kBindings, general);
  general.DateFormat = static_cast<std::int32_t>(Send(cmbDate, CB_GETCURSEL));
  general.Inches = Checked(optInches);
  general.Portrait = Checked(optPort);
  printer.PrinterCopies = WholeNumberOf(txtCopies, kRangeOf<std::int16_t>);
  const LRESULT row = Send(cmbLang, CB_GETCURSEL);
  if (row != CB_ERR) {
    COMBOBOXEXITEMW item{};
    item.mask = CBEIF_LPARAM;
    item.iItem = row;
    Send(cmbLang, CBEM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    general.Language = languageFiles_[static_cast<std::size_t>(item.lParam)];
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
