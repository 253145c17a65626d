// The dialogs: opened, changed, confirmed, opened again, cancelled, and what the store holds afterwards.
#include "desktop/MainWindow.h"

#include <commctrl.h>

namespace folivant::desktop {
namespace {

class Dialogs : public MainWindowTest {
 protected:
  Dialogs() : program(Argument()), main(Main(program)) {}
  ~Dialogs() override { Close(program, main); }

  Window Show(int button, int title) const { return Open(program, main, button, title); }
  static void Dismiss(Window dialog, int button) {
    dialog.Press(button);
    EXPECT_TRUE(dialog.WaitUntilGone());
  }
  /// Presses OK with a text that does not convert: one message that names the field, the dialog stays, and the focus
  /// is on the field. Returns the message.
  std::wstring ExpectFieldProblem(Window dialog, int field, const std::wstring& name) const {
    dialog.Press(cmdOK);
    const Window box = program.WaitForBox(dialog);
    const std::wstring text = box.BoxText();
    EXPECT_NE(text.find(name), std::wstring::npos) << testing::PrintToString(text);
    box.Answer(IDOK);
    EXPECT_TRUE(dialog);
    EXPECT_TRUE(WaitUntil([&] {
      GUITHREADINFO focus{};
      focus.cbSize = sizeof focus;
      GetGUIThreadInfo(GetWindowThreadProcessId(dialog.Handle(), nullptr), &focus);
      return focus.hwndFocus == dialog.Control(field).Handle();
    })) << "the focus is on the field";
    return text;
  }
  /// Clicks into the field: a click places the caret, while Tab selects the text of any field of any dialog.
  static void ExpectSelectedOnFocus(Window dialog, int field) {
    const HWND elsewhere = dialog.Control(cmdOK).Handle();
    dialog.SetText(field, L"12345");
    SendMessageW(dialog.Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(elsewhere), TRUE);
    const Window box = dialog.Control(field);
    SendMessageW(box.Handle(), EM_SETSEL, 0, 0);
    box.ClickInside();
    EXPECT_TRUE(WaitUntil([box] { return SendMessageW(box.Handle(), EM_GETSEL, 0, 0) == MAKELONG(0, 5); }, 3'000))
        << field;
  }
  static void Check(Window dialog, int box, bool wanted) {
    if (dialog.IsChecked(box) != wanted) {
      dialog.Click(box);
    }
    EXPECT_EQ(dialog.IsChecked(box), wanted);
  }

  Program program;
  Window main;
};

TEST_F(Dialogs, TheFilterOpensWithItsDefaults) {
  const Window filter = Show(cmdFilter, 200);
  EXPECT_TRUE(filter.IsChecked(chkName));
  EXPECT_FALSE(filter.IsChecked(chkSize));
  EXPECT_FALSE(filter.IsChecked(chkDate));
  EXPECT_FALSE(filter.IsChecked(chkAttr));
  EXPECT_EQ(filter.TextOf(txtName), L"*.*");
  EXPECT_EQ(filter.TextOf(txtSize), L"0");
  EXPECT_EQ(filter.TextOf(cmbSize), Message(214));
  const int expected[] = {chkX, chkX + 1, chkN + 2, chkN + 3, chkX + 4};  // "22002"
  for (const int button : expected) {
    EXPECT_TRUE(filter.IsChecked(button)) << button;
  }
  EXPECT_TRUE(filter.IsChecked(optName));
  EXPECT_TRUE(filter.IsChecked(optAZ));
  EXPECT_TRUE(filter.Control(txtName).IsEnabled());
  EXPECT_FALSE(filter.Control(txtSize).IsEnabled()) << "follows its check box";
  EXPECT_EQ(filter.TextOf(optExt), L"Extention");
  Dismiss(filter, cmdCancel);
}

TEST_F(Dialogs, TheFilterStoresWhatWasChosen) {
  Window filter = Show(cmdFilter, 200);
  filter.SetText(txtName, L"*.txt, *.doc");
  Check(filter, chkSize, true);
  EXPECT_TRUE(filter.Control(txtSize).IsEnabled());
  filter.SetText(txtSize, L"1,000");
  filter.Choose(cmbSize, 1);
  Check(filter, chkAttr, true);
  filter.Click(chkY);      // archive
  filter.Click(chkN + 1);  // read-only
  filter.Click(chkX + 2);  // hidden
  filter.Click(optExt);
  filter.Click(optZA);
  Dismiss(filter, cmdOK);
  EXPECT_EQ(ReadStore(L"Filter", L"Filter"), L"1101");
  EXPECT_EQ(ReadStore(L"Filter", L"FilterName"), L"*.txt, *.doc");
  EXPECT_EQ(ReadStore(L"Filter", L"FilterSizeMin"), L"False");
  EXPECT_EQ(ReadStore(L"Filter", L"FilterSize"), L"1000");
  EXPECT_EQ(ReadStore(L"Filter", L"FilterDateMin"), L"1980/01/01");
  EXPECT_EQ(ReadStore(L"Filter", L"FilterDateMax"), L"2039/12/31");
  EXPECT_EQ(ReadStore(L"Filter", L"Attr"), L"10202");
  EXPECT_EQ(ReadStore(L"Filter", L"OrderBy"), L"5");
  EXPECT_EQ(ReadStore(L"Filter", L"OrderAZ"), L"False");
  EXPECT_TRUE(main.TextOf(lblFilter).starts_with(L"*.txt, *.doc, <")) << "the main window follows";

  filter = Show(cmdFilter, 200);
  EXPECT_EQ(filter.TextOf(txtName), L"*.txt, *.doc");
  EXPECT_EQ(filter.TextOf(txtSize), L"1000");
  EXPECT_EQ(filter.TextOf(cmbSize), Message(215));
  EXPECT_TRUE(filter.IsChecked(chkY));
  EXPECT_TRUE(filter.IsChecked(optZA));
  filter.SetText(txtName, L"*.bak");
  Dismiss(filter, cmdCancel);
  EXPECT_EQ(ReadStore(L"Filter", L"FilterName"), L"*.txt, *.doc") << "cancel changes nothing";
}

TEST_F(Dialogs, TheFilterTakesAnOrderWithoutAMeaningForNone) {
  const std::wstring file = scratch.FilterFile(L"odd.fvf", {"OrderBy=30000"});
  main.Press(cmdLoad);
  const Window open = program.WaitForBox(main);
  Confirm(open, file);
  EXPECT_TRUE(open.WaitUntilGone());
  const Window filter = Show(cmdFilter, 200);
  for (const int order : {optName, optExt, optDOS, optSize, optDate}) {
    EXPECT_FALSE(filter.IsChecked(order)) << order;
  }
  Dismiss(filter, cmdOK);
  EXPECT_EQ(ReadStore(L"Filter", L"OrderBy"), L"0");
}

TEST_F(Dialogs, TheFilterNamesASizeThatIsNoNumber) {
  const Window filter = Show(cmdFilter, 200);
  filter.SetText(txtName, L"*.zip");
  filter.SetText(txtSize, L"big");
  ExpectFieldProblem(filter, txtSize, L"Size");
  EXPECT_EQ(ReadStore(L"Filter", L"FilterName"), std::nullopt) << "nothing is stored";
  Dismiss(filter, cmdCancel);
}

using FilterDates = MainWindowTest;

TEST_F(FilterDates, OneThatThePickerCannotShowIsToldAtTheStart) {
  WriteStore(L"Filter", L"FilterDateMin", L"1500/01/01");
  WriteStore(L"Filter", L"FilterDateMax", L"2001/02/03");
  const Program program(Argument());
  const Window box = program.WaitForBox();
  for (const wchar_t* const part : {L"FilterDateMin", L"1500/01/01", L"1752/09/14", L"9999/12/31"}) {
    EXPECT_NE(box.BoxText().find(part), std::wstring::npos) << testing::PrintToString(box.BoxText());
  }
  box.Answer(IDOK);
  const Window main = Main(program);
  const Window filter = Open(program, main, cmdFilter, 200);
  EXPECT_EQ(filter.DayOf(DTPickMin), L"1980/01/01") << "the default, and not today";
  filter.Answer(cmdOK);
  EXPECT_EQ(ReadStore(L"Filter", L"FilterDateMin"), L"1980/01/01");
  EXPECT_EQ(ReadStore(L"Filter", L"FilterDateMax"), L"2001/02/03");
  Close(program, main);
}

TEST_F(FilterDates, TheFirstAndTheLastDayAreShownAndNoEarlierOne) {
  WriteStore(L"Filter", L"FilterDateMin", L"1752/09/14");
  WriteStore(L"Filter", L"FilterDateMax", L"9999/12/31");
  const Program program(Argument());
  const Window main = Main(program);
  const Window filter = Open(program, main, cmdFilter, 200);
  EXPECT_EQ(filter.DayOf(DTPickMin), L"1752/09/14");
  EXPECT_EQ(filter.DayOf(DTPickMax), L"9999/12/31");
  filter.SetDay(DTPickMax, 1752, 9, 13);
  EXPECT_EQ(filter.DayOf(DTPickMax), L"9999/12/31") << "the picker itself has no such day";
  filter.Answer(cmdOK);
  EXPECT_EQ(ReadStore(L"Filter", L"FilterDateMin"), L"1752/09/14");
  EXPECT_EQ(ReadStore(L"Filter", L"FilterDateMax"), L"9999/12/31");
  Close(program, main);
}

TEST_F(FilterDates, ALimitIsTheMidnightOfItsDay) {
  SYSTEMTIME noon{};
  noon.wYear = 2001;
  noon.wMonth = 2;
  noon.wDay = 3;
  noon.wHour = 12;
  scratch.File(L"Data\\Noon.txt", "1", noon);
  const Program program(Argument());
  const Window main = Main(program);
  const Window filter = Open(program, main, cmdFilter, 200);
  filter.Click(chkDate);
  filter.SetDay(DTPickMin, 2001, 2, 3, 23);
  filter.Answer(cmdOK);
  EXPECT_EQ(ReadStore(L"Filter", L"FilterDateMin"), L"2001/02/03");
  main.Press(cmdOK);
  Confirm(program.WaitForBox(main), scratch / L"list.txt", 0);
  EXPECT_EQ(program.WaitForExit(), 0U);
  EXPECT_NE(ReadBytes(scratch / L"list.txt").find("Noon.txt"), std::string::npos) << ReadBytes(scratch / L"list.txt");
}

TEST_F(Dialogs, TheFormatShowsAPictureForEachStyle) {
  const Window format = Show(cmdFormat, 201);
  EXPECT_TRUE(format.IsChecked(optSub));
  std::vector<LRESULT> pictures;
  for (const int style : {optNoSub, optSub, optSubTree, optTree, optFull, optFind}) {
    format.Click(style);
    EXPECT_TRUE(format.IsChecked(style));
    const LRESULT picture = SendMessageW(format.Control(picPreview).Handle(), STM_GETIMAGE, IMAGE_BITMAP, 0);
    EXPECT_NE(picture, 0) << style;
    EXPECT_TRUE(pictures.empty() || pictures.back() != picture) << style;
    pictures.push_back(picture);
  }
  Dismiss(format, cmdCancel);
  EXPECT_EQ(main.TextOf(lblFormat), Message(25)) << "cancel changes nothing";
}

TEST_F(Dialogs, TheFormatStoresTheStyleAndADoubleClickIsOK) {
  Window format = Show(cmdFormat, 201);
  format.Click(optTree);
  Dismiss(format, cmdOK);
  EXPECT_EQ(ReadStore(L"Settings", L"Format"), L"3");
  EXPECT_EQ(main.TextOf(lblFormat), Message(27));
  format = Show(cmdFormat, 201);
  EXPECT_TRUE(format.IsChecked(optTree));
  const HWND full = format.Control(optFull).Handle();
  format.Click(optFull);
  PostMessageW(format.Handle(), WM_COMMAND, MAKEWPARAM(optFull, BN_DOUBLECLICKED), reinterpret_cast<LPARAM>(full));
  EXPECT_TRUE(format.WaitUntilGone());
  EXPECT_EQ(ReadStore(L"Settings", L"Format"), L"4");
}

TEST_F(Dialogs, TheColumnsStoreTheirSwitchesAndTheLevel) {
  const Window format = Show(cmdFormat, 201);
  Window columns = Open(program, format, Command1, 202);
  const std::pair<int, bool> defaults[] = {{chkName, true},  {chkDOS, false},    {chkSize, true},
                                           {chkTime, true},  {chkAttr, false},   {chkTFiles, true},
                                           {chkTSize, true}, {chkTTFiles, true}, {chkTTSize, true}};
  for (const auto& [box, on] : defaults) {
    EXPECT_EQ(columns.IsChecked(box), on) << box;
  }
  EXPECT_EQ(columns.TextOf(txtLevel), L"0");
  Check(columns, chkDOS, true);
  Check(columns, chkTime, false);
  Check(columns, chkTTFiles, false);
  columns.SetText(txtLevel, L"-2");
  Dismiss(columns, cmdOK);
  EXPECT_EQ(ReadStore(L"Format", L"FShow"), L"11100");
  EXPECT_EQ(ReadStore(L"Format", L"TShow"), L"1101");
  EXPECT_EQ(ReadStore(L"Format", L"SubLevel"), L"-2") << "negative levels are accepted as typed";

  columns = Open(program, format, Command1, 202);
  EXPECT_TRUE(columns.IsChecked(chkDOS));
  columns.SetText(txtLevel, L"deep");
  Check(columns, chkDOS, false);
  ExpectFieldProblem(columns, txtLevel, L"level");
  EXPECT_EQ(ReadStore(L"Format", L"FShow"), L"11100") << "nothing is stored";
  Dismiss(columns, cmdCancel);
  Dismiss(format, cmdCancel);
}

TEST_F(Dialogs, TheOptionsStoreEveryPage) {
  Window options = Show(cmdOptions, 204);
  EXPECT_EQ(options.TextOf(txtViewer), L"notepad.exe");
  EXPECT_EQ(options.TextOf(txtWidth), L"80");
  EXPECT_EQ(options.TextOf(txtHeight), L"26");
  EXPECT_EQ(options.TextOf(cmbDate), L"yyyy/mm/dd");
  EXPECT_EQ(options.TextOf(txtLeft), L"20");
  EXPECT_EQ(options.TextOf(txtTop), L"15");
  EXPECT_TRUE(options.IsChecked(optPort));
  EXPECT_TRUE(options.IsChecked(chkFontHF));
  EXPECT_FALSE(options.Control(cmdFontHF).IsEnabled()) << "follows the 80 % rule";

  options.SetText(txtViewer, L"viewer.exe");
  options.SetText(txtWidth, L"132 wide");
  options.SetText(txtHeight, L"tall");
  options.Choose(cmbDate, 3);
  Check(options, chkExit, false);
  Check(options, chkEmptyDirs, true);
  Check(options, chkFF, false);
  options.Click(optInches);
  options.SetText(txtLeft, L"25.5");
  options.SetText(txtTop, L"0.5");
  options.SetText(txtRight, L"1.25");
  options.SetText(txtBottom, L"3");
  options.Click(optLand);
  options.SetText(txtCopies, L"2");
  options.Click(chkFontHF);
  EXPECT_TRUE(options.Control(cmdFontHF).IsEnabled());
  options.SetText(txtHeader, L"Head %n");
  options.SetText(txtFooter, L"Foot %d");
  Dismiss(options, cmdOK);
  const std::pair<const wchar_t*, const wchar_t*> stored[] = {
      {L"TextViewer", L"viewer.exe"}, {L"TextWidth", L"132"},  {L"TextHeight", L"0"},    {L"DateFormat", L"3"},
      {L"ExitWhenDone", L"False"},    {L"EmptyDirs", L"True"}, {L"MarginLeft", L"25.5"}, {L"Port", L"False"},
      {L"PrinterCopies", L"2"},       {L"Font80HF", L"False"}, {L"Header", L"Head %n"},  {L"Footer", L"Foot %d"},
      {L"FilesFirst", L"False"},      {L"Inches", L"True"},    {L"MarginTop", L"0.5"},   {L"MarginRight", L"1.25"},
      {L"MarginBottom", L"3"}};
  for (const auto& [key, value] : stored) {
    EXPECT_EQ(ReadStore(L"Settings", key), value) << testing::PrintToString(std::wstring(key));
  }
  options = Show(cmdOptions, 204);
  EXPECT_EQ(options.TextOf(txtWidth), L"132");
  EXPECT_TRUE(options.IsChecked(optLand));
  options.SetText(txtViewer, L"other.exe");
  Dismiss(options, cmdCancel);
  EXPECT_EQ(ReadStore(L"Settings", L"TextViewer"), L"viewer.exe") << "cancel stores nothing";
}

TEST_F(Dialogs, TheListingPageStoresWhatDiffersFromItsDefaultAndNothingElse) {
  struct Row {
    int Box;
    const wchar_t* Key;
    bool Default;
  };
  const Row rows[] = {{chkFollowLinks, L"FollowLinks", true}, {chkNaturalOrder, L"NaturalOrder", false},
                      {chkOwner, L"RecordOwner", false},      {chkLinks, L"RecordLinks", false},
                      {chkSha256, L"RecordSha256", false},    {chkApostrophe, L"CsvApostrophe", false}};
  const auto stored = [](const Row& row) { return ReadStore(L"Settings", row.Key); };
  const auto changed = [](const Row& row) { return row.Default ? L"False" : L"True"; };
  Window options = Show(cmdOptions, 204);
  SendMessageW(options.Control(TabStrip).Handle(), TCM_SETCURFOCUS, 5, 0);
  for (const Row& row : rows) {
    EXPECT_TRUE(options.Control(row.Box).IsShown()) << row.Box;
    EXPECT_EQ(options.IsChecked(row.Box), row.Default) << row.Box;
  }
  Dismiss(options, cmdOK);
  for (const Row& row : rows) {
    EXPECT_EQ(stored(row), std::nullopt) << row.Box;
  }
  for (const Row& row : rows) {  // one alone
    options = Show(cmdOptions, 204);
    EXPECT_TRUE(options.Control(row.Box).IsShown()) << "the page comes back";
    Check(options, row.Box, !row.Default);
    Dismiss(options, cmdOK);
    for (const Row& other : rows) {
      EXPECT_EQ(stored(other), other.Box == row.Box ? std::optional<std::wstring>(changed(row)) : std::nullopt)
          << row.Box << " and " << other.Box;
    }
    options = Show(cmdOptions, 204);
    Check(options, row.Box, row.Default);
    Dismiss(options, cmdCancel);
    EXPECT_EQ(stored(row), changed(row)) << "cancel changes nothing";
    options = Show(cmdOptions, 204);
    EXPECT_EQ(options.IsChecked(row.Box), !row.Default) << row.Box;
    Check(options, row.Box, row.Default);
    Dismiss(options, cmdOK);
    EXPECT_EQ(stored(row), std::nullopt) << "the key is gone again";
  }
}

TEST_F(Dialogs, TheUnitChangesTheLabelsAndNotTheNumbers) {
  const Window options = Show(cmdOptions, 204);
  EXPECT_EQ(options.TextOf(lblUnit), Message(278));
  options.Click(optInches);
  options.SetText(txtLeft, L"0.5");
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(options.TextOf(lblUnit + i), Message(277));
  }
  options.Click(optMilimeter);
  EXPECT_EQ(options.TextOf(txtLeft), L"0.5");
  EXPECT_EQ(options.TextOf(lblUnit), Message(278));
  Dismiss(options, cmdCancel);
}

TEST_F(Dialogs, TheOptionsNameAMarginOrCopiesThatAreNoNumber) {
  const Window options = Show(cmdOptions, 204);
  options.SetText(txtViewer, L"viewer.exe");
  options.SetText(txtTop, L"high");
  ExpectFieldProblem(options, txtTop, L"Top");
  EXPECT_TRUE(options.Control(txtTop).IsShown()) << "its page came to the front";
  options.SetText(txtTop, L"15");
  options.SetText(txtCopies, L"40000");
  EXPECT_EQ(ExpectFieldProblem(options, txtCopies, L"Copies"), L"Type a number from -32,768 to 32,767 for \"Copies\".");
  EXPECT_NE(ReadStore(L"Settings", L"TextViewer"), L"viewer.exe") << "nothing is stored";
  Dismiss(options, cmdCancel);
}

TEST_F(Dialogs, AWidthThatNoLineHasIsToldWithTheWidthsThatThereAre) {
  const Window options = Show(cmdOptions, 204);
  options.SetText(txtWidth, L"10,000 characters");
  EXPECT_EQ(ExpectFieldProblem(options, txtWidth, L"Width"), L"Type a number from 0 to 9,999 for \"Width\".");
  options.SetText(txtWidth, L"9,999 characters");
  Dismiss(options, cmdOK);
  EXPECT_EQ(ReadStore(L"Settings", L"TextWidth"), L"9999");
}

TEST_F(Dialogs, TheOptionsRememberTheirPageHoweverTheyAreClosed) {
  Window options = Show(cmdOptions, 204);
  EXPECT_EQ(SendMessageW(options.Control(TabStrip).Handle(), TCM_GETCURSEL, 0, 0), 0);
  EXPECT_TRUE(options.Control(txtViewer).IsShown());
  SendMessageW(options.Control(TabStrip).Handle(), TCM_SETCURFOCUS, 3, 0);
  EXPECT_TRUE(options.Control(txtHeader).IsShown());
  EXPECT_FALSE(options.Control(txtViewer).IsShown());
  Dismiss(options, cmdCancel);
  EXPECT_EQ(ReadStore(L"Settings", L"LastTab"), L"4");
  options = Show(cmdOptions, 204);
  EXPECT_TRUE(options.Control(txtHeader).IsShown());
  SendMessageW(options.Control(TabStrip).Handle(), TCM_SETCURFOCUS, 1, 0);
  options.Close();
  EXPECT_TRUE(options.WaitUntilGone());
  EXPECT_EQ(ReadStore(L"Settings", L"LastTab"), L"2");
}

/// The user's separators, of which a program learns when it starts.
class Separators {
 public:
  Separators(const wchar_t* thousands, const wchar_t* decimals)
      : thousands_(Set(LOCALE_STHOUSAND, thousands)), decimals_(Set(LOCALE_SDECIMAL, decimals)) {}
  ~Separators() {
    Set(LOCALE_STHOUSAND, thousands_.c_str());
    Set(LOCALE_SDECIMAL, decimals_.c_str());
  }
  Separators(const Separators&) = delete;
  Separators& operator=(const Separators&) = delete;

 private:
  /// Returns what it was before.
  static std::wstring Set(LCTYPE which, const wchar_t* separator) {
    wchar_t before[16] = {};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, which, before, 16);
    EXPECT_NE(SetLocaleInfoW(LOCALE_USER_DEFAULT, which, separator), 0);
    return before;
  }

  std::wstring thousands_, decimals_;
};

using GermanNumbers = MainWindowTest;

TEST_F(GermanNumbers, AreTypedAndShownAsTheUserWritesThem) {
  const Separators german(L".", L",");
  WriteStore(L"Settings", L"MarginLeft", L"12.5");
  WriteStore(L"Settings", L"MarginRight", L"7,5");
  const Program program(Argument());
  const Window main = Main(program);
  const Window options = Open(program, main, cmdOptions, 204);
  EXPECT_EQ(options.TextOf(txtLeft), L"12,5");
  EXPECT_EQ(options.TextOf(txtRight), L"7,5");
  options.SetText(txtTop, L"20.5");
  options.SetText(txtBottom, L"30,25");
  options.SetText(txtWidth, L"1.200 Zeichen");
  options.Answer(cmdOK);
  EXPECT_EQ(ReadStore(L"Settings", L"MarginTop"), L"20,5") << "not 205";
  EXPECT_EQ(ReadStore(L"Settings", L"MarginBottom"), L"30,25");
  EXPECT_EQ(ReadStore(L"Settings", L"TextWidth"), L"1200");
  const Window filter = Open(program, main, cmdFilter, 200);
  filter.Click(chkSize);
  filter.SetText(txtSize, L"20.5");
  filter.Answer(cmdOK);
  EXPECT_EQ(ReadStore(L"Filter", L"FilterSize"), L"20") << "not 205";
  const Window again = Open(program, main, cmdFilter, 200);
  again.SetText(txtSize, L"1.000");
  again.Answer(cmdOK);
  EXPECT_EQ(ReadStore(L"Filter", L"FilterSize"), L"1000");
  Close(program, main);
}

TEST_F(Dialogs, TheLegendNamesEveryPlaceholder) {
  const Window options = Show(cmdOptions, 204);
  const std::pair<const wchar_t*, int> rows[] = {{L"%p  ", 91}, {L"%l   ", 139}, {L"%f   ", 92}, {L"%g  ", 93},
                                                 {L"%d  ", 94}, {L"%t   ", 95},  {L"%n  ", 96}};
  for (int label = lblLegend; const auto& [code, message] : rows) {
    EXPECT_EQ(options.TextOf(label++), code + Message(message));
  }
  Dismiss(options, cmdCancel);
}

TEST_F(Dialogs, AFieldOfTheColumnsIsSelectedWhenItGetsTheFocus) {
  const Window format = Show(cmdFormat, 201);
  const Window columns = Open(program, format, Command1, 202);
  ExpectSelectedOnFocus(columns, txtLevel);
  Dismiss(columns, cmdCancel);
  Dismiss(format, cmdCancel);
}

TEST_F(Dialogs, TheFieldsOfTheFilterAreSelectedWhenTheyGetTheFocus) {
  const Window filter = Show(cmdFilter, 200);
  Check(filter, chkSize, true);
  for (const int field : {txtName, txtSize}) {
    ExpectSelectedOnFocus(filter, field);
  }
  Dismiss(filter, cmdCancel);
}

TEST_F(Dialogs, TheFieldsOfTheOptionsAreSelectedWhenTheyGetTheFocus) {
  const Window options = Show(cmdOptions, 204);
  const std::pair<WPARAM, int> fields[] = {{0, txtViewer}, {0, txtWidth}, {0, txtHeight}, {1, txtLeft},
                                           {1, txtTop},    {1, txtRight}, {1, txtBottom}, {1, txtCopies},
                                           {3, txtHeader}, {3, txtFooter}};
  for (const auto& [page, field] : fields) {
    SendMessageW(options.Control(TabStrip).Handle(), TCM_SETCURFOCUS, page, 0);
    ExpectSelectedOnFocus(options, field);
  }
  Dismiss(options, cmdCancel);
}

}  // namespace
}  // namespace folivant::desktop
