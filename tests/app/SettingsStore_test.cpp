#include "app/SettingsStore.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"

namespace folivant {
namespace {

class SettingsStoreTest : public testing::Test {
 protected:
  SettingsStoreTest() { fakes::Fake().Reset(); }
};

TEST_F(SettingsStoreTest, FindsWhatItWroteIntoASectionThatWasNotThere) {
  SettingsStore store;
  EXPECT_EQ(store.GetStoreSetting(L"Settings", L"Key", L"preset"), L"preset");
  store.SaveStoreSetting(L"Settings", L"Key", L"stored");
  EXPECT_EQ(store.GetStoreSetting(L"Settings", L"Key", L"preset"), L"stored");
  EXPECT_EQ(store.GetStoreSetting(L"Settings", L"Other", L"preset"), L"preset");
}

TEST_F(SettingsStoreTest, AKeyThatIsTakenOutHasItsPresetAgain) {
  SettingsStore store;
  store.SaveSettingEx(L"Settings", L"Key", L"stored");
  store.RemoveSettingEx(L"Settings", L"Key");
  EXPECT_EQ(store.GetSettingEx(L"Settings", L"Key", L"preset"), L"preset");
  EXPECT_TRUE(fakes::Fake().Store.empty());
  store.RemoveSettingEx(L"Settings", L"Key");
}

TEST_F(SettingsStoreTest, OfTheUserAlwaysHoldsSettings) {
  EXPECT_TRUE(SettingsStore().HoldsSettings());
}

}  // namespace
}  // namespace folivant
