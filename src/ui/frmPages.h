// A dialog whose controls stand on pages behind a tab strip.
#pragma once

#include <span>
#include <vector>

#include "ui/frmBase.h"

namespace folivant {

struct PageDesign {
  int Template;    ///< the number of a dialog template
  TextId Caption;  ///< of its tab
};

class frmPages : public frmBase {
 protected:
  using frmBase::frmBase;

  /// Makes the pages, hidden. Called in Form_Load before the controls are filled.
  void MakePages(std::span<const PageDesign> pages);
  /// Gives all pages the size of the largest one, or what the tabs take, and the tab strip and the window what that
  /// takes. Called when the controls have their texts, and again when the resolution changes.
  void PlacePages();
  /// Pages count from 0.
  void ShowPage(int page);
  int ShownPage() const;
  void ShowField(int control) override;

 private:
  /// The keys that turn pages in the system's own property sheets.
  bool Form_KeyDown(WPARAM key) override;

  LONG WidthOfTabs() const;

  std::vector<HWND> pages_;
};

}  // namespace folivant
