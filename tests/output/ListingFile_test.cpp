#include "output/ListingFile.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"
#include "platform/RuntimeError.h"

namespace folivant {
namespace {

using fakes::Fake;

const std::wstring kPath = L"C:\\Out\\list.txt";

class ListingFileTest : public testing::Test {
 protected:
  ListingFileTest() {
    fakes::Tree().Dir(L"C:\\Out");
    file_.Open(kPath);
  }
  ListingFile file_;
};

TEST_F(ListingFileTest, PutsALineTogetherAndWritesItWithItsEnd) {
  file_.Line() += L"one";
  file_.WriteLine(L" two");
  EXPECT_EQ(Fake().Content(kPath), "one two\r\n");
  file_.WriteLine(L"<", L"text", L">");
  file_.EndLine();
  file_.Close();
  EXPECT_EQ(Fake().Content(kPath), "one two\r\n<text>\r\n\r\n");
}

TEST_F(ListingFileTest, WritesAnUnfinishedLineAsItStands) {
  file_.Line() += L"at the end";
  file_.Close();
  EXPECT_EQ(Fake().Content(kPath), "at the end");
  EXPECT_EQ(Fake().OpenOutputFiles, 0);
  file_.Open(kPath);
  file_.Line() += L"broken off";
  file_.Abandon();
  EXPECT_EQ(Fake().Content(kPath), "broken off");
  EXPECT_EQ(Fake().OpenOutputFiles, 0);
}

TEST_F(ListingFileTest, ForgetsTheLineOfAFileThatCouldNotBeWritten) {
  Fake().DiskFullAfter = 0;
  EXPECT_THROW(file_.WriteLine(L"lost"), RuntimeError);
  file_.Abandon();
  EXPECT_EQ(Fake().OpenOutputFiles, 0);
  Fake().DiskFullAfter.reset();
  file_.Open(kPath);
  file_.WriteLine(L"again");
  file_.Close();
  EXPECT_EQ(Fake().Content(kPath), "again\r\n");
}

TEST_F(ListingFileTest, BecomesATextInsteadOfAFileUntilItIsClosed) {
  file_.Close();
  std::wstring text = L"before ";
  for (const bool closed : {true, false}) {
    file_.OpenText(text);
    file_.WriteLine(L"\u03A9 \xD800 <", L"text", L">");
    EXPECT_EQ(text, L"before \u03A9 \xD800 <text>\r\n") << "every character as it is";
    file_.Line() += L"unfinished";
    closed ? file_.Close() : file_.Abandon();
    EXPECT_EQ(text, closed ? L"before \u03A9 \xD800 <text>\r\nunfinished" : L"before \u03A9 \xD800 <text>\r\n");
    EXPECT_EQ(Fake().Content(kPath), "") << "no file is written";
    file_.Open(kPath);
    file_.WriteLine(L"a file again");
    file_.Close();
    EXPECT_EQ(Fake().Content(kPath), "a file again\r\n");
    EXPECT_EQ(text.find(L"a file"), text.npos);
    text = L"before ";
    file_.Open(kPath);
    file_.Close();
  }
}

TEST_F(ListingFileTest, AbandonsTwiceWithoutHarm) {
  file_.Abandon();
  file_.Line() += L"into nothing";
  file_.Abandon();
  EXPECT_EQ(Fake().Content(kPath), "");
  file_.Open(kPath);
  file_.Close();
  EXPECT_EQ(Fake().Content(kPath), "") << "a file begins without what was left";
}

}  // namespace
}  // namespace folivant
