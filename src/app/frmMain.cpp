// The main window: what is listed, where to, and the way into every other window.
#include <memory>
#include <optional>
#include <string>

#include "app/ChosenPrinter.h"
#include "app/MainWindow.h"
#include "app/Settings.h"
#include "app/StartUp.h"
#include "app/mdlVars.h"
#include "app/win32/PlaceOnScreen.h"
#include "app/win32/RunGuard.h"
#include "app/win32/SaveDialog.h"
#include "output/Columns.h"
#include "output/EntryFormatting.h"
#include "output/PageLayout.h"
#include "output/mdlPrint.h"
#include "platform/win32/Shell.h"
#include "platform/win32/WindowSystem.h"
#include "scan/NameRules.h"
#include "scan/frmFilter.h"
#include "scan/frmFormat.h"
#include "scan/mdlScan.h"
#include "shell/mdlFind.h"
#include "ui/frmBase.h"
#include "ui/frmOptions.h"

namespace folivant {
namespace {

constexpr Binding<NoRecord> kCaptions[] = {
    {Label1, Text::Directory},       {Label3, Text::Filter},
    {Label2, Text::OutputFormat},    {fraTo, Text::OutputTo},
    {cmdBrowse, Text::Browse},       {cmdFilter, Text::FilterButton},
    {cmdFormat, Text::FormatButton}, {optPrinter, Text::ToPrinter},
    {optFile, Text::ToFile},         {optScreen, Text::ToScreen},
    {cmdLoad, Text::LoadFilters},    {cmdSave, Text::SaveFilters},
    {cmdOptions, Text::Options},     {cmdOK, Text::Ok},
    {cmdCancel, Text::Close},        {cmdHelp, Text::Help},
};

class frmMain final : public frmBase, private TextMeasure {
 public:
  frmMain() : frmBase(dlgMain, mdlVars::MakeDialogContext()), rows_(Context()) {}

  int Run() {
    Create(nullptr);
    RestorePlace(Window());
    ShowWindow(Window(), SW_SHOWDEFAULT);
    platform::RunUntilClosed(*this);
    return kExitDone;
  }

 private:
  void Form_Load() override;
  void Form_QueryClose() override;
  bool Form_Message(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

  void MakeFilterLabel();
  void MakeFormatLabel();
  void MakePathLabel();
  void SetOutputTo(OutputTarget target);
  OutputTarget GetOutputTo() const;
  void ShowEverything();

  void cmdBrowse_Click();
  void cmdFilter_Click();
  void cmdFormat_Click();
  void cmdOptions_Click();
  void cmdLoad_Click();
  void cmdSave_Click();
  void cmdOK_Click();
  void lblPath_Drop(const std::wstring& path);

  bool ChooseDestination();
  bool RunOnce();
  void FinishRun();
  void SaveEverything();
  void Unload();
  double WidthOf(std::wstring_view text) const override { return WidthOfText(std::wstring(text)); }

  OutputDriver driver_;
  FindCapture rows_;
  DestinationChooser::Choice file_;  ///< what the save dialog shows next
  std::unique_ptr<platform::DropTarget> drop_;
  bool running_ = false;
};

void frmMain::Form_Load() {
  SetCaptions<NoRecord>(kCaptions);
  FitToTexts();
  ShowEverything();
  file_ = {mdlVars::OutputFile, mdlVars::OutputKind};

  OnClick(cmdBrowse, [this] { cmdBrowse_Click(); });
  OnClick(cmdFilter, [this] { cmdFilter_Click(); });
  OnClick(cmdFormat, [this] { cmdFormat_Click(); });
  OnClick(cmdOptions, [this] { cmdOptions_Click(); });
  OnClick(cmdLoad, [this] { cmdLoad_Click(); });
  OnClick(cmdSave, [this] { cmdSave_Click(); });
  OnClick(cmdOK, [this] { cmdOK_Click(); });
  OnClick(cmdCancel, [this] { Unload(); });
  OnClick(cmdHelp, [this] { ShowHelp(); });
  for (const int destination : {optPrinter, optScreen, optFile}) {
    OnClick(destination, [this] { mdlVars::OutputTo = GetOutputTo(); });
  }
  drop_ = std::make_unique<platform::DropTarget>(Item(lblPath), [this](const auto& path) { lblPath_Drop(path); });
  SetFocusTo(cmdOK);
}

void frmMain::Form_QueryClose() {
  if (!running_) {
    Unload();
  }
}

bool frmMain::Form_Message(UINT message, WPARAM wParam, LPARAM, LRESULT& result) {
  if (message == WM_SETCURSOR && running_) {
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    result = TRUE;
    return true;
  }
  if (message == WM_ENDSESSION && wParam != FALSE && !running_) {
    SaveEverything();  // the user logs off; the process ends without closing its windows
  }
  return false;
}

void frmMain::MakeFilterLabel() {
  const std::wstring description = FilterDescription(mdlVars::Filter, Texts());
  SetText(lblFilter, description);
  SetToolTip(lblFilter, description);
}

void frmMain::MakeFormatLabel() {
  if (const std::optional<Text> style = StyleCaption(mdlVars::Format.ListingStyle)) {
    SetText(lblFormat, Texts()[*style]);
  }
}

void frmMain::MakePathLabel() {
  if (mdlVars::Format.ListingStyle == ListingStyle::PathListFile) {
    SetText(lblPath, Texts()[Text::PathListStyle]);
    return;
  }
  RECT label{};
  GetClientRect(Item(lblPath), &label);
  SetText(lblPath, FitPathToWidth(mdlVars::Start.Shown, static_cast<double>(label.right), *this));
  SetToolTip(lblPath, mdlVars::Start.Shown);
}

void frmMain::SetOutputTo(OutputTarget target) {
  const auto button = target == OutputTarget::Printer  ? optPrinter
                      : target == OutputTarget::File   ? optFile
                      : target == OutputTarget::Screen ? optScreen
                                                       : 0;
  if (button != 0) {
    Choose({optPrinter, optScreen, optFile}, button);
  }
}

OutputTarget frmMain::GetOutputTo() const {
  return Checked(optPrinter) ? OutputTarget::Printer : Checked(optFile) ? OutputTarget::File : OutputTarget::Screen;
}

void frmMain::ShowEverything() {
  MakePathLabel();
  MakeFilterLabel();
  MakeFormatLabel();
  SetOutputTo(mdlVars::OutputTo);
  // A file that was sent to the program names what to list: folder, filter and style do not apply.
  for (const int button : {cmdBrowse, cmdFilter, cmdFormat}) {
    Enable(button, mdlVars::Format.ListingStyle != ListingStyle::PathListFile);
  }
}

void frmMain::cmdBrowse_Click() {
  const auto folder = platform::BrowseForFolder(Window(), Texts()[Text::BrowseTitle], mdlVars::Start.OnDisk);
  if (folder && SetStartPath(*folder, mdlVars::Start, mdlVars::Format)) {
    ShowEverything();
  }
}

void frmMain::cmdFilter_Click() {
  ShowFilterDialog(*this, Context(), mdlVars::Filter, SaveFilterSettings);
  MakeFilterLabel();
}

void frmMain::cmdFormat_Click() {
  ShowFormatDialog(*this, Context(), mdlVars::Format, {.Style = SaveListingStyle, .Columns = SaveFormatSettings});
  MakeFormatLabel();
  MakePathLabel();
}

void frmMain::cmdOptions_Click() {
  ShowOptionsDialog(*this, Context(), mdlVars::General, mdlVars::Printer,
                    {.CheckRoom =
                         [this](std::unique_ptr<platform::PageSurface> surface, const GeneralSettings& general) {
                           const auto page = MakePage(std::move(surface), general);
                           LayOut(*page, general, mdlVars::Format, Texts());
                         },
                     .Save =
                         [] {
                           SaveGeneralSettings();
                           SavePrinterSettings();
                         },
                     .LoadLastTab = LoadLastTab,
                     .SaveLastTab = SaveLastTab});
}

void frmMain::lblPath_Drop(const std::wstring& path) {
  SetStartPath(path, mdlVars::Start, mdlVars::Format);
  ShowEverything();
}

void frmMain::cmdLoad_Click() {
  platform::FileDialog dialog;
  dialog.Types = Texts()[Text::FilterFiles] + L" (*.fvf)|*.fvf|" + Texts()[Text::AllFiles] + L"|*.*";
  dialog.FileName = mdlVars::FilterFile;
  if (platform::AskForOpenName(Window(), dialog) && LoadFilterFileIfWanted(dialog.FileName)) {
    ShowEverything();
  }
}

void frmMain::cmdSave_Click() {
  platform::FileDialog dialog;
  dialog.Types = Texts()[Text::FilterFiles] + L" (*.fvf)|*.fvf|" + Texts()[Text::AllFiles] + L"|*.*";
  dialog.FileName = mdlVars::FilterFile;
  dialog.DefaultExtension = L"fvf";
  dialog.AskBeforeOverwriting = true;
  if (platform::AskForSaveName(Window(), dialog)) {
    mdlVars::OutputTo = GetOutputTo();
    SaveFilterFile(dialog.FileName);
  }
}

/// False when the user cancels, or when there is no printer, which has been told then.
bool frmMain::ChooseDestination() {
  switch (GetOutputTo()) {
    case OutputTarget::Printer:
      mdlVars::OutputKind = OutputKind::Printer;
      return FindPrinter(mdlVars::Printer, mdlVars::Texts);
    case OutputTarget::File: {
      CDTextfile dialog(Window(), Texts());
      if (!ChooseOutputFile(dialog, Texts(), file_)) {
        return false;
      }
      mdlVars::OutputFile = file_.FileName;
      mdlVars::OutputKind = file_.Kind;
      return true;
    }
    case OutputTarget::Screen:
      mdlVars::OutputFile = ScreenFileName();
      mdlVars::OutputKind = OutputKind::Text;
      return true;
  }
  return false;
}

void frmMain::cmdOK_Click() {
  if (running_ || !ChooseDestination()) {
    return;
  }
  if (RunOnce()) {
    FinishRun();
  }
}

/// False when the user cancelled the run.
bool frmMain::RunOnce() {
  RunGuard guard(*this, Context(), running_);
  driver_.Choose(mdlVars::OutputKind);
  ListingRun run = mdlVars::MakeRun(guard.Progress());
  RunListing(run, driver_, rows_);
  return !run.Cancelled;
}

void frmMain::FinishRun() {
  if (GetOutputTo() == OutputTarget::Screen) {
    platform::OpenInProgram(Window(), mdlVars::General.TextViewer, mdlVars::OutputFile);
  } else if (mdlVars::General.ExitWhenDone) {
    Unload();
  }
}

void frmMain::SaveEverything() {
  mdlVars::OutputTo = GetOutputTo();
  SavePlace(Window());
  SaveSettings();
}

/// Saves everything and ends the program, also when something could not be saved.
void frmMain::Unload() {
  try {
    SaveEverything();
  } catch (const std::exception& problem) {
    ShowProblem(problem);
  }
  drop_.reset();
  Close();
}

}  // namespace

int ShowMainWindow() {
  frmMain window;
  return window.Run();
}

bool AskForOutputFile() {
  platform::PrepareWindows();
  CDTextfile dialog(nullptr, mdlVars::Texts);
  DestinationChooser::Choice choice{mdlVars::OutputFile, mdlVars::OutputKind};
  if (!ChooseOutputFile(dialog, mdlVars::Texts, choice)) {
    return false;
  }
  mdlVars::OutputFile = choice.FileName;
  mdlVars::OutputKind = choice.Kind;
  return true;
}

}  // namespace folivant
