// The windows where printers show: the printer dialog, the options that ask a printer for its borders, a run that is
// cancelled, and a system without any printer. Needs the queues "Plain", "Borders" and "Refusing" (print_test.py starts
// them), the second suite a system without any; FOLIVANT_JOBS names the folder in which documents arrive.
#include "desktop/FieldLabels.h"
#include "desktop/FittingTexts.h"
#include "desktop/Manuals.h"
#include "find/StandIn.h"
#include "res/Controls.h"

namespace folivant::desktop {
namespace {

constexpr DWORD kDocumentComes = 3'000;  // milliseconds; one that is on its way takes less than one second

std::wstring QueueFolder(const std::wstring& queue) {
  wchar_t folder[MAX_PATH];
  GetEnvironmentVariableW(L"FOLIVANT_JOBS", folder, MAX_PATH);
  return std::wstring(folder) + L"\\" + queue + L"\\";
}

std::vector<std::wstring> FilesOf(const std::wstring& queue, const std::wstring& pattern) {
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW((QueueFolder(queue) + pattern).c_str(), &found);
  std::vector<std::wstring> files;
  for (BOOL more = search != INVALID_HANDLE_VALUE; more != 0; more = FindNextFileW(search, &found)) {
    files.push_back(QueueFolder(queue) + found.cFileName);
  }
  FindClose(search);
  return files;
}

/// The documents that have arrived on the queue.
int Documents(const std::wstring& queue) {
  return static_cast<int>(FilesOf(queue, L"*.pdf").size());
}

/// How many documents of the queue were called that.
int DocumentsNamed(const std::wstring& queue, const std::string& title) {
  int count = 0;
  for (const std::wstring& job : FilesOf(queue, L"*.job")) {
    count += ReadBytes(job).starts_with("title=" + title + "\n") ? 1 : 0;
  }
  return count;
}

std::wstring Printer(const std::wstring& key) {
  return ReadStore(L"Settings", key).value_or(L"(missing)");
}

std::wstring Chosen(Window window, int list) {
  return window.TextOf(list);
}

class Printers : public DesktopTest {
 protected:
  Printers() {
    for (int i = 0; i < 3; ++i) {
      scratch.File(L"Data\\File" + std::to_wstring(i) + L".txt", "12345");
    }
    WriteStore(L"Settings", L"Path", scratch / L"Data");
    WriteStore(L"Settings", L"PrinterName", L"Borders");
  }

  Window OpenOptions(const Program& program, const std::wstring& language = L"english.ini") {
    main = program.WaitForWindow(L"Folivant");
    main.Press(cmdOptions);
    options = program.WaitForWindow(Message(204, language));
    return options;
  }
  Window OpenPrinters(const Program& program) {
    OpenOptions(program);
    Page(options, cmdPrinter).Press(cmdPrinter);
    printers = program.WaitForWindow(L"Folivant - Select printer");
    return printers;
  }
  /// The child of the options window that holds the control: one of its pages.
  static Window Page(Window window, int control) {
    for (HWND child = GetWindow(window.Handle(), GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
      if (GetDlgItem(child, control) != nullptr) {
        return Window(child);
      }
    }
    return window;
  }
  void Confirm() {
    options.Press(cmdOK);
    EXPECT_TRUE(options.WaitUntilGone());
  }

  Scratch scratch;
  Window main, options, printers;
};

TEST_F(Printers, TheDialogShowsThePrintersOfTheSystemAndTheStoredChoices) {
  WriteStore(L"Settings", L"PrinterQuality", L"-4");
  WriteStore(L"Settings", L"PrinterPaperBin", L"2");
  WriteStore(L"Settings", L"PrinterDuplex", L"3");
  const Program program(L"");
  OpenPrinters(program);
  EXPECT_EQ(SendMessageW(printers.Control(cmbPrinter).Handle(), CB_GETCOUNT, 0, 0), 3);
  EXPECT_EQ(Chosen(printers, cmbPrinter), L"Borders");
  EXPECT_EQ(Chosen(printers, cmbQuality), L"High");
  EXPECT_EQ(Chosen(printers, cmbPaperBin), L"Lower");
  EXPECT_FALSE(printers.IsChecked(optDuplex));
  EXPECT_FALSE(printers.IsChecked(optDuplex + 1));
  EXPECT_TRUE(printers.IsChecked(optDuplex + 2));
  for (int picture = picDuplex; picture < picDuplex + 3; ++picture) {
    EXPECT_NE(SendMessageW(printers.Control(picture).Handle(), STM_GETIMAGE, IMAGE_BITMAP, 0), 0);
  }
}

TEST_F(Printers, OkChangesTheChoicesAndTheOptionsOkStoresThem) {
  const Program program(L"");
  OpenPrinters(program);
  const auto plain = static_cast<int>(SendMessageW(printers.Control(cmbPrinter).Handle(), CB_FINDSTRINGEXACT,
                                                   static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(L"Plain")));
  ASSERT_GE(plain, 0);
  printers.Choose(cmbPrinter, plain);
  printers.Choose(cmbQuality, 0);
  printers.Choose(cmbPaperBin, 3);
  printers.Click(optDuplex + 1);
  printers.Press(cmdOK);
  ASSERT_TRUE(printers.WaitUntilGone());
  EXPECT_EQ(Page(options, lblPrinter).TextOf(lblPrinter), L"Plain");
  EXPECT_EQ(Printer(L"PrinterName"), L"Borders") << "nothing is stored before the options are confirmed";
  Confirm();
  EXPECT_EQ(Printer(L"PrinterName"), L"Plain");
  EXPECT_EQ(Printer(L"PrinterQuality"), L"-1");
  EXPECT_EQ(Printer(L"PrinterPaperBin"), L"4");
  EXPECT_EQ(Printer(L"PrinterDuplex"), L"2");
}

TEST_F(Printers, EveryLanguageFitsIntoTheDialog) {
  const FittingTexts texts;
  texts.ExpectResolutionAskedFor();
  for (const std::wstring& language : LanguageFiles()) {
    WriteStore(L"Settings", L"Language", language);
    const Program program(L"");
    program.WaitForWindow(L"Folivant").Press(cmdOptions);
    options = program.WaitForWindow(Message(204, language));
    Page(options, cmdPrinter).Press(cmdPrinter);
    printers = program.WaitForWindow(Message(205, language));
    EXPECT_EQ(printers.TextOf(cmdCancel), Message(42, language)) << "the language is in use";
    texts.ExpectNothingClipped(printers, printers.Text());
    EXPECT_EQ(ExpectEveryFieldLabelled(printers), 3);
  }
}

TEST_F(Printers, F1OpensTheManual) {
  if (!MayReplaceTheBrowser()) {
    GTEST_SKIP() << "would open the user's browser";
  }
  const BrowserStandIn browser(scratch.Path());
  const Program program(L"");
  OpenPrinters(program).Activate();
  PressKey(VK_F1);
  browser.ExpectOpened("english.html");
}

TEST_F(Printers, CancelChangesNothing) {
  const Program program(L"");
  OpenPrinters(program);
  printers.Choose(cmbQuality, 3);
  printers.Press(cmdCancel);
  ASSERT_TRUE(printers.WaitUntilGone());
  EXPECT_EQ(Page(options, lblPrinter).TextOf(lblPrinter), L"Borders");
  Confirm();
  EXPECT_EQ(Printer(L"PrinterQuality"), L"-2");
}

TEST_F(Printers, AStoredPrinterThatIsGoneIsNotChosenAndOkStoresAnEmptyName) {
  WriteStore(L"Settings", L"PrinterName", L"Gone");
  const Program program(L"");
  OpenPrinters(program);
  EXPECT_EQ(SendMessageW(printers.Control(cmbPrinter).Handle(), CB_GETCURSEL, 0, 0), CB_ERR);
  printers.Press(cmdOK);
  ASSERT_TRUE(printers.WaitUntilGone());
  EXPECT_EQ(Page(options, lblPrinter).TextOf(lblPrinter), L"");
  Confirm();
  EXPECT_EQ(Printer(L"PrinterName"), L"");
}

TEST_F(Printers, WithoutAChoiceTheDefaultPrinterIsStoredAtTheEnd) {
  WriteStore(L"Settings", L"PrinterName", L"(no printer)");
  const Program program(L"");
  main = program.WaitForWindow(L"Folivant");
  main.Press(cmdCancel);
  EXPECT_EQ(program.WaitForExit(), 0u);
  EXPECT_EQ(Printer(L"PrinterName"), L"Plain");
}

TEST_F(Printers, WithoutAChoiceTheOptionsShowTheDefaultPrinter) {
  WriteStore(L"Settings", L"PrinterName", L"(no printer)");
  const Program program(L"");
  OpenPrinters(program);
  EXPECT_EQ(Page(options, lblPrinter).TextOf(lblPrinter), L"Plain");
  EXPECT_EQ(Chosen(printers, cmbPrinter), L"Plain");
}

TEST_F(Printers, AClickOnAPictureChoosesItsMode) {
  const Program program(L"");
  OpenPrinters(program);
  printers.Control(picDuplex + 2).ClickInside();
  EXPECT_TRUE(WaitUntil([this] { return printers.IsChecked(optDuplex + 2); }));
  EXPECT_FALSE(printers.IsChecked(optDuplex));
}

// "Borders" cannot print on 18 points on the left (6.35 mm), 36 at the top (12.7), 30 on the right (10.58) and 24 at
// the bottom (8.47).
class SmallMargins : public Printers {
 protected:
  /// Asks for margins that are too small on the left and at the top, and returns the question.
  Window Ask() {
    OpenOptions(program);
    const Window page = Page(options, txtLeft);
    page.SetText(txtLeft, L"6");
    page.SetText(txtTop, L"5");
    options.Press(cmdOK);
    const Window question = program.WaitForBox(options);
    std::wstring text = question.BoxText();
    std::erase(text, L'\r');
    EXPECT_EQ(text, Message(102) + L"\n" + Message(101));
    EXPECT_TRUE(question.HasButton(IDYES) && question.HasButton(IDNO) && question.HasButton(IDCANCEL));
    return question;
  }

  const Program program{L""};
};

TEST_F(SmallMargins, YesRaisesThem) {
  Ask().Answer(IDYES);
  ASSERT_TRUE(options.WaitUntilGone());
  EXPECT_EQ(Printer(L"MarginLeft"), L"7");
  EXPECT_EQ(Printer(L"MarginTop"), L"13");
  EXPECT_EQ(Printer(L"MarginRight"), L"20");
  EXPECT_EQ(Printer(L"MarginBottom"), L"20");
}

TEST_F(SmallMargins, NoKeepsThemAsEntered) {
  Ask().Answer(IDNO);
  ASSERT_TRUE(options.WaitUntilGone());
  EXPECT_EQ(Printer(L"MarginLeft"), L"6");
  EXPECT_EQ(Printer(L"MarginTop"), L"5");
}

TEST_F(SmallMargins, CancelGoesBackToTheOptions) {
  Ask().Answer(IDCANCEL);
  EXPECT_TRUE(options.IsShown());
  EXPECT_EQ(Page(options, txtLeft).TextOf(txtLeft), L"6") << "what was entered is still there";
  EXPECT_NE(Printer(L"MarginLeft"), L"6") << "nothing is stored";
  options.Answer(cmdCancel);
}

/// What fits on no page of an A4 sheet.
class NoRoom : public Printers {
 protected:
  /// Confirms the options, which have to refuse in these words, to stay open on the page of `field` with nothing
  /// stored, and to give `field` the focus.
  void ExpectRefused(const Program& program, const std::wstring& message, int field, Window question = Window()) {
    if (question) {
      question.Answer(IDNO);
    } else {
      options.Press(cmdOK);
    }
    const Window box = program.WaitForBox(options);
    EXPECT_EQ(box.BoxText(), message);
    box.Answer(IDOK);
    EXPECT_TRUE(options.StaysReady());
    EXPECT_TRUE(options.Control(field).IsShown());
    GUITHREADINFO focus{};
    focus.cbSize = sizeof focus;
    GetGUIThreadInfo(GetWindowThreadProcessId(options.Handle(), nullptr), &focus);
    EXPECT_EQ(focus.hwndFocus, options.Control(field).Handle());
  }
  static std::wstring With(int message, const std::wstring& object) {
    std::wstring text = Message(message);
    return text.replace(text.find(L"%1"), 2, object);
  }
};

TEST_F(NoRoom, MillimetresReadAsInchesKeepTheOptionsOpen) {
  const Program program(L"");
  OpenOptions(program);
  options.Click(optInches);
  ExpectRefused(program, With(187, L"Left: 20; Top: 15; Right: 20; Bottom: 20 in"), txtLeft);
  EXPECT_NE(Printer(L"Inches"), L"True") << "nothing is stored";
  options.Click(optMilimeter);
  Confirm();
  EXPECT_EQ(Printer(L"Inches"), L"False");
  EXPECT_EQ(Printer(L"MarginLeft"), L"20");
}

TEST_F(NoRoom, TheQuestionAboutSmallMarginsComesFirst) {
  const Program program(L"");
  OpenOptions(program);
  options.SetText(txtLeft, L"6");
  options.SetText(txtBottom, L"290");
  options.Press(cmdOK);
  const Window question = program.WaitForBox(options);
  EXPECT_TRUE(question.BoxText().starts_with(Message(102)));
  ExpectRefused(program, With(187, L"Left: 6; Top: 15; Right: 20; Bottom: 290 mm"), txtLeft, question);
  options.Answer(cmdCancel);
}

TEST_F(NoRoom, AStoredFontThatFitsNoPageIsNamed) {
  WriteStore(L"Settings", L"FontSize", L"0");
  const Program program(L"");
  OpenOptions(program);
  ExpectRefused(program, With(188, L"Courier New, 0"), cmdFont);
  options.Answer(cmdCancel);
}

TEST_F(NoRoom, ARunSaysTheSameAndTheWindowWorksOn) {
  WriteStore(L"Settings", L"Inches", L"True");
  const int before = Documents(L"Borders");
  const Program program(L"");
  main = program.WaitForWindow(L"Folivant");
  main.Press(cmdOK);
  const Window box = program.WaitForWindow(L"Folivant", main);
  EXPECT_EQ(box.BoxText(), With(187, L"Left: 20; Top: 15; Right: 20; Bottom: 20 in"));
  box.Answer(IDOK);
  EXPECT_TRUE(WaitUntil([this] { return main.IsEnabled(); }));
  EXPECT_TRUE(program.IsRunning());
  EXPECT_FALSE(WaitUntil([before] { return Documents(L"Borders") != before; }, kDocumentComes));
}

TEST_F(Printers, AListFromAFindWindowIsNamedAfterTheWindowInTheQueue) {
  const tests::StandIn window(L"Search Results in Reports", {"Report.txt\tC:\\Data\t12 KB\tText\t1/2/2001 3:04 PM"});
  const int before = Documents(L"Borders");
  const Program program(L"/f " + scratch.FilterFile(L"five.fvf", {"Format=5"}) + L" /t p /g");
  EXPECT_EQ(program.WaitForExit(), 0u);
  ASSERT_TRUE(WaitUntil([before] { return Documents(L"Borders") == before + 1; }));
  EXPECT_EQ(DocumentsNamed(L"Borders", "Folivant - Search Results in Reports"), 1);
}

TEST_F(Printers, ARunFromTheWindowPrintsAndEndsTheProgram) {
  const int before = Documents(L"Borders");
  const Program program(L"");
  main = program.WaitForWindow(L"Folivant");
  main.Press(cmdOK);
  EXPECT_EQ(program.WaitForExit(), 0u);
  EXPECT_TRUE(WaitUntil([before] { return Documents(L"Borders") == before + 1; }));
  EXPECT_EQ(Printer(L"TextWidth"), L"80") << "closing saved the settings";
}

TEST_F(Printers, ARunLeavesTheWindowOpenWhereTheSettingSaysSo) {
  WriteStore(L"Settings", L"ExitWhenDone", L"False");
  const int before = Documents(L"Borders");
  const Program program(L"");
  main = program.WaitForWindow(L"Folivant");
  main.Press(cmdOK);
  EXPECT_TRUE(WaitUntil([before] { return Documents(L"Borders") == before + 1; }));
  EXPECT_TRUE(main.StaysReady());
  main.Press(cmdCancel);
  EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(Printers, ACancelledRunPrintsNothing) {
  // Many directories of some files: the walk asks for Cancel between them.
  for (int directory = 0; directory < 150; ++directory) {
    for (int file = 0; file < 20; ++file) {
      scratch.File(L"Data\\D" + std::to_wstring(directory) + L"\\F" + std::to_wstring(file));
    }
  }
  const int before = Documents(L"Borders");
  const Program program(L"");
  main = program.WaitForWindow(L"Folivant");
  main.Press(cmdOK);
  const Window progress = program.WaitForWindow(L"Folivant - Printing");
  progress.Press(cmdCancel);
  program.WaitForBox(progress).Answer(IDYES);
  ASSERT_TRUE(progress.WaitUntilGone());
  EXPECT_TRUE(main.IsEnabled());
  EXPECT_FALSE(WaitUntil([before] { return Documents(L"Borders") != before; }, kDocumentComes));
  main.Press(cmdCancel);
  EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(Printers, AfterAFailedRunTheWindowWorksAgain) {
  WriteStore(L"Settings", L"PrinterName", L"Refusing");
  const Program program(L"");
  main = program.WaitForWindow(L"Folivant");
  main.Press(cmdOK);
  const Window box = program.WaitForWindow(L"Folivant", main);
  EXPECT_TRUE(box.BoxText().starts_with(L"Cannot print on \"Refusing\": "));
  box.Answer(IDOK);
  EXPECT_TRUE(WaitUntil([this] { return main.IsEnabled(); }));
  EXPECT_TRUE(program.IsRunning());
  EXPECT_EQ(program.Windows().size(), 1u) << "the progress window is gone";
}

/// Run where no print server answers.
class NoPrinters : public Printers {
 protected:
  NoPrinters() {
    WriteStore(L"Settings", L"PrinterName", L"(no printer)");
    WriteStore(L"Settings", L"OutputTo", L"0");
  }
};

TEST_F(NoPrinters, TheWindowOpensWithTheFileDestination) {
  const Program program(L"");
  main = program.WaitForWindow(L"Folivant");
  EXPECT_TRUE(main.IsChecked(optFile));
  EXPECT_FALSE(main.IsChecked(optPrinter));
}

TEST_F(NoPrinters, ThePrinterButtonSaysSo) {
  const Program program(L"");
  OpenOptions(program);
  Page(options, cmdPrinter).Press(cmdPrinter);
  const Window box = program.WaitForBox(options);
  EXPECT_EQ(box.BoxText(), L"No printer is installed.");
  box.Answer(IDOK);
  EXPECT_TRUE(options.IsEnabled());
}

TEST_F(NoPrinters, MarginsMayLeaveNoRoom) {
  const Program program(L"");
  OpenOptions(program);
  Page(options, txtRight).SetText(txtRight, L"500");
  Confirm();
  EXPECT_EQ(Printer(L"MarginRight"), L"500");
}

TEST_F(NoPrinters, ARunToThePrinterSaysSoInTheSameWords) {
  const Program program(L"");
  main = program.WaitForWindow(L"Folivant");
  main.Click(optPrinter);
  main.Press(cmdOK);
  const Window box = program.WaitForBox(main);
  EXPECT_EQ(box.BoxText(), L"No printer is installed.");
  box.Answer(IDOK);
  EXPECT_TRUE(main.StaysReady());
  EXPECT_EQ(program.Windows().size(), 1u) << "no run has begun";
}

TEST_F(NoPrinters, TheOptionsShowThatInTheUsersLanguageAndStoreTheFixedName) {
  WriteStore(L"Settings", L"Language", L"german.ini");
  const Program program(L"");
  OpenOptions(program, L"german.ini");
  EXPECT_EQ(Page(options, lblPrinter).TextOf(lblPrinter), L"(kein Drucker)");
  Confirm();
  EXPECT_EQ(Printer(L"PrinterName"), L"(no printer)");
}

TEST_F(NoPrinters, MarginsHaveNoMinimum) {
  const Program program(L"");
  OpenOptions(program);
  Page(options, txtLeft).SetText(txtLeft, L"0");
  Confirm();
  EXPECT_EQ(Printer(L"MarginLeft"), L"0");
}

}  // namespace
}  // namespace folivant::desktop
