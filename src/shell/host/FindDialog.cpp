// The host build has no Find window, so there is nothing to choose from and nothing to show.
#include "shell/FindDialog.h"

namespace folivant {
namespace {

class NoFindDialog final : public FindDialog {
 public:
  void Show() override {}
  void LetEventsThrough() override {}
};

}  // namespace

std::unique_ptr<FindDialog> OpenFindDialog(FindChoice&, const DialogContext&) {
  return std::make_unique<NoFindDialog>();
}

}  // namespace folivant
