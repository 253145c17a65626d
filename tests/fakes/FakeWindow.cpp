#include "fakes/FakeWindow.h"

#include <gtest/gtest.h>

#include "app/MainWindow.h"
#include "platform/Printers.h"

namespace folivant::fakes {
namespace {

class ResetBeforeEachTest final : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override { Window() = {}; }
};

[[maybe_unused]] const bool appended = [] {
  testing::UnitTest::GetInstance()->listeners().Append(new ResetBeforeEachTest);  // owned by the list
  return true;
}();

}  // namespace

FakeWindow& Window() {
  static FakeWindow window;
  return window;
}

}  // namespace folivant::fakes

namespace folivant::platform {

std::vector<std::wstring> PrinterNames() {
  return fakes::Window().Printers;
}

std::optional<std::wstring> DefaultPrinterName() {
  ++fakes::Window().DefaultPrinterAsked;
  const std::vector<std::wstring>& printers = fakes::Window().Printers;
  return printers.empty() ? std::nullopt : std::optional(printers.front());
}

}  // namespace folivant::platform

namespace folivant {

int ShowMainWindow() {
  ++fakes::Window().Shown;
  return fakes::Window().ExitStatus;
}

bool AskForOutputFile() {
  ++fakes::Window().OutputFileAsked;
  return fakes::Window().SaveDialog();
}

}  // namespace folivant
