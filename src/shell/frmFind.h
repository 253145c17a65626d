// The dialog in which the user picks one of several open Find windows. What it is asked for is in shell/FindDialog.h.
#pragma once

#include "shell/FindDialog.h"
#include "ui/frmBase.h"

namespace folivant {

class frmFind final : public frmBase, public FindDialog {
 public:
  frmFind(FindChoice& choice, const DialogContext& context);
  ~frmFind() override;

  void Show() override;
  void LetEventsThrough() override;

 private:
  void Form_Load() override;
  void Form_QueryClose() override { cmdCancel_Click(); }
  /// Fills the list with the candidates and selects the first.
  void Initialize();
  void cmdOK_Click();
  void cmdCancel_Click();

  FindChoice& choice_;
};

}  // namespace folivant
