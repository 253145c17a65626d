#include "output/mdlPrint.h"

#include <deque>

#include "output/WriterFixture.h"
#include "platform/RuntimeError.h"

namespace folivant {
namespace {

class Driver : public WriterFixture {
 protected:
  /// A whole run of style 1 that lists one file in the start directory.
  std::string ListedAs(OutputKind kind) {
    Style(ListingStyle::IncludeSubdirectories);
    driver_.Choose(kind);
    driver_.BeginListing(Run);
    List(driver_, L"C:\\Data", {File(L"a.txt")});
    driver_.EndListing();
    return Written();
  }
  OutputDriver driver_;
};

TEST_F(Driver, ForwardsToTheWriterOfTheChosenKind) {
  EXPECT_NE(ListedAs(OutputKind::Text).find("\r\nA.txt  "), std::string::npos);
  EXPECT_NE(ListedAs(OutputKind::TabDelimited).find("\r\nA.txt\tshort.nam\t1,234 b\t"), std::string::npos);
  EXPECT_NE(ListedAs(OutputKind::Csv).find("\r\nA.txt;short.nam;1,234 b;"), std::string::npos);
  EXPECT_NE(ListedAs(OutputKind::Html).find("<tr><td>A.txt<td>"), std::string::npos);
  EXPECT_NE(ListedAs(OutputKind::Xml).find("<file><name>A.txt</name>"), std::string::npos);
}

TEST_F(Driver, DropsEmptySubdirectoriesUnlessAskedFor) {
  driver_.Choose(OutputKind::Xml);
  for (const ListingStyle style : {ListingStyle::FullPathList, ListingStyle::IncludeSubdirectories}) {
    Style(style);
    General.EmptyDirs = false;
    driver_.BeginListing(Run);
    List(driver_, L"C:\\Data", {}, 0);
    List(driver_, L"C:\\Data\\Dropped", {}, 1);
    General.EmptyDirs = true;
    List(driver_, L"C:\\Data\\Kept", {}, 1);
    driver_.EndListing();
    EXPECT_NE(Written().find("<name>C:\\Data</name>"), std::string::npos) << "the root is always listed";
    EXPECT_EQ(Written().find("Dropped"), std::string::npos);
    EXPECT_NE(Written().find("Kept"), std::string::npos);
  }
}

TEST_F(Driver, ListsSubdirectoriesThatHoldSomething) {
  Style(ListingStyle::FullPathList);
  driver_.BeginListing(Run);
  List(driver_, L"C:\\Data\\Sub", {File(L"x")}, 1);
  driver_.EndListing();
  EXPECT_EQ(Written(), "C:\\Data\\Sub\\X\r\n");
}

TEST_F(Driver, AbortsWithoutTotalsOrFreeSpace) {
  for (const OutputKind kind :
       {OutputKind::Text, OutputKind::TabDelimited, OutputKind::Csv, OutputKind::Html, OutputKind::Xml}) {
    Style(ListingStyle::IncludeSubdirectories);
    driver_.Choose(kind);
    driver_.BeginListing(Run);
    List(driver_, L"C:\\Data", {File(L"a.txt")});
    driver_.AbortListing();
    EXPECT_EQ(Written().find("free of"), std::string::npos);
    EXPECT_EQ(Written().find("0 directories"), std::string::npos);
    EXPECT_EQ(Written().find("</xml>"), std::string::npos);
    EXPECT_EQ(fakes::Fake().OpenOutputFiles, 0);
  }
}

TEST_F(Driver, MayBeAbortedBeforeAnythingBegan) {
  driver_.AbortListing();
  EXPECT_EQ(fakes::Fake().OpenOutputFiles, 0);
}

TEST_F(Driver, ReportsAFileThatCannotBeCreated) {
  fakes::Fake().FailCreates[OutputFile] = fakes::AccessDenied();
  for (const OutputKind kind : {OutputKind::Text, OutputKind::Html, OutputKind::Xml}) {
    driver_.Choose(kind);
    try {
      driver_.BeginListing(Run);
      ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Action(), FailedAction::CreateFile);
      EXPECT_EQ(error.Object(), OutputFile);
      EXPECT_EQ(error.SystemCode(), 5U);
    }
    driver_.AbortListing();
    EXPECT_EQ(fakes::Fake().OpenOutputFiles, 0);
  }
}

TEST_F(Driver, ClosesTheFileWhenTheDiskIsFull) {
  fakes::Fake().DiskFullAfter = 200;
  Style(ListingStyle::FullPathList);
  const auto listAll = [this] {
    driver_.BeginListing(Run);
    for (int i = 0; i < 10'000; ++i) {
      List(driver_, L"C:\\Data", {File(L"some file")});
    }
    driver_.EndListing();
  };
  EXPECT_THROW(listAll(), RuntimeError);
  driver_.AbortListing();
  EXPECT_EQ(fakes::Fake().OpenOutputFiles, 0);

  fakes::Fake().DiskFullAfter.reset();
  driver_.BeginListing(Run);
  List(driver_, L"C:\\Data", {File(L"again")});
  driver_.EndListing();
  EXPECT_EQ(Written(), "C:\\Data\\Again\r\n") << "the run after it starts afresh";
}

TEST_F(Driver, ReportsAFileThatCannotBeClosed) {
  fakes::Fake().FailCloses[OutputFile] = fakes::DiskFull();
  EXPECT_THROW(ListedAs(OutputKind::Text), RuntimeError);
  driver_.AbortListing();
  EXPECT_EQ(fakes::Fake().OpenOutputFiles, 0);
}

TEST(WithDefaultExtension, AppendsTheExtensionOfTheKind) {
  EXPECT_EQ(WithDefaultExtension(L"C:\\list", OutputKind::Text), L"C:\\list.txt");
  EXPECT_EQ(WithDefaultExtension(L"C:\\list", OutputKind::TabDelimited), L"C:\\list.txt");
  EXPECT_EQ(WithDefaultExtension(L"C:\\list", OutputKind::Html), L"C:\\list.html");
  EXPECT_EQ(WithDefaultExtension(L"C:\\list", OutputKind::Xml), L"C:\\list.xml");
  EXPECT_EQ(WithDefaultExtension(L"C:\\list", OutputKind::Printer), L"C:\\list.txt");
  EXPECT_EQ(WithDefaultExtension(L"C:\\list", static_cast<OutputKind>(9)), L"C:\\list.txt");
}

TEST(WithDefaultExtension, GivesCsvFilesTxt) {
  EXPECT_EQ(WithDefaultExtension(L"C:\\list", OutputKind::Csv), L"C:\\list.txt");
  EXPECT_EQ(WithDefaultExtension(L"C:\\list.csv", OutputKind::Csv), L"C:\\list.csv");
}

TEST(WithDefaultExtension, KeepsANameWithAnyDot) {
  EXPECT_EQ(WithDefaultExtension(L"C:\\list.v1", OutputKind::Html), L"C:\\list.v1");
  EXPECT_EQ(WithDefaultExtension(L"C:\\list.", OutputKind::Html), L"C:\\list.");
  EXPECT_EQ(WithDefaultExtension(L"C:\\.list", OutputKind::Html), L"C:\\.list");
}

TEST(WithDefaultExtension, DoesNotCountADotInADirectory) {
  EXPECT_EQ(WithDefaultExtension(L"C:\\my.dir\\out", OutputKind::Html), L"C:\\my.dir\\out.html");
}

/// Answers from a list, and remembers what it was preset with.
class Choices final : public DestinationChooser {
 public:
  std::optional<Choice> AskForFile(const Choice& preset) override {
    Presets.push_back(preset.FileName);
    std::optional<Choice> answer;
    if (!Answers.empty()) {
      answer = Answers.front();
      Answers.pop_front();
    }
    return answer;
  }
  std::deque<Choice> Answers;  ///< a cancelled dialog when there is none left
  std::vector<std::wstring> Presets;
};

class ChoosingAFile : public testing::Test {
 protected:
  ChoosingAFile() { fakes::Tree().File(L"C:\\Out\\old.txt", "old"); }
  bool Choose() { return ChooseOutputFile(chooser_, TestTexts(), choice_); }
  Choices chooser_;
  DestinationChooser::Choice choice_{L"C:\\Out\\before", OutputKind::Xml};
};

TEST_F(ChoosingAFile, TakesNameAndKind) {
  chooser_.Answers = {{L"C:\\Out\\new", OutputKind::Html}};
  EXPECT_TRUE(Choose());
  EXPECT_EQ(choice_.FileName, L"C:\\Out\\new.html");
  EXPECT_EQ(choice_.Kind, OutputKind::Html);
  EXPECT_TRUE(fakes::Fake().Messages.empty());
}

TEST_F(ChoosingAFile, ChangesNothingWhenCancelled) {
  EXPECT_FALSE(Choose());
  EXPECT_EQ(choice_.FileName, L"C:\\Out\\before");
  EXPECT_EQ(choice_.Kind, OutputKind::Xml);
  EXPECT_TRUE(fakes::Fake().Messages.empty());
}

TEST_F(ChoosingAFile, AsksBeforeItOverwrites) {
  chooser_.Answers = {{L"C:\\Out\\old", OutputKind::Text}};
  fakes::Fake().Answers = {platform::BoxAnswer::Yes};
  EXPECT_TRUE(Choose());
  ASSERT_EQ(fakes::Fake().Messages.size(), 1U);
  const fakes::ShownMessage& question = fakes::Fake().Messages[0];
  EXPECT_EQ(question.Text, L"The file\r\nC:\\Out\\old.txt\r\nalready exists. Do you want to overwrite it?");
  EXPECT_EQ(question.Icon, platform::BoxIcon::Information);
  EXPECT_EQ(question.Buttons, platform::BoxButtons::YesNo);
  EXPECT_EQ(question.Preset, platform::BoxDefault::Second);
}

TEST_F(ChoosingAFile, ShowsTheDialogAgainAfterNo) {
  chooser_.Answers = {{L"C:\\Out\\old.txt", OutputKind::Text}, {L"C:\\Out\\old.txt", OutputKind::Csv}};
  fakes::Fake().Answers = {platform::BoxAnswer::No, platform::BoxAnswer::Yes};
  EXPECT_TRUE(Choose());
  EXPECT_EQ(chooser_.Presets, (std::vector<std::wstring>{L"C:\\Out\\before", L"C:\\Out\\old.txt"}));
  EXPECT_EQ(choice_.Kind, OutputKind::Csv);
  EXPECT_EQ(fakes::Fake().Messages.size(), 2U);
}

TEST_F(ChoosingAFile, MayBeCancelledAfterNo) {
  chooser_.Answers = {{L"C:\\Out\\old.txt", OutputKind::Text}};
  fakes::Fake().Answers = {platform::BoxAnswer::No};
  EXPECT_FALSE(Choose());
  EXPECT_EQ(choice_.FileName, L"C:\\Out\\before");
  EXPECT_EQ(chooser_.Presets.size(), 2U);
}

TEST(ScreenFileName, IsAlwaysTheSame) {
  fakes::Fake().TemporaryDirectory = L"C:\\Temp";
  EXPECT_EQ(ScreenFileName(), L"C:\\Temp\\~fv00001.tmp");
  fakes::Fake().TemporaryDirectory = L"D:\\";
  EXPECT_EQ(ScreenFileName(), L"D:\\~fv00001.tmp");
}

}  // namespace
}  // namespace folivant
