#include "fakes/FakePlatform.h"

#include <gtest/gtest.h>
#include <algorithm>

#include <memory>

#include "platform/RuntimeError.h"
#include "platform/Store.h"

namespace folivant::fakes {
namespace {

/// Every test begins with an empty machine.
class ResetBeforeEachTest final : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override { Fake().Reset(); }
};

[[maybe_unused]] const bool appended = [] {
  testing::UnitTest::GetInstance()->listeners().Append(new ResetBeforeEachTest);  // owned by the list
  return true;
}();

}  // namespace

FakeFailure AccessDenied() {
  return {5, L"Access is denied."};
}
FakeFailure DiskFull() {
  return {112, L"There is not enough space on the disk."};
}

FakePlatform& Fake() {
  static FakePlatform platform;
  return platform;
}

void FakePlatform::Reset() {
  std::destroy_at(this);
  std::construct_at(this);
}

std::string FakePlatform::Content(std::wstring_view path) {
  const FakeNode* node = Tree.Find(path);
  EXPECT_TRUE(node != nullptr && !node->IsDirectory()) << "no such file";
  return node == nullptr ? std::string() : node->Content;
}

}  // namespace folivant::fakes

namespace folivant::platform {

using fakes::Fake;

std::uint64_t UtcNow() {
  return fakes::FileTime(Fake().Now) - static_cast<std::uint64_t>(LocalOffset());
}

CalendarTime Now() {
  return Fake().Now;
}

std::int64_t LocalOffset() {
  constexpr std::int64_t kTicksPerMinute = 600'000'000;
  return Fake().LocalOffsetMinutes * kTicksPerMinute;
}

std::uint32_t TimerMilliseconds() {
  return Fake().TimerMilliseconds;
}
TimerPeriods TimerCapabilities() {
  return Fake().TimerPeriods;
}

const UserLocale& Locale() {
  return Fake().Locale;
}

std::wstring FormatShortDate(int year, int month, int day) {
  const std::wstring& separator = Fake().Locale.DateSeparator;
  return std::to_wstring(month) + separator + std::to_wstring(day) + separator + std::to_wstring(year);
}

std::optional<BoxAnswer> ShowBox(const std::wstring& text, BoxIcon icon, BoxButtons buttons, BoxDefault preset) {
  if (!Fake().CanShowWindows) {
    return std::nullopt;
  }
  Fake().LastMessage.fill(L'\0');
  text.copy(Fake().LastMessage.data(), Fake().LastMessage.size() - 1);
  Fake().Messages.push_back({text, icon, buttons, preset});
  if (!Fake().Answers.empty()) {
    const BoxAnswer answer = Fake().Answers.front();
    Fake().Answers.pop_front();
    return answer;
  }
  switch (buttons) {
    case BoxButtons::YesNo:
      return BoxAnswer::No;
    case BoxButtons::YesNoCancel:
      return BoxAnswer::Cancel;
    case BoxButtons::Ok:
      break;
  }
  return BoxAnswer::Ok;
}

bool CanShowWindows() {
  return Fake().CanShowWindows;
}

void WriteStandardError(std::wstring_view text) {
  Fake().StandardError.emplace_back(text);
}

struct StoreSection::State {
  std::wstring Name;
  bool IsThere;  ///< when it was opened
};

StoreSection::StoreSection(const std::wstring& section)
    : state_(std::make_unique<State>(State{section, std::ranges::any_of(Fake().Store, [&](const auto& value) {
                                             return value.first.first == section;
                                           })})) {}

StoreSection::~StoreSection() = default;

std::optional<std::wstring> StoreSection::Read(const std::wstring& key) const {
  Fake().OnStoreRead();
  const auto found = Fake().Store.find({state_->Name, key});
  return !state_->IsThere || found == Fake().Store.end() ? std::nullopt : std::optional(found->second);
}

void WriteStore(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
  if (const auto& failure = Fake().FailStoreWrites) {
    throw RuntimeError(FailedAction::WriteSetting, StoreName(section) + L"\\" + key, failure->Text, failure->Code);
  }
  Fake().Store[{section, key}] = value;
}

void RemoveFromStore(const std::wstring& section, const std::wstring& key) {
  if (const auto& failure = Fake().FailStoreWrites) {
    throw RuntimeError(FailedAction::WriteSetting, StoreName(section) + L"\\" + key, failure->Text, failure->Code);
  }
  Fake().Store.erase({section, key});
}

std::wstring StoreName(const std::wstring& section) {
  return L"HKEY_CURRENT_USER\\Software\\Folivant 3.0\\" + section;
}

}  // namespace folivant::platform
