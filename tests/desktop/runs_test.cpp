// Runs from the main window: the kinds of file, and what the window does after a run.
#include "desktop/MainWindow.h"

namespace folivant::desktop {
namespace {

class Runs : public MainWindowTest {
 protected:
  /// A run to a file of a type (from 0) that leaves the window open; returns what it wrote.
  std::string RunToFile(const Program& program, Window main, const wchar_t* name, int type) const {
    main.Click(optFile);
    main.Press(cmdOK);
    const Window dialog = program.WaitForBox(main);
    Confirm(dialog, scratch / name, type);
    EXPECT_TRUE(dialog.WaitUntilGone());
    EXPECT_TRUE(main.StaysReady());
    return ReadBytes(scratch / name);
  }
  static std::wstring ScreenFile() {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    return std::wstring(folder) + L"~fv00001.tmp";
  }
  /// A script that leaves the mark "viewed" stands in for the viewer.
  void UseMarkingViewer() const {
    const std::string mark(viewed.begin(), viewed.end());
    WriteStore(L"Settings", L"TextViewer", scratch.File(L"viewer.cmd", "@echo viewed>\"" + mark + "\"\r\n"));
  }

  const std::wstring viewed = scratch / L"viewed";
};

TEST_F(Runs, TheSaveDialogOffersTheTypesInTheirOrder) {
  const Program program(Argument());
  const Window main = Main(program);
  main.Press(cmdOK);
  const Window dialog = program.WaitForBox(main);
  ASSERT_TRUE(WaitUntil([&] { return static_cast<bool>(dialog.Control(kFileTypes)); }));
  EXPECT_EQ(dialog.ItemsOf(kFileTypes),
            (std::vector{Message(18), Message(19), Message(20), std::wstring(L"CSV-file"), std::wstring(L"XML file"),
                         Message(29), Message(30), Message(31)}));
  PostMessageW(dialog.Handle(), WM_COMMAND, IDCANCEL, 0);
  EXPECT_TRUE(dialog.WaitUntilGone());
  Close(program, main);
}

TEST_F(Runs, EachTypeWritesAFileOfItsKind) {
  WriteStore(L"Settings", L"ExitWhenDone", L"False");
  const Program program(Argument());
  const Window main = Main(program);
  const std::string tabs = RunToFile(program, main, L"tabs.txt", 1);
  EXPECT_NE(tabs.find("\r\nA.txt\t5 b"), std::string::npos) << tabs;
  const std::string html = RunToFile(program, main, L"page.htm", 2);
  EXPECT_TRUE(html.starts_with("<html><head><title>\r\n")) << html;
  EXPECT_NE(html.find("<td>A.txt"), std::string::npos) << html;
  const std::string exact = RunToFile(program, main, L"exact.csv", 5);
  EXPECT_TRUE(exact.starts_with("\xEF\xBB\xBFpath,name,type,size,")) << exact;
  EXPECT_NE(exact.find("\\A.txt,A.txt,file,5,"), std::string::npos) << exact;
  const std::string lines = RunToFile(program, main, L"data.jsonl", 6);
  EXPECT_TRUE(lines.starts_with("{\"listing\":{")) << lines;
  const std::string sums = RunToFile(program, main, L"sums.sha256", 7);
  // echo -n 12345 | sha256sum
  EXPECT_NE(sums.find("5994471abb01112afcc18159f6cc74b4f511b99806da59b3caf5a9c173cacfc5  A.txt\n"), std::string::npos)
      << sums;
  const std::string xml = RunToFile(program, main, L"data.xml", 4);
  EXPECT_TRUE(xml.starts_with("<xml><generator>Folivant")) << xml;
  EXPECT_NE(xml.find("A.txt"), std::string::npos) << xml;
  EXPECT_TRUE(xml.ends_with("</xml>\r\n")) << xml;
  Close(program, main);
}

TEST_F(Runs, AScreenRunAfterACsvFileIsPlainText) {
  WriteStore(L"Settings", L"ExitWhenDone", L"False");
  UseMarkingViewer();
  DeleteFileW(ScreenFile().c_str());
  const Program program(Argument());
  const Window main = Main(program);
  EXPECT_NE(RunToFile(program, main, L"rows.csv", 3).find("A.txt;5 b"), std::string::npos);
  main.Click(optScreen);
  main.Press(cmdOK);
  EXPECT_TRUE(WaitUntil([&] { return Exists(viewed); }));
  const std::string listing = ReadBytes(ScreenFile());
  EXPECT_NE(listing.find("\r\nA.txt "), std::string::npos) << listing;
  EXPECT_EQ(listing.find(';'), std::string::npos) << listing;
  Close(program, main);
}

TEST_F(Runs, ACancelledRunToTheScreenOpensNoViewer) {
  UseMarkingViewer();
  for (const bool cancelled : {true, false}) {
    const Program program(cancelled ? LargeTree() : Argument());
    const Window main = Main(program);
    main.Click(optScreen);
    main.Press(cmdOK);
    if (cancelled) {
      const Window progress = program.WaitForWindow(Message(203), main);
      progress.Press(cmdCancel);
      program.WaitForBox(progress).Answer(IDYES);
      EXPECT_TRUE(progress.WaitUntilGone());
    }
    EXPECT_TRUE(main.StaysReady());
    EXPECT_EQ(WaitUntil([&] { return Exists(viewed); }, cancelled ? 3'000 : kPatience), !cancelled);
    Close(program, main);
  }
}

TEST_F(Runs, AViewerThatCannotBeStartedIsNamed) {
  const std::wstring viewer = scratch / L"no viewer.exe";
  WriteStore(L"Settings", L"TextViewer", viewer);
  const Program program(Argument());
  const Window main = Main(program);
  main.Click(optScreen);
  main.Press(cmdOK);
  const Window box = program.WaitForWindow(L"Folivant", main);
  EXPECT_TRUE(box.BoxText().starts_with(L"Cannot start \"" + viewer + L"\": "))
      << testing::PrintToString(box.BoxText());
  EXPECT_TRUE(box.BoxText().ends_with(L" (2)")) << "the system's number for a missing file";
  box.Answer(IDOK);
  EXPECT_TRUE(main.StaysReady());
  EXPECT_TRUE(WaitUntil([&] { return program.Windows().size() == 1; }));
  EXPECT_NE(ReadBytes(ScreenFile()).find("A.txt"), std::string::npos) << "the listing is there all the same";
  Close(program, main);
}

TEST_F(Runs, WithoutExitWhenDoneTheWindowStaysOpen) {
  WriteStore(L"Settings", L"ExitWhenDone", L"False");
  const Program program(Argument());
  const Window main = Main(program);
  EXPECT_NE(RunToFile(program, main, L"list.txt", 0).find("A.txt"), std::string::npos);
  // It goes a moment after the main window takes input again, so that no other program comes to the front.
  EXPECT_TRUE(WaitUntil([&] { return program.Windows().size() == 1; })) << "the progress window is gone";
  Close(program, main);
}

// Cursors have other handles in every process, so the shape itself cannot be asked for.
TEST_F(Runs, TheCursorOverTheWindowChangesForTheRun) {
  const Program program(LargeTree());
  const Window main = Main(program);
  const auto cursor = [main] {
    const RECT frame = main.Rectangle();
    static LONG step = 0;
    MoveMouse({frame.left + 12 + step++ % 3, frame.bottom - 12});  // a corner that the progress window leaves free
    CURSORINFO info{};
    info.cbSize = sizeof info;
    GetCursorInfo(&info);
    return info.hCursor;
  };
  main.Click(optScreen);
  main.Control(fraTo).BringMouseOver();
  cursor();
  Sleep(200);
  const HCURSOR before = cursor();
  main.Press(cmdOK);
  const Window progress = program.WaitForWindow(Message(203), main);
  EXPECT_TRUE(WaitUntil([&] { return cursor() != before; }));
  progress.Press(cmdCancel);
  program.WaitForBox(progress).Answer(IDYES);
  EXPECT_TRUE(progress.WaitUntilGone());
  EXPECT_TRUE(WaitUntil([&] { return cursor() == before; }));
  Close(program, main);
}

}  // namespace
}  // namespace folivant::desktop
