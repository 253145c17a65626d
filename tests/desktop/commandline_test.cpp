// The command line of the real program: switches, failures in real message boxes, exit statuses, and what a run with /g
// leaves alone.
#include "desktop/MainWindow.h"

namespace folivant::desktop {
namespace {

/// The text of a message box with its line ends as the program wrote them.
std::wstring WithoutReturns(std::wstring text) {
  std::erase(text, L'\r');
  return text;
}

/// The scratch folders of tests have plain names.
std::string Narrow(const std::wstring& text) {
  std::string narrow;
  for (const wchar_t c : text) {
    narrow += static_cast<char>(c);
  }
  return narrow;
}

class CommandLine : public DesktopTest {
 protected:
  CommandLine() {
    scratch.File(L"Data\\A.txt", "12345");
    filter = scratch.FilterFile(L"set.fvf", {"Format=4"});
  }

  std::wstring Data() const { return scratch / L"Data"; }
  std::wstring Output() const { return scratch / L"list.txt"; }
  /// "/f FILTER /d DATA" and what follows.
  std::wstring Line(const std::wstring& rest) const { return L"/f " + filter + L" /d " + Data() + L" " + rest; }

  static void ExpectProblem(const std::wstring& arguments, const std::wstring& detail,
                            const std::wstring& folder = {}) {
    const Program program(arguments, folder);
    const Window box = program.WaitForBox();
    EXPECT_EQ(box.Text(), L"Folivant");
    const std::wstring expected = Message(22) + L"\n" + detail + L"\n\n" + Message(23);
    std::wstring wanted = expected;
    for (std::size_t at = wanted.find(L"\\n"); at != wanted.npos; at = wanted.find(L"\\n", at)) {
      wanted.replace(at, 2, L"\n");
    }
    EXPECT_EQ(WithoutReturns(box.BoxText()), wanted);
    EXPECT_TRUE(box.HasButton(IDOK));
    EXPECT_EQ(program.Windows().size(), 1u);
    box.Answer(IDOK);
    EXPECT_EQ(program.WaitForExit(), 1u);
  }

  static constexpr int kXml = 4;
  /// The type that a save dialog opens with, from 0.
  static void ExpectType(Window dialog, int type) {
    ASSERT_TRUE(WaitUntil([&] { return static_cast<bool>(dialog.Control(kFileTypes)); }));
    EXPECT_EQ(SendMessageW(dialog.Control(kFileTypes).Handle(), CB_GETCURSEL, 0, 0), type);
  }

  Scratch scratch;
  std::wstring filter;
};

TEST_F(CommandLine, GoWritesTheListingAndEndsWithStatus0) {
  const Program program(Line(L"/t t /o " + Output() + L" /g"));
  EXPECT_EQ(program.WaitForExit(), 0u);
  const std::string listing = ReadBytes(Output());
  EXPECT_TRUE(listing.ends_with("\\Data\\A.txt\r\n")) << listing;
  EXPECT_EQ(listing.find("\r\n"), listing.size() - 2) << "one line";
}

TEST_F(CommandLine, ArgumentsMayBeQuotedAndFollowTheirSwitchWithoutABlank) {
  scratch.File(L"My Data\\B.txt");
  const Program program(L"/f\"" + filter + L"\" /d\"" + scratch / L"My Data\" /t t /o\"" + Output() + L"\" /g");
  EXPECT_EQ(program.WaitForExit(), 0u);
  EXPECT_TRUE(ReadBytes(Output()).ends_with("\\My Data\\B.txt\r\n"));
}

TEST_F(CommandLine, OrderOfTheSwitchesDoesNotMatter) {
  const Program program(L"/g /o " + Output() + L" /t t /d " + Data() + L" /f " + filter);
  EXPECT_EQ(program.WaitForExit(), 0u);
  EXPECT_TRUE(ReadBytes(Output()).ends_with("\\Data\\A.txt\r\n"));
}

TEST_F(CommandLine, AnOutputNameWithoutADotGetsHtmlOrTxt) {
  const struct {
    const wchar_t* letter;
    const wchar_t* file;
  } rows[] = {{L"h", L"list.html"}, {L"c", L"list.txt"}, {L"x", L"list.txt"}, {L"a", L"list.txt"}};
  const std::wstring folder = scratch.Dir(L"Out");
  for (const auto& row : rows) {
    const Program program(L"/f " + filter + L" /d " + Data() + L" /t " + row.letter + L" /o list /g", folder);
    EXPECT_EQ(program.WaitForExit(), 0u);
    EXPECT_TRUE(Exists(folder + L'\\' + row.file)) << row.letter;
    DeleteFileW((folder + L'\\' + row.file).c_str());
  }
}

TEST_F(CommandLine, ARelativeFilterFileIsFoundInTheCurrentFolder) {
  const Program program(L"/f set.fvf /d " + Data() + L" /t t /o " + Output() + L" /g", scratch.Path());
  EXPECT_EQ(program.WaitForExit(), 0u);
  EXPECT_TRUE(Exists(Output()));
}

TEST_F(CommandLine, WithoutAFilterFileThereIsAMessage) {
  ExpectProblem(L"/d " + Data(), L"No filter file specified.");
}

TEST_F(CommandLine, AnUpperCaseSwitchIsNone) {
  ExpectProblem(L"/F " + filter + L" /g", L"No filter file specified.");
}

TEST_F(CommandLine, AMissingFilterFileIsNamedInAMessage) {
  ExpectProblem(L"/f " + scratch / L"none.fvf /g", L"Filter file not found.");
}

TEST_F(CommandLine, AnUnknownOutputTypeIsAProblem) {
  ExpectProblem(Line(L"/t z /g"), Message(21));
}

TEST_F(CommandLine, AnOutputTypeWithoutABlankReadsTheCharacterAfterIt) {
  ExpectProblem(Line(L"/tp /g"), Message(21));
}

TEST_F(CommandLine, AProblemLeavesTheStoreAlone) {
  WriteStore(L"Settings", L"TextViewer", L"other.exe");
  ExpectProblem(L"/d " + Data(), L"No filter file specified.");
  EXPECT_EQ(ReadStore(L"Settings", L"TextViewer"), L"other.exe");
  EXPECT_EQ(ReadStore(L"Settings", L"Path"), std::nullopt);
}

TEST_F(CommandLine, GoLeavesTheStoredSettingsUntouched) {
  WriteStore(L"Settings", L"Format", L"3");
  const Program program(Line(L"/t t /o " + Output() + L" /g"));
  EXPECT_EQ(program.WaitForExit(), 0u);
  EXPECT_EQ(ReadStore(L"Settings", L"Format"), L"3");
  EXPECT_EQ(ReadStore(L"Settings", L"Path"), std::nullopt);
}

TEST_F(CommandLine, GoCreatesNoWindow) {
  for (int directory = 0; directory < 40; ++directory) {
    for (int file = 0; file < 25; ++file) {
      scratch.File(L"Data\\" + std::to_wstring(directory) + L"\\" + std::to_wstring(file) + L".txt");
    }
  }
  const Program program(Line(L"/t t /o " + Output() + L" /g"));
  int seen = 0;
  while (program.IsRunning()) {
    for (HWND window = GetTopWindow(nullptr); window != nullptr; window = GetWindow(window, GW_HWNDNEXT)) {
      DWORD owner = 0;
      GetWindowThreadProcessId(window, &owner);
      seen += owner == program.Id() ? 1 : 0;
    }
  }
  EXPECT_EQ(seen, 0);
  EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(CommandLine, AnOutputFileThatCannotBeCreatedIsNamedWithTheSystemsReason) {
  const Program program(Line(L"/t t /o " + scratch / L"missing\\list.txt" + L" /g"));
  const Window box = program.WaitForBox();
  EXPECT_NE(box.BoxText().find(scratch / L"missing\\list.txt"), std::wstring::npos) << "names the file";
  EXPECT_NE(box.BoxText().find(L"(3)"), std::wstring::npos) << "carries the system's number";
  box.Answer(IDOK);
  EXPECT_EQ(program.WaitForExit(), 1u);
}

TEST_F(CommandLine, WithoutAnOutputFileTheSaveDialogAsks) {
  const Program program(Line(L"/t x /g"));
  const Window dialog = program.WaitForWindow(L"");
  ExpectType(dialog, kXml);
  dialog.Press(IDCANCEL);
  EXPECT_EQ(program.WaitForExit(), 1u) << "nothing was listed";
  EXPECT_FALSE(Exists(Output()));
}

TEST_F(CommandLine, AStoredScreenDestinationAsksForATextFile) {
  WriteStore(L"Settings", L"OutputTo", L"2");
  const std::wstring screen = scratch.FilterFile(L"screen.fvf", {"OutputTo=2", "Format=4"});
  const Program program(L"/f " + screen + L" /d " + Data() + L" /g");
  const Window dialog = program.WaitForWindow(L"");
  ExpectType(dialog, 0);
  dialog.Press(IDCANCEL);
  EXPECT_EQ(program.WaitForExit(), 1u);
}

TEST_F(CommandLine, WithoutGoTheWindowOpensWithTypeAndNameInItsSaveDialog) {
  const std::pair<const wchar_t*, const wchar_t*> rows[] = {{L"/t x /o list", L"list.txt"},
                                                            {L"/o list.xml /t x", L"list.xml"}};
  for (const auto& [switches, name] : rows) {
    const Program program(Line(switches), scratch.Path());
    const Window main = program.WaitForWindow(L"Folivant");
    EXPECT_TRUE(main.IsChecked(optFile));
    EXPECT_TRUE(main.TextOf(lblPath).ends_with(L"\\Data"));
    main.Press(cmdOK);
    const Window dialog = program.WaitForBox(main);
    ExpectType(dialog, kXml);
    EXPECT_EQ(dialog.TextOf(dialog.Control(kFileNameCombo) ? kFileNameCombo : kFileNameEdit), name);
    dialog.Press(IDCANCEL);
    EXPECT_TRUE(dialog.WaitUntilGone());
    main.Press(cmdCancel);
    EXPECT_EQ(program.WaitForExit(), 0u);
  }
}

TEST_F(CommandLine, TheFilterFileGivesDirectoryStyleAndColumns) {
  const std::string path = Narrow(Data());
  filter = scratch.FilterFile(L"all.fvf", {"Path=" + path, "Format=0", "FShow=10000", "Header=Head line"});
  const Program program(L"/f " + filter + L" /t t /o " + Output() + L" /g");
  EXPECT_EQ(program.WaitForExit(), 0u);
  const std::string listing = ReadBytes(Output());
  EXPECT_TRUE(listing.starts_with("Head line\r\n\r\n\r\n\r\n")) << listing;
  EXPECT_NE(listing.find("\r\nA.txt" + std::string(75, ' ') + "\r\n"), std::string::npos) << listing;
}

TEST_F(CommandLine, ASettingThatDoesNotConvertIsNamedOnceAndTakesItsDefault) {
  filter = scratch.FilterFile(L"bad.fvf", {"Format=4", "SubLevel=many"});
  const Program program(L"/f " + filter + L" /d " + Data() + L" /t t /o " + Output() + L" /g");
  const Window box = program.WaitForBox();
  for (const wchar_t* word : {L"bad.fvf", L"SubLevel", L"many"}) {
    EXPECT_NE(box.BoxText().find(word), std::wstring::npos) << word;
  }
  box.Answer(IDOK);
  EXPECT_EQ(program.WaitForExit(), 0u);
  EXPECT_TRUE(ReadBytes(Output()).ends_with("\\Data\\A.txt\r\n"));
  EXPECT_NE(ReadBytes(filter).find("SubLevel=many"), std::string::npos) << "reading overwrites nothing";
}

TEST_F(CommandLine, SettingsThatDoNotConvertAreNamedTogether) {
  filter = scratch.FilterFile(L"bad.fvf", {"Format=4", "SubLevel=many", "OrderBy=x", "FShow=1"});
  const Program program(L"/f " + filter + L" /d " + Data() + L" /t t /o " + Output() + L" /g");
  const Window box = program.WaitForBox();
  for (const wchar_t* word : {L"bad.fvf", L"SubLevel=many", L"OrderBy=x", L"FShow=1"}) {
    EXPECT_NE(box.BoxText().find(word), std::wstring::npos) << word;
  }
  box.Answer(IDOK);
  EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(CommandLine, APathListIsListedFromAFilterFile) {
  const std::string path = Narrow(Data());
  const std::wstring paths = scratch.File(L"paths.lst", path + "\\A.txt\r\n\r\n" + path + "\\A.txt\r\n");
  const std::string list = Narrow(paths);
  filter = scratch.FilterFile(L"six.fvf", {"Format=6", "Path=" + list, "Header=Found"});
  const Program program(L"/f " + filter + L" /t c /o " + Output() + L" /g");
  EXPECT_EQ(program.WaitForExit(), 0u);
  const std::string listing = ReadBytes(Output());
  std::size_t rows = 0;
  for (std::size_t at = listing.find("\r\nA.txt;"); at != listing.npos; at = listing.find("\r\nA.txt;", at + 1)) {
    ++rows;
  }
  EXPECT_EQ(rows, 2u) << listing;
  EXPECT_NE(listing.find(";5 b;"), std::string::npos) << listing;
}

TEST_F(CommandLine, AMissingFileInAPathListIsNamed) {
  const std::string path = Narrow(Data());
  const std::wstring paths = scratch.File(L"paths.lst", path + "\\A.txt\r\n" + path + "\\Gone.txt\r\n");
  const std::string list = Narrow(paths);
  filter = scratch.FilterFile(L"six.fvf", {"Format=6", "Path=" + list});
  const Program program(L"/f " + filter + L" /t t /o " + Output() + L" /g");
  const Window box = program.WaitForBox();
  EXPECT_NE(box.BoxText().find(L"Gone.txt"), std::wstring::npos);
  box.Answer(IDOK);
  EXPECT_EQ(program.WaitForExit(), 1u);
}

TEST_F(CommandLine, AFilterFileThatIsNoneGivesTheDefaults) {
  filter = scratch.File(L"bad.fvf", std::string_view("\xFF\xFE\0[Fol\r\n=\r\n]\x80;Format=9\r\n", 27));
  const Program program(Line(L"/t t /o " + Output() + L" /g"));
  EXPECT_EQ(program.WaitForExit(), 0u);
  EXPECT_NE(ReadBytes(Output()).find("A.txt"), std::string::npos);
}

TEST_F(CommandLine, AFullDiskIsReportedWithFileNameAndReason) {
  const std::wstring full = L"Z:\\dev\\.\\full";  // the dot keeps ".txt" away
  if (!platform::OwnedFile(CreateFileW(full.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr)).IsOpen()) {
    GTEST_SKIP() << "this system has no disk that is always full";
  }
  const Program program(Line(L"/t t /o " + full + L" /g"));
  const Window box = program.WaitForBox();
  EXPECT_NE(box.BoxText().find(L"\\full"), std::wstring::npos) << "names the file";
  EXPECT_NE(box.BoxText().find(L"(112)"), std::wstring::npos) << "carries the system's number";
  box.Answer(IDOK);
  EXPECT_EQ(program.WaitForExit(), 1u);
}

/// A copy of the program in a folder whose language files are the test's own.
class LanguageFiles : public CommandLine {
 protected:
  LanguageFiles() : program(scratch.Dir(L"Program") + L"\\Folivant.exe") {
    CopyFileW(ProgramPath().c_str(), program.c_str(), FALSE);
  }
  void ExpectTexts(const std::wstring& problem, const std::wstring& hint) const {
    const Program running(L"/d " + Data(), {}, program);
    const Window box = running.WaitForBox();
    EXPECT_EQ(WithoutReturns(box.BoxText()), problem + L"\nNo filter file specified.\n\n" + hint);
    box.Answer(IDOK);
    EXPECT_EQ(running.WaitForExit(), 1u);
  }

  std::wstring program;
};

TEST_F(LanguageFiles, WithoutAnyTextsShowTheirNumbers) {
  ExpectTexts(L"**22**", L"**23**");
}

TEST_F(LanguageFiles, AMalformedOneGivesNumbers) {
  scratch.File(L"Program\\english.ini", std::string_view("\xFF\xFE[\0M\0\r\n22=\x80", 13));
  ExpectTexts(L"**22**", L"**23**");
}

TEST_F(LanguageFiles, AMissingOneFallsBackToEnglish) {
  scratch.File(L"Program\\english.ini", "[Messages]\r\n22=A problem:\r\n23=Read the help.\r\n");
  WriteStore(L"Settings", L"Language", L"gone.ini");
  ExpectTexts(L"A problem:", L"Read the help.");
}

TEST_F(LanguageFiles, AKeyThatTheChosenOneLacksComesFromEnglish) {
  scratch.File(L"Program\\english.ini", "[Messages]\r\n22=A problem:\r\n");
  scratch.File(L"Program\\my.lang.ini", "[Messages]\r\n23=Lees de hulp.\r\n");
  WriteStore(L"Settings", L"Language", L"my.lang.ini");
  ExpectTexts(L"A problem:", L"Lees de hulp.");
}

class SendTo : public CommandLine {
 protected:
  SendTo() { DeleteFileW(Target().c_str()); }
  ~SendTo() override { DeleteFileW(Target().c_str()); }
  static std::wstring Target() { return SendToFolder() + L"\\Folivant.s2f"; }
  void Run() const { EXPECT_EQ(Program(Line(L"/t t /o " + Output() + L" /g")).WaitForExit(), 0u); }
};

TEST_F(SendTo, EveryStartMakesTheTargetEmpty) {
  Run();
  EXPECT_TRUE(Exists(Target()));
  EXPECT_EQ(ReadBytes(Target()), "");
  {
    const platform::OwnedFile file(CreateFileW(Target().c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    DWORD written = 0;
    WriteFile(file.Get(), "old", 3, &written, nullptr);
  }
  Run();
  EXPECT_EQ(ReadBytes(Target()), "");
}

TEST_F(SendTo, DeleteSendToRemovesTheTargetAndShowsNothing) {
  Run();
  const Program program(L"/deletesendto");
  EXPECT_EQ(program.WaitForExit(), 0u);
  EXPECT_FALSE(Exists(Target()));
}

TEST_F(SendTo, DeleteSendToWithABlankIsParsedAsSwitches) {
  ExpectProblem(L"/deletesendto ", L"No filter file specified.");
}

}  // namespace
}  // namespace folivant::desktop
