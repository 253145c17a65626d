#include "platform/LogFile.h"

#include <gtest/gtest.h>

#include "platform/RuntimeError.h"
#include "platform/Scratch.h"

namespace folivant::platform {
namespace {

TEST(LogFile, EachLineIsThereAtOnce) {
  const Scratch scratch;
  LogFile log(scratch.Path(L"log.txt"), LogStart::Anew);
  EXPECT_EQ(scratch.Content(L"log.txt"), "");
  log.WriteLine(L"one \u00E4 \u65E5");
  EXPECT_EQ(scratch.Content(L"log.txt"), "one \xC3\xA4 \xE6\x97\xA5\r\n");
  log.WriteLine(L"");
  log.WriteLine(L"three\xD800");
  EXPECT_EQ(scratch.Content(L"log.txt"), "one \xC3\xA4 \xE6\x97\xA5\r\n\r\nthree\xEF\xBF\xBD\r\n");
}

TEST(LogFile, BeginsAnewOrGoesOn) {
  const Scratch scratch;
  scratch.MakeFile(L"log.txt", "before\r\n");
  LogFile(scratch.Path(L"log.txt"), LogStart::Append).WriteLine(L"after");
  EXPECT_EQ(scratch.Content(L"log.txt"), "before\r\nafter\r\n");
  LogFile(scratch.Path(L"log.txt"), LogStart::Anew).WriteLine(L"anew");
  EXPECT_EQ(scratch.Content(L"log.txt"), "anew\r\n");
  LogFile(scratch.Path(L"new.txt"), LogStart::Append).WriteLine(L"first");
  EXPECT_EQ(scratch.Content(L"new.txt"), "first\r\n");
}

TEST(LogFile, IsSharedWithOthersWhoAppend) {
  const Scratch scratch;
  LogFile one(scratch.Path(L"log.txt"), LogStart::Append);
  LogFile two(scratch.Path(L"log.txt"), LogStart::Append);
  for (int i = 0; i < 3; ++i) {
    one.WriteLine(L"one");
    two.WriteLine(L"two");
  }
  EXPECT_EQ(scratch.Content(L"log.txt"), "one\r\ntwo\r\none\r\ntwo\r\none\r\ntwo\r\n");
}

TEST(LogFile, ThatCannotBeMadeIsAnErrorThatNamesIt) {
  const Scratch scratch;
  try {
    LogFile(scratch.Path(L"no\\log.txt"), LogStart::Anew);
    FAIL() << "nothing was thrown";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Action(), FailedAction::CreateFile);
    EXPECT_EQ(error.Object(), scratch.Path(L"no\\log.txt"));
  }
}

}  // namespace
}  // namespace folivant::platform
