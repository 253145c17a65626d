#include "output/mdlPrint.h"

#include "base/mdlFileRoutines.h"
#include "output/OutputKinds.h"
#include "platform/Files.h"
#include "platform/MessageBox.h"

namespace folivant {
namespace {

bool MayOverwrite(const std::wstring& fileName, const Messages& texts) {
  const std::wstring question =
      texts[TextId::OverwriteFirstLine] + L"\r\n" + fileName + L"\r\n" + texts[TextId::OverwriteLastLine];
  return platform::ShowMessage(question, platform::BoxIcon::Information, platform::BoxButtons::YesNo,
                               platform::BoxDefault::Second) == platform::BoxAnswer::Yes;
}

}  // namespace

OutputDriver::OutputDriver() {
  for (const OutputKindRow& row : OutputKinds()) {
    writers_[row.Kind] = row.MakeWriter();
  }
  Choose(OutputKind::Text);
}

OutputDriver::~OutputDriver() = default;

void OutputDriver::Choose(OutputKind kind) {
  current_ = writers_.at(kind).get();
}

void OutputDriver::BeginListing(ListingRun& run) {
  run_ = &run;
  current_->BeginListing(run);
}

bool OutputDriver::IsListed(const DirectoryListing& directory) const {
  const bool root = directory.Level == 0;
  return root || !directory.Order.empty() || run_->General.EmptyDirs;
}

void OutputDriver::ListDirectory(const DirectoryListing& directory) {
  if (IsListed(directory)) {
    current_->ListDirectory(directory);
  }
}

void OutputDriver::ListPaths(const DirectoryListing& directory) {
  if (IsListed(directory)) {
    current_->ListPaths(directory);
  }
}

bool ChooseOutputFile(DestinationChooser& chooser, const Messages& texts, DestinationChooser::Choice& choice) {
  std::optional<DestinationChooser::Choice> chosen = choice;
  do {
    chosen = chooser.AskForFile(*chosen);
    if (!chosen) {
      return false;
    }
    chosen->FileName = WithDefaultExtension(chosen->FileName, chosen->Kind);
  } while (platform::PathExists(chosen->FileName) && !MayOverwrite(chosen->FileName, texts));
  choice = *chosen;
  return true;
}

std::wstring WithDefaultExtension(const std::wstring& fileName, OutputKind kind) {
  if (GetFileName(fileName).find(L'.') != std::wstring::npos) {
    return fileName;
  }
  return fileName + std::wstring(RowOf(kind).DialogExtension);
}

std::wstring ScreenFileName() {
  return AddBackslash(platform::TemporaryDirectory()) + L"~fv00001.tmp";
}

}  // namespace folivant
