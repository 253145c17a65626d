// Every test begins with untouched records of the program.
#include <gtest/gtest.h>

#include "app/mdlVars.h"

namespace folivant {
namespace {

class FreshRecordsBeforeEachTest final : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override {
    mdlVars::General = {};
    mdlVars::Printer = {};
    mdlVars::Filter = {};
    mdlVars::Format = {};
    mdlVars::OutputTo = OutputTarget::Printer;
    mdlVars::Start = {};
    mdlVars::OutputKind = OutputKind::Text;
    mdlVars::OutputFile.clear();
    mdlVars::DatePattern.clear();
    mdlVars::FilterFile.clear();
    mdlVars::Texts = {};
    mdlVars::HelpFile.clear();
    mdlVars::ManualFile.clear();
  }
};

[[maybe_unused]] const bool appended = [] {
  testing::UnitTest::GetInstance()->listeners().Append(new FreshRecordsBeforeEachTest);  // owned by the list
  return true;
}();

}  // namespace
}  // namespace folivant
