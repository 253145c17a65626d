#include "app/StartUp.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "app/Settings.h"
#include "app/mdlVars.h"
#include "base/mdlFileRoutines.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeSession.h"
#include "output/mdlPrint.h"
#include "platform/Utf8.h"
#include "scan/mdlScan.h"
#include "shell/mdlFind.h"

namespace folivant {
namespace {

using fakes::Fake;
using fakes::Session;
using fakes::Tree;

/// A machine with one file to list, a filter file for bare full paths without any header, and an English language file.
class StartUp : public testing::Test {
 protected:
  StartUp() {
    Tree().Dir(L"C:\\Data").File(L"A.txt", 5);
    Tree().Dir(L"C:\\Work");
    Tree().Dir(L"C:\\Out");
    FilterFile("");
    Tree().File(L"C:\\Program Files\\Folivant\\english.ini",
                "[Messages]\r\n21=Unknown type.\r\n22=Problem:\r\n23=Usage.\r\n100=No printer.\r\n183=None "
                "chosen.\r\n13=OK\r\n184=Unexpected.\r\n185=No memory.\r\n"
                "138=No window.\r\n189=No output.\r\n190=Several windows.\r\n"
                "160=Cannot create \"%1\": %2 (%3)\r\n161=Cannot read \"%1\": %2 (%3)\r\n164=%1, %2, %3\r\n"
                "171=No path in %1, none.\r\n172=%1 is over %2 MB\r\n");
  }

  static void FilterFile(const std::string& lines) {
    Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nFormat=4\r\nPath=C:\\Data\r\nOutputTo=1\r\n" + lines);
  }
  static void Store(const wchar_t* key, const wchar_t* value) { Fake().Store[{L"Settings", key}] = value; }
  static bool Exists(const wchar_t* path) { return Tree().Find(path) != nullptr; }

  /// One message box, which ends the start without a window and without a trace in the store.
  static void ExpectProblem(const std::wstring& line, const std::wstring& detail) {
    const auto store = Fake().Store;
    EXPECT_EQ(Start(line), kExitFailed);
    ASSERT_EQ(Fake().Messages.size(), 1u);
    EXPECT_EQ(Fake().Messages[0].Text, L"Problem:\r\n" + detail + L"\r\n\r\nUsage.");
    EXPECT_EQ(Fake().Messages[0].Icon, platform::BoxIcon::Exclamation);
    EXPECT_EQ(Fake().Messages[0].Buttons, platform::BoxButtons::Ok);
    EXPECT_EQ(Session().Shown, 0);
    EXPECT_EQ(Fake().Store, store);
  }
};

TEST_F(StartUp, WithAnEmptyLineTheWindowOpensOnTheStoredDirectory) {
  Store(L"Path", L"C:\\Data");
  Session().ExitStatus = 7;
  EXPECT_EQ(Start(L""), 7);
  EXPECT_EQ(Session().Shown, 1);
  EXPECT_EQ(mdlVars::Start.Shown, L"C:\\Data");
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST_F(StartUp, AStoredFileListStyleComesBackAsStyle0) {
  for (const wchar_t* style : {L"5", L"6"}) {
    Store(L"Path", L"C:\\Data");
    Store(L"Format", style);
    Start(L"");
    EXPECT_EQ(mdlVars::Format.ListingStyle, ListingStyle::NoSubdirectories);
  }
}

TEST_F(StartUp, AStoredFindStyleStaysWhenTheStoredDirectoryIsGone) {
  Store(L"Path", L"C:\\Gone");
  Store(L"Format", L"5");
  Start(L"");
  EXPECT_EQ(mdlVars::Format.ListingStyle, ListingStyle::FindWindow);
}

TEST_F(StartUp, ASlashInAStoredPathSeparatesLikeABackslash) {
  Tree().Dir(L"C:\\Data\\Deep\\Er").File(L"B.txt");
  Store(L"Path", L"c:\\data/deep/er");
  Start(L"");
  EXPECT_EQ(mdlVars::Start.Shown, L"C:\\Data\\Deep\\Er");
  Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nFormat=4\r\nPath=C:/Data/Deep\\Er\r\nOutputTo=1\r\n");
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /o C:\\Out\\list.txt /g"), kExitDone);
  EXPECT_EQ(Fake().Content(L"C:\\Out\\list.txt"), "C:\\Data\\Deep\\Er\\B.txt\r\n");
}

TEST_F(StartUp, ASentDirectoryIsTheOneToList) {
  Tree().Dir(L"C:\\My Data");
  Start(L"\"C:\\My Data\"");
  EXPECT_EQ(mdlVars::Start.Shown, L"C:\\My Data");
  Start(L"C:\\Data");
  EXPECT_EQ(mdlVars::Start.Shown, L"C:\\Data");
  Start(L"C:\\My Data\"");
  EXPECT_EQ(mdlVars::Start.Shown, L"C:\\My Data");
  EXPECT_EQ(mdlVars::Format.ListingStyle, ListingStyle::IncludeSubdirectories) << "the stored one";
  EXPECT_EQ(Session().Shown, 3);
}

TEST_F(StartUp, ASentFileIsAListOfPathsAndStaysAsItIsSpelled) {
  Start(L"\"c:\\data\\a.TXT\"");
  EXPECT_EQ(mdlVars::Format.ListingStyle, ListingStyle::PathListFile);
  EXPECT_EQ(mdlVars::Start.Shown, L"c:\\data\\a.TXT");
  EXPECT_EQ(mdlVars::Start.OnDisk, L"c:\\data\\a.TXT");
}

TEST_F(StartUp, ASentRelativeFileIsReadInTheCurrentDirectory) {
  Tree().File(L"C:\\Work\\mine.txt", "C:\\Data\\A.txt\r\n");
  Start(L"mine.txt");
  EXPECT_EQ(mdlVars::Format.ListingStyle, ListingStyle::PathListFile);
  mdlVars::OutputFile = L"C:\\Out\\list.csv";
  OutputDriver output;
  output.Choose(OutputKind::Csv);
  FindCapture rows(mdlVars::MakeDialogContext());
  NoProgress nobody;
  ListingRun run = mdlVars::MakeRun(nobody);
  RunListing(run, output, rows);
  EXPECT_THAT(Fake().Content(L"C:\\Out\\list.csv"), testing::HasSubstr("\r\nA.txt;C:\\Data;5 b;"));
}

TEST_F(StartUp, TheStyleOfASentFileIsNotSavedWhenTheWindowCloses) {
  Store(L"Format", L"3");
  Store(L"Path", L"C:\\Work");
  Start(L"C:\\Data\\A.txt");
  SaveSettings();
  EXPECT_EQ((Fake().Store[{L"Settings", L"Format"}]), L"3");
  EXPECT_EQ((Fake().Store[{L"Settings", L"Path"}]), L"C:\\Work");
}

TEST_F(StartUp, ASentPathThatIsGoneLeavesTheStoredDirectory) {
  Store(L"Path", L"C:\\Data");
  Start(L"C:\\Nowhere");
  EXPECT_EQ(mdlVars::Start.Shown, L"C:\\Data");
  EXPECT_EQ(Session().Shown, 1);
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST_F(StartUp, ASentPathThatIsGoneLooksAtTheStoredDirectoryAgain) {
  Store(L"Path", L"c:\\data\\");
  Store(L"Format", L"5");
  Start(L"C:\\Nowhere");
  EXPECT_EQ(mdlVars::Start.Shown, L"C:\\Data");
  EXPECT_EQ(mdlVars::Format.ListingStyle, ListingStyle::NoSubdirectories);
}

TEST_F(StartUp, WithoutAnyPrinterTheWindowOpensWithTheFileDestination) {
  Start(L"");
  EXPECT_EQ(mdlVars::OutputTo, OutputTarget::File);
}

TEST_F(StartUp, WithAPrinterTheStoredDestinationStays) {
  Session().Printers = {L"Laser"};
  Start(L"");
  EXPECT_EQ(mdlVars::OutputTo, OutputTarget::Printer);
  EXPECT_EQ(mdlVars::Printer.PrinterName, L"Laser") << "the default printer, for the options to show";
}

TEST_F(StartUp, SwitchesWithoutAFilterFileAreAProblem) {
  ExpectProblem(L"/d C:\\Data", L"No filter file specified.");
}
TEST_F(StartUp, AnUpperCaseSwitchIsNone) {
  ExpectProblem(L"/F C:\\sets\\a.fvf", L"No filter file specified.");
}
TEST_F(StartUp, AMissingFilterFileIsAProblem) {
  ExpectProblem(L"/f C:\\sets\\none.fvf /g", L"Filter file not found.");
}
TEST_F(StartUp, AnEmptyFilterFileNameIsAProblem) {
  ExpectProblem(L"/f /g", L"Filter file not found.");
}
TEST_F(StartUp, ADirectoryIsNoFilterFile) {
  ExpectProblem(L"/f C:\\sets /g", L"Filter file not found.");
}
TEST_F(StartUp, AHiddenFilterFileIsNotFound) {
  Tree().Dir(L"C:\\sets").FileWith(L"h.fvf", "").AddAttributes(platform::kHidden);
  ExpectProblem(L"/f C:\\sets\\h.fvf /g", L"Filter file not found.");
}
TEST_F(StartUp, AnUnknownOutputLetterIsAProblem) {
  ExpectProblem(L"/f C:\\sets\\a.fvf /t z /g", L"Unknown type.");
}
TEST_F(StartUp, AnOutputLetterWithoutABlankIsAProblem) {
  ExpectProblem(L"/f C:\\sets\\a.fvf /tp /g", L"Unknown type.");
}
TEST_F(StartUp, RemovalFollowedByABlankIsParsedAsSwitches) {
  Fake().SendToFolder = L"C:\\Users\\me\\SendTo";
  Tree().Dir(L"C:\\Users\\me\\SendTo");
  ExpectProblem(L"/deletesendto ", L"No filter file specified.");
  EXPECT_TRUE(Exists(L"C:\\Users\\me\\SendTo\\Folivant.s2f"));
}

TEST_F(StartUp, WithoutGoTheWindowOpensWithTheSwitchesInPlaceAndNothingIsStored) {
  Tree().Dir(L"C:\\Other");
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /d c:\\other /t x /o list"), 0);
  EXPECT_EQ(Session().Shown, 1);
  EXPECT_EQ(mdlVars::Start.Shown, L"C:\\Other");
  EXPECT_EQ(mdlVars::Format.ListingStyle, ListingStyle::FullPathList);
  EXPECT_EQ(mdlVars::OutputTo, OutputTarget::File);
  EXPECT_EQ(mdlVars::OutputKind, OutputKind::Xml);
  EXPECT_EQ(mdlVars::OutputFile, L"list.txt");
  EXPECT_EQ(mdlVars::FilterFile, L"C:\\sets\\a.fvf");
  EXPECT_FALSE(mdlVars::UseFilterFile);
  EXPECT_TRUE(Fake().Store.empty());
}

TEST_F(StartUp, TheOutputLetterIsTheDestinationWhateverTheFilterFileSays) {
  Session().Printers = {L"Laser"};
  const struct {
    const wchar_t* letter;
    OutputTarget target;
    OutputKind kind;
  } rows[] = {
      {L"p", OutputTarget::Printer, OutputKind::Printer},   {L"t", OutputTarget::File, OutputKind::Text},
      {L"a", OutputTarget::File, OutputKind::TabDelimited}, {L"h", OutputTarget::File, OutputKind::Html},
      {L"c", OutputTarget::File, OutputKind::Csv},          {L"x", OutputTarget::File, OutputKind::Xml},
  };
  for (const auto& row : rows) {
    for (const char* stored : {"0", "1", "2"}) {
      Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nPath=C:\\Data\r\nOutputTo=" + std::string(stored) + "\r\n");
      Start(std::wstring(L"/f C:\\sets\\a.fvf /t ") + row.letter);
      EXPECT_EQ(mdlVars::OutputTo, row.target) << stored << " in the file, /t " << static_cast<char>(*row.letter);
      EXPECT_EQ(mdlVars::OutputKind, row.kind);
    }
  }
  EXPECT_EQ(Session().Shown, 18);
}

TEST_F(StartUp, TheKindWordIsTheDestinationWhateverTheFilterFileAndTheLetterSay) {
  Session().Printers = {L"Laser"};
  const std::pair<const wchar_t*, OutputKind> rows[] = {
      {L"csv", OutputKind::ExactCsv}, {L"json", OutputKind::JsonLines}, {L"sha256", OutputKind::Sha256}};
  for (const auto& [word, kind] : rows) {
    for (const wchar_t* letter : {L"", L" /t p", L" /t x", L" /t z"}) {
      Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nPath=C:\\Data\r\nOutputTo=0\r\n");
      Start(std::wstring(L"/f C:\\sets\\a.fvf /k ") + word + letter);
      EXPECT_EQ(mdlVars::OutputTo, OutputTarget::File);
      EXPECT_EQ(mdlVars::OutputKind, kind);
    }
  }
  EXPECT_EQ(Session().Shown, 12);
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST_F(StartUp, AnUnknownKindWordIsAProblem) {
  ExpectProblem(L"/f C:\\sets\\a.fvf /k CSV /t t /g", L"Unknown type.");
}
TEST_F(StartUp, AMissingKindWordIsAProblem) {
  ExpectProblem(L"/f C:\\sets\\a.fvf /k /g", L"Unknown type.");
}

TEST_F(StartUp, AnExactKindIsWrittenUnderItsOwnExtension) {
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /k sha256 /o C:\\Out\\sums /g"), kExitDone);
  EXPECT_EQ(Fake().Content(L"C:\\Out\\sums.sha256"), "sum()  A.txt\n");
}

TEST_F(StartUp, AFileThatCannotBeReadForItsSumEndsWithTheStatusOfUnreadableOnes) {
  Tree().Dir(L"C:\\Data").File(L"Locked").Unreadable();
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /k csv /o C:\\Out\\all /g"), kExitDone) << "nothing asks for its content";
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /k sha256 /o C:\\Out\\sums /g"), kExitUnreadable);
  EXPECT_TRUE(Fake().Messages.empty());
}

/// Runs that nobody watches.
class Unattended : public StartUp {
 protected:
  static constexpr wchar_t kLog[] = L"C:\\Out\\log.txt";

  /// The log's lines without their times, which are all those of the fake clock.
  static std::vector<std::string> Log() {
    std::vector<std::string> lines;
    std::string rest = Fake().Content(kLog);
    for (std::size_t end = rest.find("\r\n"); end != rest.npos; end = rest.find("\r\n")) {
      const std::string line = rest.substr(0, end);
      EXPECT_TRUE(line.starts_with("2001-02-03T04:05:06Z\t")) << line;
      lines.push_back(line.substr(std::min<std::size_t>(line.size(), 21)));
      rest.erase(0, end + 2);
    }
    EXPECT_EQ(rest, "");
    return lines;
  }
  /// Ends with `status`, without box or dialog; standard error and the log have `message`.
  static void ExpectQuietEnd(const std::wstring& line, ExitStatus status, const std::wstring& message) {
    Fake().StandardError.clear();
    EXPECT_EQ(Start(line + L" /l C:\\Out\\log.txt /g"), status);
    EXPECT_TRUE(Fake().Messages.empty());
    EXPECT_EQ(Session().OutputFileAsked, 0);
    EXPECT_EQ(Session().Shown, 0);
    EXPECT_THAT(Fake().StandardError, testing::ElementsAre(message));
    const std::string field = platform::ToUtf8(ReplaceAll(message, L"\r\n", L" "));
    EXPECT_THAT(Log(), testing::Contains("message\t" + field));
    EXPECT_EQ(Log().back(), "end\tstatus=" + std::to_string(status));
  }
};

TEST_F(Unattended, TheLogTellsTheWholeRun) {
  const std::wstring line = L"/f C:\\sets\\a.fvf /d C:\\Data /t t /o C:\\Out\\list /l C:\\Out\\log.txt /g";
  EXPECT_EQ(Start(line), kExitDone);
  EXPECT_THAT(Log(), testing::ElementsAre(testing::AllOf(testing::StartsWith("start\tFolivant "),
                                                         testing::EndsWith("\t" + platform::ToUtf8(line))),
                                          "listing\tC:\\Data\tstyle=4\tdepth=0\torder=1\tfilter=*.*",
                                          "counts\tfiles=1\tdirectories=1\tbytes=5\tunread=0",
                                          "output\tC:\\Out\\list.txt\tbytes=15", "end\tstatus=0"));
}

TEST_F(Unattended, TheLogIsWrittenAnewOrContinued) {
  const std::wstring run = L"/f C:\\sets\\a.fvf /t t /o C:\\Out\\list /g /l ";
  for (const auto& [file, lines] : {std::pair(L"C:\\Out\\log.txt", 5U),
                                    {L"+C:\\Out\\log.txt", 10U},
                                    {L"\"+C:\\Out\\log.txt\"", 15U},
                                    {L"C:\\Out\\log.txt", 5U}}) {
    EXPECT_EQ(Start(run + file), kExitDone);
    EXPECT_EQ(Log().size(), lines);
  }
}

TEST_F(Unattended, TheLogNamesWhatCouldNotBeReadAtOnce) {
  FilterFile("Format=1\r\n");
  Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nFormat=1\r\nPath=C:\\Data\r\n");
  Tree().Dir(L"C:\\Data").Folder(L"Locked").Unreadable();
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t t /o C:\\Out\\list.txt /l C:\\Out\\log.txt /g"), kExitUnreadable);
  EXPECT_EQ(Log().at(2), "unread\tC:\\Data\\Locked\tAccess is denied. (5)");
  EXPECT_THAT(Log().at(3), testing::EndsWith("\tunread=1"));
  EXPECT_EQ(Log().back(), "end\tstatus=2");
}

TEST_F(Unattended, WithoutTheSwitchMessagesAreShownAndLogged) {
  EXPECT_EQ(Start(L"/f C:\\sets\\none.fvf /l C:\\Out\\log.txt /g"), kExitFailed);
  EXPECT_EQ(Fake().Messages.size(), 1U);
  EXPECT_TRUE(Fake().StandardError.empty());
  EXPECT_EQ(Log().at(1), "message\tProblem: Filter file not found.  Usage.");
}

TEST_F(Unattended, QuietRunsShowNothing) {
  const auto problem = [](const std::wstring& detail) { return L"Problem:\r\n" + detail + L"\r\n\r\nUsage."; };
  ExpectQuietEnd(L"/q", kExitFailed, problem(L"No filter file specified."));
  ExpectQuietEnd(L"/f C:\\sets\\none.fvf /q", kExitFailed, problem(L"Filter file not found."));
  ExpectQuietEnd(L"/f C:\\sets\\a.fvf /q /t z", kExitFailed, problem(L"Unknown type."));
  ExpectQuietEnd(L"/f C:\\sets\\a.fvf /q /t t", kExitFailed, problem(L"No output."));
  ExpectQuietEnd(L"/f C:\\sets\\a.fvf /q /t p", kExitFailed, L"No printer.");
  ExpectQuietEnd(L"/f C:\\sets\\a.fvf /q /t t /o C:\\None\\list.txt", kExitFailed,
                 L"Cannot create \"C:\\None\\list.txt\": The system cannot find the path specified. (3)");
}

TEST_F(Unattended, WhereNoWindowCanBeSeenEveryRunIsQuiet) {
  Fake().CanShowWindows = false;
  ExpectQuietEnd(L"/f C:\\sets\\a.fvf /t t", kExitFailed, L"Problem:\r\nNo output.\r\n\r\nUsage.");
  ExpectQuietEnd(L"/f C:\\sets\\none.fvf", kExitFailed, L"Problem:\r\nFilter file not found.\r\n\r\nUsage.");
}

TEST_F(Unattended, ABadSettingIsToldAndTheRunGoesOn) {
  Store(L"TextWidth", L"wide");
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t t /o C:\\Out\\list.txt /q /g"), kExitDone);
  EXPECT_TRUE(Fake().Messages.empty());
  EXPECT_EQ(Fake().StandardError.size(), 1U);
}

TEST_F(Unattended, AQuietRunListsNothingButTheDirectoryThatIsNamed) {
  Tree().Dir(L"C:\\Refused").Unreadable();
  Tree().File(L"C:\\Out\\list.txt", "before");
  const std::wstring run = L"/f C:\\sets\\a.fvf /t t /o C:\\Out\\list.txt /q /d ";
  ExpectQuietEnd(run + L"C:\\Nowhere", kExitFailed,
                 L"Cannot read \"C:\\Nowhere\": The system cannot find the path specified. (3)");
  ExpectQuietEnd(run + L"\\\\nobody\\share", kExitFailed,
                 L"Cannot read \"\\\\nobody\\share\": The system cannot find the path specified. (3)");
  ExpectQuietEnd(run + L"C:\\Refused", kExitFailed, L"Cannot read \"C:\\Refused\": Access is denied. (5)");
  EXPECT_EQ(Fake().Content(L"C:\\Out\\list.txt"), "before");
}

TEST_F(Unattended, AListingOfAnotherDirectoryThatIsNotCompleteTellsThatAlone) {
  Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nFormat=1\r\nPath=C:\\Data\r\n");
  Tree().Dir(L"C:\\Data").Folder(L"Locked").Unreadable();
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /d C:\\Nowhere /t t /o C:\\Out\\list.txt /g"), kExitUnreadable);
}

TEST_F(Unattended, ALogThatCannotBeMadeIsToldAndNothingIsListed) {
  Fake().FailCreates[kLog] = fakes::AccessDenied();
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t t /o C:\\Out\\list.txt /l C:\\Out\\log.txt /q /g"), kExitFailed);
  EXPECT_THAT(Fake().StandardError, testing::ElementsAre(L"Cannot create \"C:\\Out\\log.txt\": Access is denied. (5)"));
  EXPECT_TRUE(Fake().Messages.empty());
  EXPECT_FALSE(Exists(L"C:\\Out\\list.txt"));
}

TEST_F(Unattended, AFullDiskEndsTheRunWhateverCouldNotBeWritten) {
  const std::wstring line = L"/f C:\\sets\\a.fvf /t t /o C:\\Out\\list.txt /l C:\\Out\\log.txt /q /g";
  Start(line);
  const std::size_t all = Fake().Content(kLog).size() + Fake().Content(L"C:\\Out\\list.txt").size();
  for (std::size_t room = 0; room < all; room += 7) {
    Fake().DiskFullAfter = room;
    Fake().StandardError.clear();
    EXPECT_EQ(Start(line), kExitFailed) << room;
    EXPECT_FALSE(Fake().StandardError.empty()) << room;
    EXPECT_TRUE(Fake().Messages.empty());
    EXPECT_EQ(Fake().OpenOutputFiles, 0);
  }
}

TEST_F(Unattended, WithoutGoTheSwitchesChangeNothing) {
  EXPECT_EQ(Start(L"/f C:\\sets\\none.fvf /l C:\\Out\\log.txt /q"), kExitFailed);
  EXPECT_EQ(Fake().Messages.size(), 1U);
  EXPECT_FALSE(Exists(kLog));
}

TEST_F(StartUp, WithoutAnOutputLetterTheDestinationIsThatOfTheFilterFile) {
  Session().Printers = {L"Laser"};
  for (const OutputTarget target : {OutputTarget::Printer, OutputTarget::File, OutputTarget::Screen}) {
    Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nOutputTo=" + std::to_string(static_cast<int>(target)) + "\r\n");
    mdlVars::OutputKind = OutputKind::Text;
    Start(L"/f C:\\sets\\a.fvf");
    EXPECT_EQ(mdlVars::OutputTo, target);
    EXPECT_EQ(mdlVars::OutputKind, target == OutputTarget::Printer ? OutputKind::Printer : OutputKind::Text);
  }
}

TEST_F(StartUp, AnInvalidDirectoryLeavesThatOfTheFilterFileAndTheStatusTellsIt) {
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /d C:\\Nowhere /o C:\\Out\\list.txt /g"), kExitElsewhere);
  EXPECT_TRUE(Fake().Messages.empty());
  EXPECT_EQ(Fake().Content(L"C:\\Out\\list.txt"), "C:\\Data\\A.txt\r\n");
}

TEST_F(StartUp, GoWritesTheListingAndShowsNoWindow) {
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /d C:\\Data /t t /o C:\\Out\\list.txt /g"), kExitDone);
  EXPECT_EQ(Fake().Content(L"C:\\Out\\list.txt"), "C:\\Data\\A.txt\r\n");
  EXPECT_EQ(Session().Shown, 0);
  EXPECT_TRUE(Fake().Store.empty());
}

TEST_F(StartUp, ARelativeFilterFileIsTestedAndReadInTheCurrentDirectory) {
  Fake().CurrentDirectory = L"C:\\sets";
  EXPECT_EQ(Start(L"/f a.fvf /t t /o C:\\Out\\list.txt /g"), kExitDone);
  EXPECT_EQ(Fake().Content(L"C:\\Out\\list.txt"), "C:\\Data\\A.txt\r\n");
}

TEST_F(StartUp, TheBareOutputNameGetsHtmlOrTxt) {
  Start(L"/f C:\\sets\\a.fvf /t h /o C:\\Out\\list /g");
  EXPECT_TRUE(Exists(L"C:\\Out\\list.html"));
  Start(L"/f C:\\sets\\a.fvf /t c /o C:\\Out\\list /g");
  EXPECT_TRUE(Exists(L"C:\\Out\\list.txt"));
  EXPECT_EQ(mdlVars::OutputKind, OutputKind::Csv);
}

TEST_F(StartUp, AnEmptyOutputNameHasNoDotEither) {
  Start(L"/f C:\\sets\\a.fvf /t t /o");
  EXPECT_EQ(mdlVars::OutputFile, L".txt");
}

TEST_F(StartUp, AQuotedDirectoryMayEndInABackslash) {
  EXPECT_EQ(Start(L"/f \"C:\\sets\\a.fvf\" /d \"c:\\data\\\" /t t /o \"C:\\Out\\my list.txt\" /g"), kExitDone);
  EXPECT_EQ(Fake().Content(L"C:\\Out\\my list.txt"), "C:\\Data\\A.txt\r\n");
}

TEST_F(StartUp, AShareThatIsNotThereIsAnUnreadableDirectory) {
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /d \\\\nobody\\share /t t /o C:\\Out\\list.txt /g"), kExitUnreadable);
  EXPECT_EQ(mdlVars::Start.Shown, L"\\\\Nobody\\Share");
  EXPECT_EQ(Fake().Content(L"C:\\Out\\list.txt"), "");
}

TEST_F(StartUp, GoWithoutAnOutputFileAsksForOne) {
  Session().SaveDialog = [] {
    mdlVars::OutputFile = L"C:\\Out\\asked.txt";
    return true;
  };
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t t /g"), kExitDone);
  EXPECT_EQ(Session().OutputFileAsked, 1);
  EXPECT_TRUE(Exists(L"C:\\Out\\asked.txt"));
}

TEST_F(StartUp, CancellingTheSaveDialogEndsWithoutAListing) {
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t x /g"), kExitFailed);
  EXPECT_EQ(Session().OutputFileAsked, 1);
  EXPECT_EQ(mdlVars::OutputKind, OutputKind::Xml);
  EXPECT_TRUE(Fake().Messages.empty());
  EXPECT_EQ(Session().Shown, 0);
}

TEST_F(StartUp, ARunThatEndsWithoutAListingFails) {
  Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nFormat=5\r\nPath=C:\\Data\r\n");
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t t /o C:\\Out\\list.txt /g"), kExitFailed);
  EXPECT_EQ(Fake().Messages.size(), 1u) << "no Find window is open";
}

TEST_F(StartUp, AScreenDestinationAsksForATextFile) {
  Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nOutputTo=2\r\n");
  Start(L"/f C:\\sets\\a.fvf /g");
  EXPECT_EQ(Session().OutputFileAsked, 1);
  EXPECT_EQ(mdlVars::OutputKind, OutputKind::Text);
}

TEST_F(StartUp, APrinterDestinationPrintsWithoutAnyDialog) {
  Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nOutputTo=0\r\nPath=C:\\Data\r\n");
  Session().Printers = {L"Laser"};
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /g"), kExitDone);
  EXPECT_EQ(mdlVars::OutputKind, OutputKind::Printer);
  EXPECT_EQ(mdlVars::Printer.PrinterName, L"Laser");
  EXPECT_EQ(Session().OutputFileAsked, 0);
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST_F(StartUp, AnOutputFileAloneDoesNotChangeTheDestination) {
  Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nOutputTo=0\r\nPath=C:\\Data\r\n");
  Session().Printers = {L"Laser"};
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /o C:\\Out\\list.txt /g"), kExitDone);
  EXPECT_EQ(mdlVars::OutputKind, OutputKind::Printer);
  EXPECT_FALSE(Exists(L"C:\\Out\\list.txt"));
}

TEST_F(StartUp, PrintingWithoutAnyPrinterIsToldAndFails) {
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t p /g"), kExitFailed);
  ASSERT_EQ(Fake().Messages.size(), 1u);
  EXPECT_EQ(Fake().Messages[0].Text, L"No printer.");
}

// The words of "Cannot print" are for printers that fail; here there is none that could.
TEST_F(StartUp, WithoutAChosenAndADefaultPrinterThatIsToldAndFails) {
  Session().Printers = {L"Laser"};
  Session().HasDefaultPrinter = false;
  for (const wchar_t* const name : {L"(no printer)", L""}) {
    Fake().Messages.clear();
    Store(L"PrinterName", name);
    EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t p /g"), kExitFailed);
    ASSERT_EQ(Fake().Messages.size(), 1U);
    EXPECT_EQ(Fake().Messages[0].Text, L"None chosen.");
  }
  Fake().Messages.clear();
  Store(L"PrinterName", L"Laser");
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t p /g"), kExitDone);
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST_F(StartUp, AFileRunDoesNotAskForThePrinter) {
  Session().Printers = {L"Laser"};
  Start(L"/f C:\\sets\\a.fvf /t t /o C:\\Out\\list.txt /g");
  EXPECT_EQ(Session().DefaultPrinterAsked, 0);
}

TEST_F(StartUp, AFailedRunIsToldAndFails) {
  Fake().FailCreates[L"C:\\Out\\list.txt"] = fakes::AccessDenied();
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t t /o C:\\Out\\list.txt /g"), kExitFailed);
  ASSERT_EQ(Fake().Messages.size(), 1u);
  EXPECT_EQ(Fake().Messages[0].Text, L"Cannot create \"C:\\Out\\list.txt\": Access is denied. (5)");
  EXPECT_EQ(Fake().OpenOutputFiles, 0);
}

TEST_F(StartUp, AnyOtherExceptionIsToldInTheProgramsOwnWordsAndFailsToo) {
  Session().SaveDialog = []() -> bool { throw std::length_error("basic_string::_M_create"); };
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t t /g"), kExitFailed);
  ASSERT_EQ(Fake().Messages.size(), 1u);
  EXPECT_EQ(Fake().Messages[0].Text, L"Unexpected.");
}

TEST_F(StartUp, MemoryThatRunsOutHasItsOwnWords) {
  Session().SaveDialog = []() -> bool { throw std::bad_alloc(); };
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t t /g"), kExitFailed);
  ASSERT_EQ(Fake().Messages.size(), 1u);
  EXPECT_EQ(Fake().Messages[0].Text, L"No memory.");
}

TEST_F(StartUp, AFailureBeforeTheLanguageIsThereIsToldInEnglish) {
  Fake().OnStoreRead = [] { throw std::logic_error("basic_string::_M_replace_aux"); };
  EXPECT_EQ(Start(L""), kExitFailed);
  ASSERT_EQ(Fake().Messages.size(), 1u);
  EXPECT_EQ(Fake().Messages[0].Text, L"Unexpected.");
  EXPECT_EQ(Session().Shown, 0);
}

TEST_F(StartUp, AnUnreadableDirectoryEndsWithAStatusOfItsOwn) {
  Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nFormat=1\r\nPath=C:\\Data\r\n");
  Tree().Dir(L"C:\\Data").Folder(L"Locked").Unreadable();
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t t /o C:\\Out\\list.txt /g"), kExitUnreadable);
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST_F(StartUp, AnUnreadableFilterFileIsToldAndFails) {
  Fake().FailReads[L"C:\\sets\\a.fvf"] = fakes::AccessDenied();
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /g"), kExitFailed);
  ASSERT_EQ(Fake().Messages.size(), 1u);
  EXPECT_EQ(Fake().Messages[0].Text, L"Cannot read \"C:\\sets\\a.fvf\": Access is denied. (5)");
}

TEST_F(StartUp, AFilterFileThatIsTooLargeIsToldWithItsNameAndTheLimit) {
  FilterFile(std::string(std::size_t{16} * 1024 * 1024, ' '));
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t t /o C:\\Out\\list.txt /g"), kExitFailed);
  ASSERT_EQ(Fake().Messages.size(), 1u);
  EXPECT_EQ(Fake().Messages[0].Text, L"C:\\sets\\a.fvf is over 16 MB");
  EXPECT_FALSE(Exists(L"C:\\Out\\list.txt"));
}

TEST_F(StartUp, AListWithoutAFullPathIsToldAndFails) {
  Tree().File(L"C:\\Data\\list.txt", "A.txt\r\n");
  Tree().File(L"C:\\sets\\a.fvf", "[Folivant 3.5]\r\nFormat=6\r\nPath=C:\\Data\\list.txt\r\n");
  EXPECT_EQ(Start(L"/f C:\\sets\\a.fvf /t t /o C:\\Out\\list.txt /g"), kExitFailed);
  ASSERT_EQ(Fake().Messages.size(), 1u);
  EXPECT_EQ(Fake().Messages[0].Text, L"No path in C:\\Data\\list.txt, none.");
}

TEST_F(StartUp, ABadStoredValueIsToldInTheLanguageAndTheStartGoesOn) {
  Store(L"TextWidth", L"wide");
  Start(L"");
  ASSERT_EQ(Fake().Messages.size(), 1u);
  EXPECT_EQ(Fake().Messages[0].Text, L"HKEY_CURRENT_USER\\Software\\Folivant 3.0\\Settings, TextWidth, wide");
  EXPECT_EQ(mdlVars::General.TextWidth, 80);
  EXPECT_EQ(Session().Shown, 1);
}

TEST_F(StartUp, TheLanguageOfTheSettingsIsLoaded) {
  Tree().File(L"C:\\Program Files\\Folivant\\dutch.ini", "[Messages]\r\n100=Geen printer.\r\n");
  Store(L"Language", L"dutch.ini");
  Start(L"");
  EXPECT_EQ(mdlVars::Texts[TextId::NoPrinter], L"Geen printer.");
  EXPECT_EQ(mdlVars::HelpFile, L"C:\\Program Files\\Folivant\\folvnt40.hlp");
  EXPECT_EQ(mdlVars::ManualFile, L"C:\\Program Files\\Folivant\\help\\english.html") << "there is no Dutch one";
}

class SendTo : public StartUp {
 protected:
  SendTo() {
    Fake().SendToFolder = L"C:\\Users\\me\\SendTo";
    Tree().File(L"C:\\Users\\me\\SendTo\\Folivant.s2f", "old");
    Tree().File(L"C:\\Users\\you\\SendTo\\Folivant.s2f", "");
    Tree().File(L"C:\\Users\\you\\SendTo\\Other.s2f", "");
    Tree().Dir(L"C:\\Users\\none");
  }
};

TEST_F(SendTo, IsRecreatedEmptyAtEveryStart) {
  Start(L"");
  EXPECT_EQ(Fake().Content(L"C:\\Users\\me\\SendTo\\Folivant.s2f"), "");
  Tree().Remove(L"C:\\Users\\me\\SendTo\\Folivant.s2f");
  Start(L"/f");
  EXPECT_TRUE(Exists(L"C:\\Users\\me\\SendTo\\Folivant.s2f"));
}

TEST_F(SendTo, AFailureToRecreateItIsNotReported) {
  Fake().FailCreates[L"C:\\Users\\me\\SendTo\\Folivant.s2f"] = fakes::AccessDenied();
  Start(L"");
  Fake().SendToFolder.reset();
  Start(L"");
  EXPECT_TRUE(Fake().Messages.empty());
  EXPECT_EQ(Session().Shown, 2);
}

TEST_F(SendTo, RemovalDeletesTheTargetOfEveryProfileAndNothingElse) {
  EXPECT_EQ(Start(L"/deletesendto"), kExitDone);
  EXPECT_FALSE(Exists(L"C:\\Users\\me\\SendTo\\Folivant.s2f"));
  EXPECT_FALSE(Exists(L"C:\\Users\\you\\SendTo\\Folivant.s2f"));
  EXPECT_TRUE(Exists(L"C:\\Users\\you\\SendTo\\Other.s2f"));
  EXPECT_EQ(Session().Shown, 0);
  EXPECT_TRUE(Fake().Messages.empty());
}

TEST_F(SendTo, RemovalDeletesTheOwnTargetWhereverItLies) {
  Tree().Dir(L"C:\\Closed").Unreadable();
  for (const std::wstring folder : {L"C:\\Users\\me\\AppData\\Roaming\\Microsoft\\Windows\\SendTo",
                                    L"C:\\Users\\me\\Senden an", L"C:\\Closed\\me\\SendTo", L"D:\\SendTo"}) {
    Fake().SendToFolder = folder;
    Tree().File(folder + L"\\Folivant.s2f", "");
    EXPECT_EQ(Start(L"/deletesendto"), kExitDone);
    EXPECT_EQ(Tree().Find(folder + L"\\Folivant.s2f"), nullptr) << testing::PrintToString(folder);
  }
}

TEST_F(SendTo, RemovalWithoutASendToFolderDoesNothing) {
  Fake().SendToFolder.reset();
  EXPECT_EQ(Start(L"/deletesendto"), kExitDone);
  EXPECT_TRUE(Exists(L"C:\\Users\\me\\SendTo\\Folivant.s2f"));
}

}  // namespace
}  // namespace folivant
