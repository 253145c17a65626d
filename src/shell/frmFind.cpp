#include "shell/frmFind.h"

namespace folivant {
namespace {

constexpr Binding<NoRecord> kControls[] = {
    {kWindow, TextId::FindTitle},
    {lstFind, TextId::SelectFindWindow},  // goes to its label
    {cmdOK, TextId::Ok},
    {cmdCancel, TextId::Cancel},
};

// The wait for the user looks at events this often, or at once when one comes.
constexpr DWORD kRestInterval = 20;  // milliseconds

}  // namespace

frmFind::frmFind(FindChoice& choice, const DialogContext& context) : frmBase(dlgFind, context), choice_(choice) {}

frmFind::~frmFind() {
  Close();
}

void frmFind::Show() {
  Create(nullptr);  // without an owner: it stands beside the program's other windows
  Initialize();
  ShowWindow(Window(), SW_SHOW);
  SetForegroundWindow(Window());
  SetFocusTo(lstFind);
}

void frmFind::LetEventsThrough() {
  MsgWaitForMultipleObjects(0, nullptr, FALSE, kRestInterval, QS_ALLINPUT);
  platform::LetWindowEventsThrough();
}

void frmFind::Form_Load() {
  SetTexts(kControls);
  OnClick(cmdOK, [this] { cmdOK_Click(); });
  OnClick(cmdCancel, [this] { cmdCancel_Click(); });
  On(lstFind, LBN_DBLCLK, [this] { cmdOK_Click(); });
}

void frmFind::Initialize() {
  for (const FindCandidate& candidate : choice_.Candidates) {
    AddItem(lstFind, candidate.Title);
  }
  Select(lstFind, 0);
}

void frmFind::cmdOK_Click() {
  const int row = Selected(lstFind);
  if (row == platform::kNothingSelected) {
    return;
  }
  choice_.Choose(row);
  Close();
}

void frmFind::cmdCancel_Click() {
  choice_.Cancel();
  Close();
}

std::unique_ptr<FindDialog> OpenFindDialog(FindChoice& choice, const DialogContext& context) {
  return std::make_unique<frmFind>(choice, context);
}

}  // namespace folivant
