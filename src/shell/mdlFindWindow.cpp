// Style 5: the rows of an open shell Find window.
#include <string>

#include "app/mdlVars.h"
#include "platform/MessageBox.h"
#include "platform/RuntimeError.h"
#include "shell/FindDialog.h"
#include "shell/FindResults.h"
#include "shell/mdlFind.h"

namespace folivant {
namespace {

// A window that is alone is taken at once; the dialog is shown only where there is something to choose.
void BeginChoice(FindChoice& choice, FindDialog& dialog) {
  choice.FindCandidates();
  if (choice.Candidates.empty()) {
    platform::ShowMessage(mdlVars::Texts[Text::NoFindWindow], platform::BoxIcon::Exclamation, platform::BoxButtons::Ok);
    choice.Cancel();
  } else if (choice.Candidates.size() == 1) {
    choice.Choose(0);
  } else {
    dialog.Show();
  }
}

// The choice arrives through the shared handle while events run. A chosen window without a list view inside leaves the
// handle pending and the wait goes on, on purpose; cancelling the run ends it. Where nobody watches the run, nothing
// could: such a wait would be a process that no user can see or close, so there it is an error.
void WaitForChoice(const FindChoice& choice, FindDialog& dialog, Progress& progress) {
  while (choice.IsPending() && !progress.Cancelled()) {
    if (choice.Chosen && !progress.CanCancel()) {
      throw RuntimeError(FailedAction::ReadWindow, choice.FindWindowTitle, {}, 0);
    }
    dialog.LetEventsThrough();
    progress.LetEventsThrough();
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

void ReadFindResults(const FindChoice& choice, Progress& progress) {
  ScanTree& tree = mdlVars::Tree;
  FindResults results(choice.FindListHandle, choice.FindWindowTitle);
  tree.FoundCount = results.RowCount();
  tree.FoundList.resize(static_cast<std::size_t>(tree.FoundCount) + 1);  // one slot to spare, as ever
  results.Read(tree.FoundList, [&](std::int32_t row) {
    ShowShare(progress, row, tree.FoundCount);
    progress.LetEventsThrough();
    tree.Cancelled = tree.Cancelled || progress.Cancelled();
    return !tree.Cancelled;
  });
}

}  // namespace

void PrintFromFind(ListingWriter& output, Progress& progress) {
  ScanTree& tree = mdlVars::Tree;
  FindChoice choice;
  {
    const auto dialog = OpenFindDialog(choice, mdlVars::Texts);
    BeginChoice(choice, *dialog);
    WaitForChoice(choice, *dialog, progress);
  }
  if (choice.Chosen) {
    tree.FindWindowTitle = choice.FindWindowTitle;
  }
  if (choice.IsPending() || choice.IsCancelled()) {
    tree.Cancelled = true;
    return;
  }
  ReadFindResults(choice, progress);
  if (!tree.Cancelled) {
    output.FindList(std::span(tree.FoundList).first(static_cast<std::size_t>(tree.FoundCount)));
  }
}

}  // namespace folivant
