#include "fakes/FakeSession.h"

#include <gtest/gtest.h>

#include "app/MainWindow.h"
#include "platform/Printers.h"

namespace folivant::fakes {
namespace {

class ResetBeforeEachTest final : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override { Session() = {}; }
};

[[maybe_unused]] const bool appended = [] {
  testing::UnitTest::GetInstance()->listeners().Append(new ResetBeforeEachTest);  // owned by the list
  return true;
}();

}  // namespace

FakeSession& Session() {
  static FakeSession session;
  return session;
}

}  // namespace folivant::fakes

namespace folivant::platform {

std::vector<std::wstring> PrinterNames() {
  return fakes::Session().Printers;
}

std::optional<std::wstring> DefaultPrinterName() {
  ++fakes::Session().DefaultPrinterAsked;
  const std::vector<std::wstring>& printers = fakes::Session().Printers;
  return printers.empty() || !fakes::Session().HasDefaultPrinter ? std::nullopt : std::optional(printers.front());
}

}  // namespace folivant::platform

namespace folivant {

int ShowMainWindow() {
  ++fakes::Session().Shown;
  return fakes::Session().ExitStatus;
}

bool AskForOutputFile() {
  ++fakes::Session().OutputFileAsked;
  return fakes::Session().SaveDialog();
}

}  // namespace folivant
