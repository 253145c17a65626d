// The main window: what will be listed, and the way to everything else.
#include <memory>
#include <optional>
#include <string>

#include "app/ChosenPrinter.h"
#include "app/CopyListing.h"
#include "app/MainControls.h"
#include "app/MainWindow.h"
#include "app/Settings.h"
#include "app/StartUp.h"
#include "app/mdlVars.h"
#include "app/win32/CopyOrders.h"
#include "app/win32/FilterFileDialog.h"
#include "app/win32/PositionOnScreen.h"
#include "app/win32/RunGuard.h"
#include "app/win32/SaveDialog.h"
#include "output/Columns.h"
#include "output/EntryFormatting.h"
#include "output/PageLayout.h"
#include "output/mdlPrint.h"
#include "platform/Clipboard.h"
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

/// The save dialog, preset with `choice`, which takes what the user chooses. False when the user cancels.
bool AskForOutputFile(HWND owner, DestinationChooser::Choice& choice) {
  CDTextfile dialog(owner, mdlVars::Texts);
  if (!ChooseOutputFile(dialog, mdlVars::Texts, choice)) {
    return false;
  }
  mdlVars::OutputFile = choice.FileName;
  mdlVars::OutputKind = choice.Kind;
  return true;
}

void SaveOptions() {
  SaveGeneralSettings();
  SavePrinterSettings();
}

/// Throws RuntimeError when no line of a listing with these settings stands on a page of `surface`.
void CheckRoom(std::unique_ptr<platform::PageSurface> surface, const GeneralSettings& general) {
  LayOut(*MakePage(std::move(surface), general), general, mdlVars::Format, mdlVars::Texts);
}

class frmMain final : public frmBase, private TextMeasure {
 public:
  frmMain() : frmBase(dlgMain, mdlVars::MakeDialogContext()), rows_(Context()) {}

 private:
  void Form_Load() override;
  void Form_QueryClose() override;
  bool Form_Message(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
  bool Form_KeyDown(WPARAM key) override;

  void MakeFilterLabel();
  void MakeFormatLabel();
  void MakePathLabel();
  OutputTarget GetOutputTo() const;
  void ShowEverything();

  void cmdBrowse_Click();
  void cmdFilter_Click();
  void cmdFormat_Click();
  void cmdOptions_Click();
  void cmdLoad_Click();
  void cmdSave_Click();
  void cmdOK_Click();
  void mnuCopyListing_Click();
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
  SetTexts(kMainControls);
  SetTexts(kOutputToControls);
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
  for (const Binding<OutputTarget>& destination : kOutputToControls) {
    OnClick(destination.Control, [this] { mdlVars::OutputTo = GetOutputTo(); });
  }
  AddCopyEntry(Window(), Texts());
  drop_ = std::make_unique<platform::DropTarget>(Item(lblPath), [this](const auto& path) { lblPath_Drop(path); });
  SetFocusTo(cmdOK);
}

void frmMain::Form_QueryClose() {
  if (!running_) {
    Unload();
  }
}

/// The window has no text box, whose own copying Ctrl+C would be.
bool frmMain::Form_KeyDown(WPARAM key) {
  const auto order = CopyOrderOfKey(key);
  return order && PostMessageW(Window(), WM_SYSCOMMAND, static_cast<WPARAM>(*order), 0) != FALSE;
}

bool frmMain::Form_Message(UINT message, WPARAM wParam, LPARAM, LRESULT& result) {
  if (message == WM_SETCURSOR && running_) {
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    result = TRUE;
    return true;
  }
  if (const auto order = CopyOrderOf(message, wParam)) {
    order == CopyOrder::Listing ? mnuCopyListing_Click() : platform::CopyToClipboard(mdlVars::Start.Shown);
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
  if (const std::optional<TextId> style = StyleCaption(mdlVars::Format.ListingStyle)) {
    SetText(lblFormat, Texts()[*style]);
  }
}

void frmMain::MakePathLabel() {
  if (mdlVars::Format.ListingStyle == ListingStyle::PathListFile) {
    SetText(lblPath, Texts()[TextId::PathListStyle]);
    return;
  }
  RECT label{};
  GetClientRect(Item(lblPath), &label);
  SetText(lblPath, FitPathToWidth(mdlVars::Start.Shown, static_cast<double>(label.right), *this));
  SetToolTip(lblPath, mdlVars::Start.Shown);
}

OutputTarget frmMain::GetOutputTo() const {
  OutputTarget target{};
  Read(kOutputToControls, target);
  return target;
}

void frmMain::ShowEverything() {
  MakePathLabel();
  MakeFilterLabel();
  MakeFormatLabel();
  Fill(kOutputToControls, mdlVars::OutputTo);
  // A file that was sent to the program names what to list: folder, filter and style do not apply.
  for (const int button : {cmdBrowse, cmdFilter, cmdFormat}) {
    Enable(button, mdlVars::Format.ListingStyle != ListingStyle::PathListFile);
  }
}

void frmMain::cmdBrowse_Click() {
  const auto folder = platform::BrowseForFolder(Window(), Texts()[TextId::BrowseTitle], mdlVars::Start.OnDisk);
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
  ShowOptionsDialog(
      *this, Context(), mdlVars::General, mdlVars::Printer,
      {.CheckRoom = CheckRoom, .Save = SaveOptions, .LoadLastTab = LoadLastTab, .SaveLastTab = SaveLastTab});
}

void frmMain::lblPath_Drop(const std::wstring& path) {
  SetStartPath(path, mdlVars::Start, mdlVars::Format);
  ShowEverything();
}

void frmMain::cmdLoad_Click() {
  const auto file = AskForFilterFileToLoad(Window());
  if (file && LoadFilterFileIfWanted(*file)) {
    ShowEverything();
  }
}

void frmMain::cmdSave_Click() {
  if (const auto file = AskForFilterFileToSave(Window())) {
    mdlVars::OutputTo = GetOutputTo();
    SaveFilterFile(*file);
  }
}

/// False when the user cancels, or when there is no printer, which has been told then.
bool frmMain::ChooseDestination() {
  switch (GetOutputTo()) {
    case OutputTarget::Printer:
      mdlVars::OutputKind = OutputKind::Printer;
      return FindPrinter(mdlVars::Printer, mdlVars::Texts);
    case OutputTarget::File:
      return AskForOutputFile(Window(), file_);
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

/// The window stays: what was copied is to be pasted, and another copy may follow. The task bar shows the system menu
/// of a window that is behind a dialog, too.
void frmMain::mnuCopyListing_Click() {
  if (!running_ && IsWindowEnabled(Window()) != FALSE) {
    RunGuard guard(*this, Context(), running_);
    CopyListing(driver_, rows_, guard.Progress());
  }
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
  SavePosition(Window());
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
  window.Create(nullptr);
  RestorePosition(window.Window());
  ShowWindow(window.Window(), SW_SHOWDEFAULT);
  platform::RunUntilClosed(window);
  return kExitDone;
}

bool AskForOutputFile() {
  platform::PrepareWindows();
  DestinationChooser::Choice choice{mdlVars::OutputFile, mdlVars::OutputKind};
  return AskForOutputFile(nullptr, choice);
}

}  // namespace folivant
