#include "output/mdlPrint.h"

#include <algorithm>
#include <iterator>

#include "base/mdlFileRoutines.h"
#include "output/mdlPrintHTML.h"
#include "output/mdlPrintPrinter.h"
#include "output/mdlPrintText.h"
#include "output/mdlPrintXML.h"
#include "platform/Files.h"
#include "platform/MessageBox.h"

namespace folivant {
namespace {

template <class Writer, auto... arguments>
std::unique_ptr<ListingWriter> Make(ListingRun& run) {
  return std::make_unique<Writer>(run, arguments...);
}

struct OutputKindRow {
  OutputKind Kind;
  std::wstring_view Extension;  ///< for a file name without one
  std::unique_ptr<ListingWriter> (*MakeWriter)(ListingRun& run);
};
constexpr OutputKindRow kOutputKinds[] = {
    {OutputKind::Text, L".txt", Make<TextWriter, kPlainText>},
    {OutputKind::TabDelimited, L".txt", Make<TextWriter, kTabDelimited>},
    {OutputKind::Html, L".html", Make<HtmlWriter>},
    {OutputKind::Csv, L".txt", Make<TextWriter, kCsv>},  // not ".csv", on purpose
    {OutputKind::Xml, L".xml", Make<XmlWriter>},
    {OutputKind::Printer, L".txt", Make<PrinterWriter>},  // a name given for a printed listing; nothing writes it
};

/// Position in kOutputKinds and among the driver's writers; std::size(kOutputKinds) for a kind that has no row.
std::size_t RowOf(OutputKind kind) {
  const auto* row = std::find_if(std::begin(kOutputKinds), std::end(kOutputKinds),
                                 [kind](const OutputKindRow& candidate) { return candidate.Kind == kind; });
  return static_cast<std::size_t>(row - std::begin(kOutputKinds));
}

bool MayOverwrite(const std::wstring& fileName, const Messages& texts) {
  const std::wstring question =
      texts[Text::OverwriteFirstLine] + L"\r\n" + fileName + L"\r\n" + texts[Text::OverwriteLastLine];
  return platform::ShowMessage(question, platform::BoxIcon::Information, platform::BoxButtons::YesNo,
                               platform::BoxDefault::Second) == platform::BoxAnswer::Yes;
}

}  // namespace

OutputDriver::OutputDriver(ListingRun& run) : run_(run) {
  for (const OutputKindRow& row : kOutputKinds) {
    writers_.push_back(row.MakeWriter(run));
  }
}

OutputDriver::~OutputDriver() = default;

void OutputDriver::BeginListing() {
  current_ = writers_.at(RowOf(run_.OutputKind)).get();
  current_->BeginListing();
}

void OutputDriver::ListDirectory(const DirectoryListing& directory) {
  const bool root = directory.Level == 0;
  if (root || !directory.Order.empty() || run_.General.EmptyDirs) {
    current_->ListDirectory(directory);
  }
}

void OutputDriver::BeginTree(std::wstring_view root) {
  current_->BeginTree(root);
}

void OutputDriver::TreeEntry(const FileRecord& entry) {
  current_->TreeEntry(entry);
}

void OutputDriver::DirectoryViewEntry(const DirNode& node) {
  current_->DirectoryViewEntry(node);
}

void OutputDriver::FindList(std::span<const FoundItem> rows) {
  current_->FindList(rows);
}

void OutputDriver::EndListing() {
  current_->EndListing();
}

void OutputDriver::AbortListing() noexcept {
  if (current_ != nullptr) {
    current_->AbortListing();
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
  const std::size_t row = RowOf(kind);
  return fileName + std::wstring(row < std::size(kOutputKinds) ? kOutputKinds[row].Extension : L".txt");
}

std::wstring ScreenFileName() {
  return AddBackslash(platform::TemporaryDirectory()) + L"~fv00001.tmp";
}

}  // namespace folivant
