// A run from the main window while it goes on: the progress window, and Cancel answered No and Yes.
#include "desktop/MainWindow.h"

#include <commctrl.h>

namespace folivant::desktop {
namespace {

class Progress : public MainWindowTest {
 protected:
  void Begin() {
    main.Press(cmdOK);
    const Window dialog = program.WaitForBox(main);
    Confirm(dialog, scratch / L"list.txt", 0);
    progress = program.WaitForWindow(Message(203), main);
  }

  Program program{LargeTree()};
  Window main{Main(program)};
  Window progress;
};

TEST_F(Progress, CancelAnsweredNoGoesOnAndYesEndsTheRun) {
  Begin();
  EXPECT_FALSE(main.IsEnabled()) << "inert during the run";
  EXPECT_EQ(progress.TextOf(cmdCancel), Message(42));
  EXPECT_TRUE(WaitUntil([&] { return progress.TextOf(lblProgress) != Message(111); })) << "shows directories";

  progress.Press(cmdCancel);
  Window question = program.WaitForBox(progress);
  EXPECT_EQ(question.BoxText(), Message(112));
  question.Answer(IDNO);
  const std::wstring before = progress.TextOf(lblProgress);
  EXPECT_TRUE(WaitUntil([&] { return progress.TextOf(lblProgress) != before; })) << "the run goes on";

  progress.Press(cmdCancel);
  program.WaitForBox(progress).Answer(IDYES);
  EXPECT_TRUE(progress.WaitUntilGone());
  EXPECT_TRUE(WaitUntil([&] { return main.IsEnabled(); }));
  EXPECT_TRUE(program.IsRunning()) << "a cancelled run leaves the window open";
  EXPECT_FALSE(ReadBytes(scratch / L"list.txt").empty()) << "what was listed so far stays";
  Close(program, main);
}

constexpr LRESULT kHighestCreep = 11;  // percent that the bar reaches by itself, and then only after 20 seconds

TEST_F(Progress, TheBarShowsTheSharesThatAreDone) {
  Begin();
  EXPECT_TRUE(WaitUntil(
      [&] { return SendMessageW(progress.Control(ProgressBar).Handle(), PBM_GETPOS, 0, 0) > kHighestCreep; }));
  progress.Press(cmdCancel);
  program.WaitForBox(progress).Answer(IDYES);
  EXPECT_TRUE(progress.WaitUntilGone());
  Close(program, main);
}

TEST_F(Progress, TheCloseBoxAsksLikeCancel) {
  Begin();
  progress.Close();
  program.WaitForBox(progress).Answer(IDYES);
  EXPECT_TRUE(progress.WaitUntilGone());
  EXPECT_TRUE(WaitUntil([&] { return main.IsEnabled(); }));
  Close(program, main);
}

}  // namespace
}  // namespace folivant::desktop
