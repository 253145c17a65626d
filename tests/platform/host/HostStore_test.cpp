#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/Files.h"
#include "platform/MessageBox.h"
#include "platform/RuntimeError.h"
#include "platform/Scratch.h"
#include "platform/Store.h"

namespace folivant::platform {
namespace {

class HostStore : public testing::Test {
 protected:
  HostStore() { setenv("XDG_CONFIG_HOME", Scratch::Native(scratch_.Path(L"config")).c_str(), 1); }
  ~HostStore() override { unsetenv("XDG_CONFIG_HOME"); }

  const std::wstring file_ = L"config\\Folivant 3.0\\settings.ini";
  const Scratch scratch_;
};

TEST_F(HostStore, HoldsNothingAtFirst) {
  EXPECT_FALSE(StoreSection(L"Settings").Read(L"Language"));
  EXPECT_EQ(scratch_.Count(), 0) << "reading must make no file";
}

TEST_F(HostStore, KeepsValuesInAProfileFile) {
  WriteStore(L"Settings", L"Language", L"english.ini");
  WriteStore(L"Filter", L"Pattern", L" *.txt ");
  WriteStore(L"Settings", L"Language", L"\u65E5");
  EXPECT_EQ(StoreSection(L"settings").Read(L"language"), L"\u65E5");
  EXPECT_EQ(StoreSection(L"Filter").Read(L"Pattern"), L" *.txt ");
  EXPECT_FALSE(StoreSection(L"Filter").Read(L"Language"));
  EXPECT_TRUE(PathExists(scratch_.Path(file_)));
  EXPECT_EQ(StoreName(L"Filter"), scratch_.Path(file_));
}

TEST_F(HostStore, KeepsWhatItDoesNotKnow) {
  scratch_.MakeFolder(L"config\\Folivant 3.0");
  scratch_.MakeFile(file_, "; mine\r\n[Settings]\r\nOther=1\r\n");
  WriteStore(L"Settings", L"New", L"2");
  EXPECT_EQ(scratch_.Content(file_), "; mine\r\n[Settings]\r\nOther=1\r\nNew=2\r\n");
}

TEST_F(HostStore, TakesAKeyOut) {
  RemoveFromStore(L"Settings", L"Language");
  EXPECT_EQ(scratch_.Count(), 0) << "there was nothing to take out";
  WriteStore(L"Settings", L"Language", L"english.ini");
  WriteStore(L"Settings", L"Other", L"1");
  RemoveFromStore(L"settings", L"language");
  EXPECT_FALSE(StoreSection(L"Settings").Read(L"Language"));
  EXPECT_EQ(StoreSection(L"Settings").Read(L"Other"), L"1");
}

TEST_F(HostStore, SeesWhatOthersWrite) {
  WriteStore(L"Settings", L"A", L"1");
  ReplaceFile(scratch_.Path(file_), "[Settings]\r\nA=2\r\n");
  EXPECT_EQ(StoreSection(L"Settings").Read(L"A"), L"2");
  WriteStore(L"Settings", L"B", L"3");
  EXPECT_EQ(StoreSection(L"Settings").Read(L"A"), L"2");
}

TEST_F(HostStore, NamesSectionAndKeyOfAFailedWrite) {
  scratch_.MakeFile(L"config", "a file in the way");
  try {
    WriteStore(L"Settings", L"Language", L"x");
    FAIL() << "nothing was thrown";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Action(), FailedAction::WriteSetting);
    EXPECT_EQ(error.Object(), scratch_.Path(file_) + L"\\Settings\\Language");
    EXPECT_NE(error.SystemCode(), 0U);
  }
}

TEST(HostShell, KnowsTheSendToFolderOfTheEnvironment) {
  unsetenv("FOLIVANT_SENDTO");
  EXPECT_FALSE(SendToFolder());
  setenv("FOLIVANT_SENDTO", "/tmp/Send To", 1);
  EXPECT_EQ(SendToFolder(), L"Z:\\tmp\\Send To");
  unsetenv("FOLIVANT_SENDTO");
}

TEST(HostMessage, GoesToStandardErrorAndChangesNothing) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(ShowMessage(L"one \u20AC", BoxIcon::Exclamation, BoxButtons::Ok), BoxAnswer::Ok);
  EXPECT_EQ(ShowMessage(L"two", BoxIcon::Question, BoxButtons::YesNo), BoxAnswer::No);
  EXPECT_EQ(ShowMessage(L"three", BoxIcon::Question, BoxButtons::YesNoCancel), BoxAnswer::Cancel);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "one \xE2\x82\xAC\ntwo\nthree\n");
}

}  // namespace
}  // namespace folivant::platform
