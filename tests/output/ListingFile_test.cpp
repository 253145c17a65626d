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
