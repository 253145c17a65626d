// The main window: what it shows, each destination from its OK button, filter files, and what comes back at the next
// start.
#include "desktop/MainWindow.h"
#include "desktop/FittingTexts.h"

namespace folivant::desktop {
namespace {

using MainWindow = MainWindowTest;

TEST_F(MainWindow, ShowsTheNextListingAndItsTexts) {
  const Program program(Argument());
  const Window main = Main(program);
  EXPECT_TRUE(main.TextOf(lblPath).ends_with(L"\\Data")) << "the tail of a path is never cut";
  EXPECT_EQ(main.TextOf(lblFilter), L"*.*");
  EXPECT_EQ(main.TextOf(lblFormat), Message(25));
  EXPECT_TRUE(main.IsChecked(optFile));
  const std::pair<int, int> captions[] = {{Label1, 0},      {Label3, 1},    {Label2, 2},     {fraTo, 3},
                                          {cmdBrowse, 4},   {cmdFilter, 5}, {cmdFormat, 6},  {optPrinter, 7},
                                          {optFile, 8},     {optScreen, 9}, {cmdLoad, 10},   {cmdSave, 11},
                                          {cmdOptions, 12}, {cmdOK, 13},    {cmdCancel, 14}, {cmdHelp, 15}};
  for (const auto& [control, message] : captions) {
    EXPECT_EQ(main.TextOf(control), Message(message)) << control;
  }
  EXPECT_EQ(main.DefaultButton(), cmdOK);
  Close(program, main);
}

TEST_F(MainWindow, AFileRunAppliesExtensionRuleAndOverwriteQuestion) {
  const std::wstring file = scratch / L"list.txt";
  {
    const Program program(Argument());
    const Window main = Main(program);
    main.Press(cmdOK);
    Confirm(program.WaitForBox(main), scratch / L"list", 3);  // CSV: gets ".txt", on purpose
    EXPECT_EQ(program.WaitForExit(), 0u) << "ends after a file run, as \"ExitWhenDone\" says";
  }
  EXPECT_NE(ReadBytes(file).find("A.txt;"), std::string::npos) << ReadBytes(file);
  EXPECT_EQ(ReadStore(L"Settings", L"TextWidth"), L"80") << "closing saved the settings";
  EXPECT_TRUE(ReadStore(L"Settings", L"Path").value_or(L"").ends_with(L"\\Data"));

  scratch.File(L"list.txt", "old");
  const Program program(Argument());
  const Window main = Main(program);
  main.Press(cmdOK);
  const Window dialog = program.WaitForBox(main);
  Confirm(dialog, file, 0);
  EXPECT_TRUE(dialog.WaitUntilGone());
  const Window question = program.WaitForBox(main);
  std::wstring text = question.BoxText();
  std::erase(text, L'\r');
  EXPECT_EQ(text, Message(169) + L"\n" + file + L"\n" + Message(170));
  EXPECT_EQ(question.DefaultButton(), IDNO);
  question.Answer(IDNO);
  EXPECT_EQ(ReadBytes(file), "old");
  const Window again = program.WaitForBox(main);
  Confirm(again, L"");  // the name just chosen is still there
  EXPECT_TRUE(again.WaitUntilGone());
  program.WaitForBox(main).Answer(IDYES);
  EXPECT_EQ(program.WaitForExit(), 0u);
  EXPECT_NE(ReadBytes(file).find("A.txt"), std::string::npos);
}

TEST_F(MainWindow, ACancelledSaveDialogListsNothing) {
  const Program program(Argument());
  const Window main = Main(program);
  main.Press(cmdOK);
  const Window dialog = program.WaitForBox(main);
  PostMessageW(dialog.Handle(), WM_COMMAND, IDCANCEL, 0);
  EXPECT_TRUE(dialog.WaitUntilGone());
  EXPECT_TRUE(WaitUntil([&] { return main.IsEnabled(); }));
  EXPECT_TRUE(WaitUntil([&] { return program.Windows().size() == 1; })) << "no message";
  Close(program, main);
}

// The program itself stands in for the viewer: started with a file, it shows that it got one.
TEST_F(MainWindow, TwoScreenRunsWriteTheSameFileAndStartTheViewer) {
  wchar_t temporary[MAX_PATH];
  GetTempPathW(MAX_PATH, temporary);
  const std::wstring file = std::wstring(temporary) + L"~fv00001.tmp";
  WriteStore(L"Settings", L"TextViewer", ProgramPath());
  const Program program(Argument());
  const Window main = Main(program);
  main.Click(optScreen);
  for (int run = 1; run <= 2; ++run) {
    DeleteFileW(file.c_str());
    main.Press(cmdOK);
    Window viewer;
    ASSERT_TRUE(WaitUntil([&] {
      viewer = Window();
      for (HWND each = GetTopWindow(nullptr); each != nullptr; each = GetWindow(each, GW_HWNDNEXT)) {
        DWORD owner = 0;
        GetWindowThreadProcessId(each, &owner);
        if (owner != program.Id() && IsWindowVisible(each) && Window(each).Text() == L"Folivant") {
          viewer = Window(each);
        }
      }
      return static_cast<bool>(viewer);
    })) << "run "
        << run;
    EXPECT_EQ(viewer.TextOf(lblFormat), Message(144));
    viewer.Close();
    EXPECT_TRUE(viewer.WaitUntilGone());
    EXPECT_NE(ReadBytes(file).find("A.txt"), std::string::npos) << "run " << run;
    EXPECT_TRUE(main.IsEnabled()) << "the window stays open";
  }
  Close(program, main);
}

TEST_F(MainWindow, TheViewerGetsAFileInAFolderWithBlanksAsOneParameter) {
  wchar_t before[MAX_PATH];
  GetTempPathW(MAX_PATH, before);
  SetEnvironmentVariableW(L"TMP", scratch.Dir(L"with blanks").c_str());
  WriteStore(L"Settings", L"TextViewer", scratch.File(L"viewer.cmd", "@copy %1 \"%~dp0seen.txt\" >nul\r\n"));
  const Program program(Argument());
  SetEnvironmentVariableW(L"TMP", before);
  const Window main = Main(program);
  main.Click(optScreen);
  main.Press(cmdOK);
  EXPECT_TRUE(WaitUntil([&] { return Exists(scratch / L"seen.txt"); }));
  EXPECT_TRUE(WaitUntil([&] { return main.IsEnabled(); }));
  Close(program, main);
}

TEST_F(MainWindow, APathWithAmpersandsIsMeasuredAsItIsShown) {
  std::wstring below = L"R&D";
  for (int level = 0; level < 20; ++level) {
    below += L"\\R&D";
  }
  const std::wstring folder = scratch.Dir(below);
  const Program program(L'"' + folder + L'"');
  const Window main = Main(program);
  const Window label = main.Control(lblPath);
  RECT room{};
  GetClientRect(label.Handle(), &room);
  EXPECT_LE(FittingTexts().WidthOf(label.Text(), DT_NOPREFIX), room.right) << testing::PrintToString(label.Text());
  Close(program, main);
}

TEST_F(MainWindow, AFailedRunSaysSoAndRestoresTheWindow) {
  const std::wstring file = scratch.File(L"held.txt", "held");
  const platform::OwnedFile held(CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  const Program program(Argument());
  const Window main = Main(program);
  main.Press(cmdOK);
  const Window dialog = program.WaitForBox(main);
  Confirm(dialog, file, 0);
  EXPECT_TRUE(dialog.WaitUntilGone());
  program.WaitForBox(main).Answer(IDYES);
  const Window box = program.WaitForWindow(L"Folivant", main);  // by its title: the progress window may still be there
  EXPECT_NE(box.BoxText().find(file), std::wstring::npos) << "names the file";
  EXPECT_NE(box.BoxText().find(L"(32)"), std::wstring::npos) << "and the system's number";
  box.Answer(IDOK);
  EXPECT_TRUE(WaitUntil([&] { return main.IsEnabled(); }));
  EXPECT_TRUE(WaitUntil([&] { return program.Windows().size() == 1; })) << "the progress window is gone";
  Close(program, main);
}

TEST_F(MainWindow, AFileArgumentShowsThePathListAndDisablesThreeButtons) {
  const Program program(L'"' + scratch.File(L"paths.lst", "C:\\\r\n") + L'"');
  const Window main = Main(program);
  EXPECT_EQ(main.TextOf(lblPath), Message(144));
  EXPECT_EQ(main.TextOf(lblFormat), Message(144));
  for (const int button : {cmdBrowse, cmdFilter, cmdFormat}) {
    EXPECT_FALSE(main.Control(button).IsEnabled());
  }
  EXPECT_TRUE(main.Control(cmdOptions).IsEnabled());
  WriteStore(L"Settings", L"Format", L"2");
  Close(program, main);
  EXPECT_EQ(ReadStore(L"Settings", L"Format"), L"2") << "this style is never stored";
}

TEST_F(MainWindow, AFilterFileCarriesTheListingAndNoHabits) {
  const std::wstring file = scratch / L"set.fvf";
  const Program program(Argument());
  const Window main = Main(program);
  main.Press(cmdSave);
  const Window dialog = program.WaitForBox(main);
  Confirm(dialog, scratch / L"set");  // ".fvf" is added
  EXPECT_TRUE(dialog.WaitUntilGone());
  ASSERT_TRUE(WaitUntil([&] { return Exists(file) && main.IsEnabled(); }));
  const auto value = [&](const wchar_t* key) {
    wchar_t text[300];
    GetPrivateProfileStringW(L"Folivant 3.5", key, L"(missing)", text, 300, file.c_str());
    return std::wstring(text);
  };
  EXPECT_EQ(value(L"FilterName"), L"*.*");
  EXPECT_EQ(value(L"OutputTo"), L"1");
  EXPECT_TRUE(value(L"Path").ends_with(L"\\Data"));
  for (const wchar_t* key :
       {L"TextViewer", L"TextWidth", L"Language", L"PrinterName", L"ExitWhenDone", L"FilesFirst"}) {
    EXPECT_EQ(value(key), L"(missing)") << testing::PrintToString(std::wstring(key));
  }

  WritePrivateProfileStringW(L"Folivant 3.5", L"FilterName", L"*.doc", file.c_str());
  WritePrivateProfileStringW(L"Folivant 3.5", L"Format", L"4", file.c_str());
  WritePrivateProfileStringW(L"Folivant 3.5", L"OutputTo", L"2", file.c_str());
  main.Press(cmdLoad);
  const Window open = program.WaitForBox(main);
  Confirm(open, file);
  EXPECT_TRUE(open.WaitUntilGone());
  EXPECT_TRUE(WaitUntil([&] { return main.TextOf(lblFilter) == L"*.doc"; }));
  EXPECT_EQ(main.TextOf(lblFormat), Message(28));
  EXPECT_TRUE(main.IsChecked(optScreen));
  EXPECT_TRUE(main.TextOf(lblPath).ends_with(L"\\Data"));
  Close(program, main);
}

TEST_F(MainWindow, AFilterFileHasTheFieldsOfExactRecordsOnlyWhileTheyAreChosen) {
  const Program program(Argument());
  const Window main = Main(program);
  const auto choose = [&](bool on) {
    const Window options = Open(program, main, cmdOptions, 204);
    for (const int box : {chkOwner, chkLinks, chkSha256, chkApostrophe}) {
      if (options.IsChecked(box) != on) {
        options.Click(box);
      }
    }
    options.Answer(cmdOK);
  };
  const auto save = [&](const wchar_t* name) {
    const std::wstring file = scratch / name;
    const bool asks = Exists(file);
    main.Press(cmdSave);
    const Window dialog = program.WaitForBox(main);
    Confirm(dialog, file);
    if (asks) {
      program.WaitForBox(dialog).Answer(IDYES);
    }
    EXPECT_TRUE(dialog.WaitUntilGone());
    EXPECT_TRUE(WaitUntil([&] { return main.IsEnabled(); }));
    SendMessageW(main.Handle(), WM_NULL, 0, 0);  // answered once the click is: the file is written by then
    return ReadBytes(file);
  };
  const std::string without = save(L"plain.fvf");
  EXPECT_EQ(without.find("Record"), std::string::npos) << without;
  EXPECT_EQ(without.find("CsvApostrophe"), std::string::npos) << without;
  choose(true);
  const std::string with = save(L"exact.fvf");
  for (const char* line :
       {"RecordOwner=True\r\n", "RecordLinks=True\r\n", "RecordSha256=True\r\n", "CsvApostrophe=True\r\n"}) {
    EXPECT_NE(with.find(line), std::string::npos) << line << with;
  }
  choose(false);
  EXPECT_EQ(save(L"exact.fvf"), without) << "to the byte what it was";
  EXPECT_EQ(save(L"plain.fvf"), without);

  scratch.File(L"exact.fvf", with);
  main.Press(cmdLoad);
  const Window open = program.WaitForBox(main);
  Confirm(open, scratch / L"exact.fvf");
  EXPECT_TRUE(open.WaitUntilGone());
  EXPECT_TRUE(main.StaysReady());
  const Window options = Open(program, main, cmdOptions, 204);
  for (const int box : {chkOwner, chkLinks, chkSha256, chkApostrophe}) {
    EXPECT_TRUE(options.IsChecked(box)) << box << " came with the file";
  }
  options.Answer(cmdCancel);
  Close(program, main);
}

TEST_F(MainWindow, AFileWithoutSettingsIsAskedAboutBeforeTheDefaultsAreLoaded) {
  WriteStore(L"Filter", L"FilterName", L"*.doc");
  const std::wstring file = scratch.File(L"letter.txt", "Dear reader,\r\n");
  std::wstring question = Message(175);
  question.replace(question.find(L"%1"), 2, file);
  question.replace(question.find(L"\\n"), 2, L"\n");
  const Program program(Argument());
  const Window main = Main(program);
  for (const int answer : {IDNO, IDYES}) {
    main.Press(cmdLoad);
    const Window open = program.WaitForBox(main);
    Confirm(open, file);
    EXPECT_TRUE(open.WaitUntilGone());
    const Window box = program.WaitForBox(main);
    std::wstring text = box.BoxText();
    std::erase(text, L'\r');
    EXPECT_EQ(text, question);
    EXPECT_EQ(box.DefaultButton(), IDNO);
    box.Answer(answer);
    EXPECT_TRUE(main.StaysReady());
    EXPECT_EQ(main.TextOf(lblFilter), answer == IDNO ? L"*.doc" : L"*.*");
  }
  Close(program, main);
}

TEST_F(MainWindow, AnUnknownLanguageFileFallsBackToEnglish) {
  WriteStore(L"Settings", L"Language", L"nowhere.ini");
  const Program program(Argument());
  const Window main = Main(program);
  EXPECT_EQ(main.TextOf(cmdBrowse), Message(4));
  Close(program, main);
}

TEST_F(MainWindow, ComesBackWhereItStood) {
  RECT moved{};
  {
    const Program program(Argument());
    const Window main = Main(program);
    SetWindowPos(main.Handle(), nullptr, 90, 70, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    WaitUntil([&] { return main.Rectangle().left == 90; }, 2'000);
    moved = main.Rectangle();
    Close(program, main);
  }
  {
    const Program program(Argument());
    const Window main = Main(program);
    EXPECT_TRUE(WaitUntil([&] { return std::abs(main.Rectangle().left - moved.left) <= 8; }, 3'000));
    EXPECT_LE(std::abs(main.Rectangle().top - moved.top), 40) << "but for the frame of the window manager";
    Close(program, main);
  }
  WriteStore(L"Settings", L"WindowPlace", L"-20000,-20000");
  const Program program(Argument());
  const Window main = Main(program);
  EXPECT_GT(main.Rectangle().left, -100) << "that screen does not exist";
  Close(program, main);
}

const std::pair<int, bool> kColumns[] = {{chkName, true},  {chkDOS, true},      {chkSize, false},
                                         {chkTime, false}, {chkAttr, true},     {chkTFiles, false},
                                         {chkTSize, true}, {chkTTFiles, false}, {chkTTSize, true}};
const std::pair<int, const wchar_t*> kOptionTexts[] = {
    {txtWidth, L"132"},   {txtHeight, L"40"}, {txtLeft, L"1.5"},    {txtTop, L"0.5"},     {txtRight, L"0.75"},
    {txtBottom, L"1.25"}, {txtCopies, L"3"},  {txtHeader, L"Head"}, {txtFooter, L"Foot"}, {txtViewer, L"viewer.exe"}};

void SetTo(Window dialog, int box, bool on) {
  if (dialog.IsChecked(box) != on) {
    dialog.Click(box);
  }
}

void ChangeFilter(Window filter) {
  filter.SetText(txtName, L"*.doc");
  filter.Click(chkSize);
  filter.SetText(txtSize, L"12");
  filter.Choose(cmbSize, 1);
  filter.Click(chkDate);
  filter.SetDay(DTPickMin, 1999, 9, 25);
  filter.SetDay(DTPickMax, 2001, 2, 3);
  filter.Click(chkAttr);
  for (const int button : {chkY, chkN + 1, chkX + 2, chkY + 3, chkN + 4, optSize, optZA}) {
    filter.Click(button);
  }
}

void ExpectFilterIsBack(Window filter) {
  EXPECT_EQ(filter.TextOf(txtName), L"*.doc");
  EXPECT_EQ(filter.TextOf(txtSize), L"12");
  EXPECT_EQ(filter.TextOf(cmbSize), Message(215));
  EXPECT_EQ(filter.DayOf(DTPickMin), L"1999/09/25");
  EXPECT_EQ(filter.DayOf(DTPickMax), L"2001/02/03");
  for (const int button :
       {chkName, chkSize, chkDate, chkAttr, chkY, chkN + 1, chkX + 2, chkY + 3, chkN + 4, optSize, optZA}) {
    EXPECT_TRUE(filter.IsChecked(button)) << button;
  }
}

void ChangeOptions(Window options) {
  options.Click(optInches);
  for (const auto& [field, text] : kOptionTexts) {
    options.SetText(field, text);
  }
  options.Choose(cmbDate, 1);
  for (const int button : {chkFF, chkEmptyDirs, chkExit, optLand}) {
    options.Click(button);
  }
}

void ExpectOptionsAreBack(Window options) {
  for (const auto& [field, text] : kOptionTexts) {
    EXPECT_EQ(options.TextOf(field), text);
  }
  EXPECT_EQ(options.TextOf(cmbDate), L"mm/dd/yy");
  EXPECT_EQ(options.TextOf(lblUnit), Message(277));
  const std::pair<int, bool> buttons[] = {
      {optInches, true}, {chkFF, false}, {chkEmptyDirs, true}, {chkExit, false}, {optPort, true}};
  for (const auto& [button, on] : buttons) {
    EXPECT_EQ(options.IsChecked(button), on) << button << " (landscape does not come back, on purpose)";
  }
}

// Where there is no printer the file destination is chosen at every start; the rest comes back.
TEST_F(MainWindow, EverythingComesBackAtTheNextStartButTheOrientation) {
  {
    const Program program(Argument());
    const Window main = Main(program);
    const Window filter = Open(program, main, cmdFilter, 200);
    ChangeFilter(filter);
    filter.Answer(cmdOK);
    const Window format = Open(program, main, cmdFormat, 201);
    format.Click(optTree);
    const Window columns = Open(program, format, Command1, 202);
    for (const auto& [box, on] : kColumns) {
      SetTo(columns, box, on);
    }
    columns.SetText(txtLevel, L"4");
    columns.Answer(cmdOK);
    format.Answer(cmdOK);
    const Window options = Open(program, main, cmdOptions, 204);
    ChangeOptions(options);
    options.Answer(cmdOK);
    Close(program, main);
  }
  const Program program(L"");
  const Window main = Main(program);
  EXPECT_TRUE(main.TextOf(lblPath).ends_with(L"\\Data"));
  EXPECT_TRUE(main.TextOf(lblFilter).starts_with(L"*.doc, <"));
  EXPECT_EQ(main.TextOf(lblFormat), Message(27));
  const Window filter = Open(program, main, cmdFilter, 200);
  ExpectFilterIsBack(filter);
  filter.Answer(cmdCancel);
  const Window format = Open(program, main, cmdFormat, 201);
  EXPECT_TRUE(format.IsChecked(optTree));
  const Window columns = Open(program, format, Command1, 202);
  for (const auto& [box, on] : kColumns) {
    EXPECT_EQ(columns.IsChecked(box), on) << box;
  }
  EXPECT_EQ(columns.TextOf(txtLevel), L"4");
  columns.Answer(cmdCancel);
  format.Answer(cmdCancel);
  const Window options = Open(program, main, cmdOptions, 204);
  ExpectOptionsAreBack(options);
  options.Answer(cmdCancel);
  Close(program, main);
}

// The frame of a label may shorten its text; the tip shows all of it.
TEST_F(MainWindow, TipsHoldTheWholeDirectoryAndFilter) {
  const std::wstring deep = scratch.Dir(std::wstring(60, L'A') + L"b\\" + std::wstring(60, L'C') + L"d");
  WriteStore(L"Filter", L"FilterName", L"*.first, *.second, *.third, *.fourth, *.fifth, *.sixth, *.seventh");
  const Program program(L'"' + deep + L'"');
  const Window main = Main(program);
  ASSERT_NE(main.TextOf(lblPath), deep) << "too long for the label";
  const auto tip = [&](int label) {
    std::wstring text;
    main.Control(label).BringMouseOver();
    WaitUntil([&] {
      for (const Window& each : program.Windows()) {
        text = each.ClassName() == L"tooltips_class32" ? each.Text() : text;
      }
      return !text.empty();
    });
    return text;
  };
  EXPECT_EQ(lstrcmpiW(tip(lblPath).c_str(), deep.c_str()), 0) << "but for letter case";
  EXPECT_EQ(tip(lblFilter), main.TextOf(lblFilter));
  Close(program, main);
}

TEST_F(MainWindow, DialogsKeepTheMainWindowInert) {
  const Program program(Argument());
  const Window main = Main(program);
  const Window filter = Open(program, main, cmdFilter, 200);
  EXPECT_FALSE(main.IsEnabled());
  filter.Press(cmdCancel);
  EXPECT_TRUE(filter.WaitUntilGone());
  EXPECT_TRUE(WaitUntil([&] { return main.IsEnabled(); }));
  Close(program, main);
}

}  // namespace
}  // namespace folivant::desktop
