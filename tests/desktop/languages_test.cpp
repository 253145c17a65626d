// Every window in every language: no caption is wider than its control, and every field has a label.
#include <filesystem>

#include "desktop/FieldLabels.h"
#include "desktop/FittingTexts.h"
#include "desktop/MainWindow.h"
#include "find/StandIn.h"

namespace folivant::desktop {
namespace {

class Languages : public MainWindowTest, public testing::WithParamInterface<std::wstring> {
 protected:
  FittingTexts texts;
};

TEST_P(Languages, FitIntoEveryWindow) {
  WriteStore(L"Settings", L"Language", GetParam());
  const Program program(Argument());
  const Window main = Main(program);
  EXPECT_EQ(main.TextOf(cmdBrowse), Message(4, GetParam())) << "the language is in use";
  texts.ExpectNothingClipped(main, L"main window");
  for (const auto& [button, title] : {std::pair(cmdFilter, 200), {cmdFormat, 201}, {cmdOptions, 204}}) {
    main.Press(button);
    const Window dialog = program.WaitForWindow(Message(title, GetParam()), main);
    texts.ExpectNothingClipped(dialog, dialog.Text());
    const int fields = button == cmdFilter ? 5 : button == cmdOptions ? 12 : 0;
    EXPECT_EQ(ExpectEveryFieldLabelled(dialog), fields);
    if (button == cmdFormat) {
      dialog.Press(Command1);
      const Window columns = program.WaitForWindow(Message(202, GetParam()), dialog);
      texts.ExpectNothingClipped(columns, columns.Text());
      EXPECT_EQ(ExpectEveryFieldLabelled(columns), 1);
      columns.Answer(cmdCancel);
    }
    dialog.Answer(cmdCancel);
  }
  Close(program, main);
}

TEST_P(Languages, FitIntoTheWindowsOfARun) {
  const tests::StandIn one(L"Find: one", {}), two(L"Find: two", {});
  WriteStore(L"Settings", L"Language", GetParam());
  const Program program(L"/f " + scratch.FilterFile(L"find.fvf", {"Format=5"}));
  const Window main = Main(program);
  main.Click(optScreen);
  main.Press(cmdOK);
  const Window choice = program.WaitForWindow(Message(206, GetParam()));
  texts.ExpectNothingClipped(choice, choice.Text());
  EXPECT_EQ(ExpectEveryFieldLabelled(choice), 1);
  const Window progress = program.WaitForWindow(Message(203, GetParam()), main);
  texts.ExpectNothingClipped(progress, progress.Text());
  choice.Press(cmdCancel);
  EXPECT_TRUE(WaitUntil([&] { return main.IsEnabled(); }));
  Close(program, main);
}

// At another resolution than the ordinary one, which the caller names.
TEST(Resolution, IsTheOneAskedFor) {
  SetProcessDPIAware();
  FittingTexts().ExpectResolutionAskedFor();
}

INSTANTIATE_TEST_SUITE_P(All, Languages, testing::ValuesIn(LanguageFiles()),
                         [](const auto& each) { return std::filesystem::path(each.param).stem().string(); });

}  // namespace
}  // namespace folivant::desktop
