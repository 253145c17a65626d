// From the command line to a listing or a window, and to the exit status.
#include "app/StartUp.h"

#include <optional>
#include <vector>

#include "app/ChosenPrinter.h"
#include "app/CommandLine.h"
#include "app/MainWindow.h"
#include "app/SendTo.h"
#include "app/Settings.h"
#include "app/UnattendedRun.h"
#include "app/mdlVars.h"
#include "base/mdlFileRoutines.h"
#include "output/OutputKinds.h"
#include "output/mdlPrint.h"
#include "platform/Files.h"
#include "platform/FindFiles.h"
#include "platform/MessageBox.h"
#include "platform/Printers.h"
#include "platform/RuntimeError.h"
#include "scan/mdlScan.h"
#include "shell/mdlFind.h"
#include "ui/ErrorText.h"
#include "ui/Help.h"
#include "ui/Language.h"

namespace folivant {
namespace {

void ShowWarning(const std::wstring& text) {
  platform::ShowMessage(text, platform::BoxIcon::Exclamation, platform::BoxButtons::Ok);
}

/// What the line has wrong ends the program; nothing is saved.
ExitStatus CommandLineError(const std::wstring& detail) {
  const Messages& texts = mdlVars::Texts;
  ShowWarning(texts[TextId::CommandLineProblem] + L"\r\n" + detail + L"\r\n\r\n" + texts[TextId::CommandLineHint]);
  return kExitFailed;
}

bool SetDirectory(const std::wstring& path) {
  return SetStartPath(path, mdlVars::Start, mdlVars::Format);
}

void SetCurrentDirectoryAgain() {
  SetDirectory(std::wstring(mdlVars::Start.Shown));
}

/// What Send To gives: a directory to list, or a file whose lines are the paths to list.
void ApplyPath(const std::wstring& path) {
  if (!path.empty() && platform::PathExists(path) && !platform::IsDirectory(path)) {
    mdlVars::Format.ListingStyle = ListingStyle::PathListFile;
    mdlVars::Start = {path, path};
  } else if (path.empty() || !SetDirectory(path)) {
    SetCurrentDirectoryAgain();
  }
}

/// A status when the line ends the program.
using Ending = std::optional<ExitStatus>;

Ending ApplyFilterFile(const CommandLine& command) {
  if (!command.FilterFile) {
    return CommandLineError(L"No filter file specified.");
  }
  const std::wstring path = platform::AbsolutePath(*command.FilterFile);
  if (path.empty() || !FileExists(path)) {
    return CommandLineError(L"Filter file not found.");
  }
  LoadFilterFile(path);
  return std::nullopt;
}

/// "/k" holds beside a "/t".
Ending ApplyOutputKind(const CommandLine& command) {
  if (!command.OutputLetter && !command.KindWord) {
    if (mdlVars::OutputTo == OutputTarget::Printer) {
      mdlVars::OutputKind = OutputKind::Printer;
    }
    return std::nullopt;
  }
  const OutputKindRow* const row =
      command.KindWord ? RowOfSwitchWord(*command.KindWord) : RowOfLetter(*command.OutputLetter);
  if (row == nullptr) {
    return CommandLineError(mdlVars::Texts[TextId::UnknownOutputType]);
  }
  mdlVars::OutputKind = row->Kind;
  mdlVars::OutputTo = row->Kind == OutputKind::Printer ? OutputTarget::Printer : OutputTarget::File;
  return std::nullopt;
}

bool HasDestination(const UnattendedRun& unattended) {
  if (mdlVars::OutputKind == OutputKind::Printer) {
    return FindPrinter(mdlVars::Printer, mdlVars::Texts);
  }
  if (!mdlVars::OutputFile.empty()) {
    return true;
  }
  if (!unattended.CanAsk()) {
    CommandLineError(mdlVars::Texts[TextId::OutputFileMissing]);
    return false;
  }
  return AskForOutputFile();
}

void LogResult(RunLog& log, const ListingRun& run) {
  log.TellCounts(run);
  if (mdlVars::OutputKind == OutputKind::Printer) {
    log.TellPrinter(run.Printer.PrinterName);
  } else {
    log.TellOutputFile(platform::AbsolutePath(run.OutputFile));
  }
}

ExitStatus StatusOf(const ListingRun& run, bool elsewhere) {
  if (run.Cancelled) {
    return kExitFailed;
  }
  if (!run.Unread.empty()) {
    return kExitUnreadable;
  }
  return elsewhere ? kExitElsewhere : kExitDone;
}

/// The run of "/g": no window, no viewer, and the stored settings stay as they are. `elsewhere` says that it does not
/// list the directory that the command line names.
ExitStatus RunAtOnce(UnattendedRun& unattended, bool elsewhere) {
  if (!HasDestination(unattended)) {
    return kExitFailed;
  }
  OutputDriver output;
  output.Choose(mdlVars::OutputKind);
  FindCapture rows(mdlVars::MakeDialogContext());
  ListingRun run = mdlVars::MakeRun(unattended);
  if (RunLog* const log = unattended.Log()) {
    log->TellListing(run);
  }
  RunListing(run, output, rows);
  if (RunLog* const log = unattended.Log()) {
    LogResult(*log, run);
  }
  return StatusOf(run, elsewhere);
}

/// False when "/d" leaves the directory of the filter file, because it names none. With "/q" that is an error, as it is
/// when the directory cannot be read: nobody is there to see that something else was listed, or nothing.
bool ApplyDirectory(const CommandLine& command) {
  const bool set = SetDirectory(*command.Directory);
  if (command.Go && command.Quiet) {
    const platform::FindFiles files(set ? mdlVars::Start.OnDisk : *command.Directory, platform::ShortNames::Skip);
    if (!set || !files.Opened()) {
      const SystemReason reason = files.Reason();
      throw RuntimeError(FailedAction::ReadFile, *command.Directory, reason.Text, reason.Code);
    }
  }
  return set;
}

/// The switches in their fixed order, whatever their order on the line.
Ending ParseCommandLine(const CommandLine& command, UnattendedRun& unattended) {
  if (!command.HasSwitches) {
    ApplyPath(command.Path);
    return std::nullopt;
  }
  if (const Ending ending = ApplyFilterFile(command)) {
    return ending;
  }
  const bool elsewhere = command.Directory && !ApplyDirectory(command);
  if (const Ending ending = ApplyOutputKind(command)) {
    return ending;
  }
  if (command.OutputFile) {
    mdlVars::OutputFile = WithSwitchExtension(*command.OutputFile, mdlVars::OutputKind);
  }
  return command.Go ? Ending(RunAtOnce(unattended, elsewhere)) : std::nullopt;
}

/// The language of the settings, or English while they have none.
void LoadTexts() {
  const std::wstring folder = platform::ProgramFolder();
  mdlVars::HelpFile = LoadLanguage(folder, mdlVars::General.Language, mdlVars::Texts);
  mdlVars::ManualFile = ManualFile(folder, mdlVars::General.Language);
}

/// The texts of messages depend on a setting, so bad settings are reported once the language is there.
void LoadSettingsAndLanguage() {
  const std::vector<BadSetting> bad = LoadSettings();
  LoadTexts();
  ReportBadSettings(bad);
}

/// What failed may have been in the way of the texts. Where there is no memory even for telling, the exit status tells.
void TellFailure(const std::exception& failure) noexcept {
  try {
    if (!mdlVars::Texts.AreLoaded()) {
      LoadTexts();
    }
    ShowError(failure, mdlVars::Texts);
  } catch (const std::exception&) {
    // Nothing is left to try.
  }
}

int StartWindow() {
  if (platform::PrinterNames().empty()) {
    mdlVars::OutputTo = OutputTarget::File;
  }
  ResolvePrinterName(mdlVars::Printer);
  return ShowMainWindow();
}

int StartOrTell(const CommandLine& command, UnattendedRun& unattended) {
  try {
    RecreateSendTo();
    LoadSettingsAndLanguage();
    if (const Ending ending = ParseCommandLine(command, unattended)) {
      return *ending;
    }
    return StartWindow();
  } catch (const std::exception& error) {
    TellFailure(error);
    return kExitFailed;
  }
}

/// Fails where there can be no log, or no more of it.
int StartWithLog(const std::wstring& commandLine) {
  const CommandLine command = ReadCommandLine(commandLine);
  UnattendedRun unattended(command);
  try {
    unattended.OpenLog(commandLine);
    const int status = StartOrTell(command, unattended);
    if (RunLog* const log = unattended.Log()) {
      log->End(status);
    }
    return status;
  } catch (const std::exception& error) {
    TellFailure(error);
    return kExitFailed;
  }
}

}  // namespace

int Start(const std::wstring& commandLine) {
  try {
    if (commandLine == L"/deletesendto") {
      DeleteSendTo();
      return kExitDone;
    }
    return StartWithLog(commandLine);
  } catch (const std::exception& error) {
    TellFailure(error);
    return kExitFailed;
  }
}

}  // namespace folivant
