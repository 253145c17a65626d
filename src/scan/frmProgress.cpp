// The progress window: where the run is, and the way to cancel it.
#include "scan/frmProgress.h"

#include <cmath>
#include <string>

#include "platform/MessageBox.h"
#include "scan/NameRules.h"
#include "scan/ProgressBar.h"
#include "ui/frmBase.h"

namespace folivant {
namespace {

constexpr Binding<NoRecord> kControls[] = {
    {kWindow, TextId::ProgressTitle},
    {lblProgress, TextId::Scanning},
    {cmdCancel, TextId::Cancel},
};

constexpr UINT_PTR kTimer1 = 1;
constexpr UINT kTimerInterval = 1000;  // milliseconds
// Letting events through costs some system calls, and a label that changes faster than this cannot be read.
constexpr ULONGLONG kEventInterval = 25;   // milliseconds
constexpr ULONGLONG kLabelInterval = 100;  // milliseconds

class frmProgress final : public frmBase, public Progress, private TextMeasure {
 public:
  frmProgress(platform::Dialog& owner, const DialogContext& context) : frmBase(dlgProgress, context) {
    Create(owner.Window());
    ShowWindow(Window(), SW_SHOW);
    UpdateWindow(Window());
    platform::LetWindowEventsThrough();
  }

  void ShowDirectory(std::wstring_view path) override {
    directory_ = path;
    labelIsOld_ = true;
    LetEventsThrough();
  }

  void SetProgress(std::int32_t share) override {
    bar_.SetProgress(share);
    UpdateBar();
  }

  void LetEventsThrough() override {
    const ULONGLONG now = GetTickCount64();
    if (now - lastEvents_ < kEventInterval) {
      return;
    }
    if (labelIsOld_ && now - lastLabel_ >= kLabelInterval) {
      UpdateLabel(now);
    }
    platform::LetWindowEventsThrough();
    lastEvents_ = GetTickCount64();
  }

  bool Cancelled() const override { return cancelled_; }

 private:
  void Form_Load() override {
    SetTexts(kControls);
    OnClick(cmdCancel, [this] { cmdCancel_Click(); });
    SetTimer(Window(), kTimer1, kTimerInterval, nullptr);
  }

  void Form_QueryClose() override { cmdCancel_Click(); }

  void Form_Timer(UINT_PTR) override {
    if (!bar_.Tick()) {
      KillTimer(Window(), kTimer1);
    }
    UpdateBar();
  }

  void cmdCancel_Click() {
    const auto answer = platform::ShowMessage(Texts()[TextId::CancelQuestion], platform::BoxIcon::Question,
                                              platform::BoxButtons::YesNo);
    cancelled_ = cancelled_ || answer == platform::BoxAnswer::Yes;
  }

  void UpdateBar() { Send(ProgressBar, PBM_SETPOS, static_cast<WPARAM>(std::lround(bar_.Value()))); }

  void UpdateLabel(ULONGLONG now) {
    RECT label{};
    GetClientRect(Item(lblProgress), &label);
    SetText(lblProgress, FitPathToWidth(directory_, static_cast<double>(label.right), *this));
    lastLabel_ = now;
    labelIsOld_ = false;
  }

  double WidthOf(std::wstring_view text) const override { return WidthOfText(std::wstring(text)); }

  CreepingBar bar_;
  std::wstring directory_;
  bool labelIsOld_ = false;
  bool cancelled_ = false;
  ULONGLONG lastEvents_ = 0;
  ULONGLONG lastLabel_ = 0;
};

}  // namespace

std::unique_ptr<Progress> OpenProgressWindow(platform::Dialog& owner, const DialogContext& context) {
  return std::make_unique<frmProgress>(owner, context);
}

}  // namespace folivant
