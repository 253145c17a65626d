// Style 5: the rows of an open shell Find window.
#include <string>

#include "platform/MessageBox.h"
#include "platform/RuntimeError.h"
#include "scan/ListingRun.h"
#include "shell/FindDialog.h"
#include "shell/FindResults.h"
#include "shell/mdlFind.h"

namespace folivant {
namespace {

void GiveUp(FindChoice& choice, const std::wstring& why) {
  platform::ShowMessage(why, platform::BoxIcon::Exclamation, platform::BoxButtons::Ok);
  choice.Cancel();
}

// A window that is alone is taken at once; the dialog is shown only where there is something to choose.
void BeginChoice(FindChoice& choice, FindDialog& dialog, const ListingRun& run) {
  choice.FindCandidates();
  if (choice.Candidates.empty()) {
    GiveUp(choice, run.Texts[TextId::NoFindWindow]);
  } else if (choice.Candidates.size() == 1) {
    choice.Choose(0);
  } else if (!run.Watcher.CanAsk()) {
    GiveUp(choice, run.Texts[TextId::SeveralFindWindows]);
  } else {
    dialog.Show();
  }
}

// The choice arrives through the shared handle while events run. A chosen window without a list view inside leaves the
// handle pending and the wait goes on, on purpose; cancelling the run ends it. Where nobody watches the run, nothing
// could: such a wait would be a process that no user can see or close, so there it is an error.
void WaitForChoice(const FindChoice& choice, FindDialog& dialog, ListingRun& run) {
  while (choice.IsPending() && !run.IsCancelled()) {
    if (choice.Chosen && !run.Watcher.CanCancel()) {
      throw RuntimeError(FailedAction::ReadWindow, choice.FindWindowTitle, {}, 0);
    }
    dialog.LetEventsThrough();
    run.Watcher.LetEventsThrough();
  }
}

// Whole percent points of the bar, one by one.
void ShowShare(Progress& progress, std::int32_t row, std::int32_t count) {
  const std::int64_t before = std::int64_t{row} * 100 / count;
  const std::int64_t now = (std::int64_t{row} + 1) * 100 / count;
  if (now > before) {
    progress.SetProgress(static_cast<std::int32_t>(now - before));
  }
}

std::vector<FoundItem> ReadFindResults(const FindChoice& choice, ListingRun& run) {
  FindResults results(choice.FindListHandle, choice.FindWindowTitle);
  const std::int32_t count = results.RowCount();
  std::vector<FoundItem> rows(static_cast<std::size_t>(count));
  results.Read(rows, [&](std::int32_t row) {
    ShowShare(run.Watcher, row, count);
    run.Watcher.LetEventsThrough();
    return !run.IsCancelled();
  });
  return rows;
}

}  // namespace

FoundRows FindCapture::PrintFromFind(ListingRun& run) {
  FindChoice choice;
  {
    const auto dialog = OpenFindDialog(choice, context_);
    BeginChoice(choice, *dialog, run);
    WaitForChoice(choice, *dialog, run);
  }
  if (choice.Chosen) {
    findWindowTitle_ = choice.FindWindowTitle;
  }
  if (choice.IsPending() || choice.IsCancelled()) {
    run.Cancelled = true;
    return {};
  }
  return {findWindowTitle_, ReadFindResults(choice, run)};
}

}  // namespace folivant
