#include "platform/win32/WindowSystem.h"

#include <gtest/gtest.h>

#include "platform/RuntimeError.h"
#include "platform/win32/Dialog.h"

namespace folivant::platform {
namespace {

/// A window without a template: this program has no resources.
class NoWindow final : public Dialog {
 public:
  NoWindow() : Dialog(9999) {}

 private:
  void Form_Load() override {}
  void ShowHelp() override {}
  void ShowProblem(const std::exception&) noexcept override {}
};

TEST(WindowSystem, AWindowThatCannotBeOpenedIsToldWithTheSystemsReason) {
  for (const bool modal : {true, false}) {
    try {
      NoWindow window;
      modal ? static_cast<void>(window.ShowModal(nullptr)) : window.Create(nullptr);
      FAIL() << "there is no such window";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Action(), FailedAction::OpenWindow);
      EXPECT_NE(error.SystemCode(), 0U);
      EXPECT_FALSE(error.SystemText().empty());
    }
  }
}

}  // namespace
}  // namespace folivant::platform
