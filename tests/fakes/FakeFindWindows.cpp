#include "fakes/FakeFindWindows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "platform/RuntimeError.h"
#include "shell/FindDialog.h"

namespace folivant::fakes {
namespace {

class ResetBeforeEachTest final : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override { FindWindows() = {}; }
};

[[maybe_unused]] const bool appended = [] {
  testing::UnitTest::GetInstance()->listeners().Append(new ResetBeforeEachTest);  // owned by the list
  return true;
}();

FakeWindow* FindIn(std::vector<FakeWindow>& windows, platform::WindowHandle handle) {
  for (FakeWindow& window : windows) {
    if (window.Handle == handle) {
      return &window;
    }
    if (FakeWindow* const inside = FindIn(window.Children, handle)) {
      return inside;
    }
  }
  return nullptr;
}

std::vector<platform::WindowHandle> Handles(const std::vector<FakeWindow>& windows) {
  std::vector<platform::WindowHandle> handles;
  for (const FakeWindow& window : windows) {
    handles.push_back(window.Handle);
  }
  return handles;
}

class PlayedDialog final : public FindDialog {
 public:
  explicit PlayedDialog(FindChoice& choice) : choice_(choice) { ++FindWindows().DialogsOpen; }
  ~PlayedDialog() override { --FindWindows().DialogsOpen; }
  void Show() override { ++FindWindows().DialogsShown; }
  void LetEventsThrough() override {
    FakeFindWindows& windows = FindWindows();
    if (++windows.EventRounds > 10'000) {
      FAIL() << "waits without end";
    }
    if (!windows.User.empty()) {
      const auto act = windows.User.front();
      windows.User.pop_front();
      act(choice_);
    }
  }

 private:
  FindChoice& choice_;
};

}  // namespace

FakeFindWindows& FindWindows() {
  static FakeFindWindows windows;
  return windows;
}

FakeWindow* FakeFindWindows::Find(platform::WindowHandle handle) {
  return FindIn(TopLevel, handle);
}

FakeWindow FindWindow(platform::WindowHandle handle, std::wstring title, std::vector<std::vector<std::string>> rows) {
  FakeWindow list{handle + 2, L"SysListView32", 0x5000'0001, {}, {}};
  list.Rows = std::move(rows);
  FakeWindow view{handle + 1, L"SHELLDLL_DefView", 0x5000'0000, {}, {list}};
  return {handle, L"#32770", 0x14CF'0064, std::move(title), {view}};
}

}  // namespace folivant::fakes

namespace folivant {

std::unique_ptr<FindDialog> OpenFindDialog(FindChoice& choice, const DialogContext&) {
  return std::make_unique<fakes::PlayedDialog>(choice);
}

}  // namespace folivant

namespace folivant::platform {

using fakes::FakeWindow;
using fakes::FindWindows;

std::vector<WindowHandle> TopLevelWindows() {
  return fakes::Handles(FindWindows().TopLevel);
}
std::vector<WindowHandle> ChildWindows(WindowHandle parent) {
  const FakeWindow* const window = FindWindows().Find(parent);
  return window == nullptr ? std::vector<WindowHandle>{} : fakes::Handles(window->Children);
}
std::wstring WindowClass(WindowHandle window) {
  return FindWindows().Find(window)->Class;
}
std::uint32_t WindowStyle(WindowHandle window) {
  return FindWindows().Find(window)->Style;
}
std::wstring WindowTitle(WindowHandle window) {
  return FindWindows().Find(window)->Title;
}

struct ForeignWindow::State {
  FakeWindow* Window;
  std::wstring Title;
  std::vector<std::byte> Block;
  std::uint64_t Address = 0;

  void Count() {
    const int calls = ++FindWindows().Calls;
    if (Window->DiesAtCall && calls >= *Window->DiesAtCall) {
      throw RuntimeError(FailedAction::ReadWindow, Title, L"Invalid window handle.", 1400);
    }
  }

  template <class Value>
  Value Field(std::uint64_t record, std::size_t offset) const {
    Value value;
    std::memcpy(&value, Block.data() + (record - Address) + offset, sizeof(value));
    return value;
  }

  // What a list view does with the request at `record`.
  std::int64_t GetItemText(std::uint64_t record) {
    const bool is32 = Window->Layout == RecordLayout::Bits32;
    EXPECT_EQ(1u, Field<std::uint32_t>(record, 0)) << "text alone is wanted";
    const auto item = Field<std::int32_t>(record, 4);
    const auto column = Field<std::int32_t>(record, 8);
    const std::uint64_t text = is32 ? Field<std::uint32_t>(record, 20) : Field<std::uint64_t>(record, 24);
    if (Window->SilentFrom && item >= *Window->SilentFrom) {
      return 0;
    }
    const auto capacity = static_cast<std::size_t>(Field<std::int32_t>(record, is32 ? 24 : 32));
    const std::string& cell = Window->Rows.at(static_cast<std::size_t>(item)).at(static_cast<std::size_t>(column));
    const std::size_t length = std::min(cell.size(), capacity - 1);
    EXPECT_LE(text - Address + length + 1, Block.size());
    std::memcpy(Block.data() + (text - Address), cell.data(), length);
    Block[text - Address + length] = std::byte{0};
    return 1;
  }
};

ForeignWindow::ForeignWindow(WindowHandle window, std::wstring title)
    : state_(std::make_unique<State>(State{FindWindows().Find(window), std::move(title), {}})) {
  if (const auto& refuses = state_->Window->Refuses) {
    throw RuntimeError(FailedAction::ReadWindow, state_->Title, refuses->Text, refuses->Code);
  }
}
ForeignWindow::~ForeignWindow() = default;
RecordLayout ForeignWindow::Layout() const {
  return state_->Window->Layout;
}
std::uint64_t ForeignWindow::Reserve(std::size_t size) {
  ++FindWindows().Blocks;
  state_->Block.assign(size, std::byte{0});
  state_->Address = Layout() == RecordLayout::Bits32 ? 0x0045'0000 : 0x0000'7FFE'0001'0000;
  return state_->Address;
}
void ForeignWindow::Write(std::size_t offset, std::span<const std::byte> bytes) {
  state_->Count();
  ASSERT_LE(offset + bytes.size(), state_->Block.size());
  std::copy(bytes.begin(), bytes.end(), state_->Block.begin() + static_cast<std::ptrdiff_t>(offset));
}
void ForeignWindow::Read(std::size_t offset, std::span<std::byte> bytes) {
  state_->Count();
  ASSERT_LE(offset + bytes.size(), state_->Block.size());
  std::copy_n(state_->Block.begin() + static_cast<std::ptrdiff_t>(offset), bytes.size(), bytes.begin());
}
std::int64_t ForeignWindow::Send(std::uint32_t message, std::uint64_t wParam, std::uint64_t lParam) {
  state_->Count();
  EXPECT_EQ(0u, wParam);
  if (message == 4100) {  // how many rows
    EXPECT_EQ(0u, lParam);
    return state_->Window->ClaimedRows.value_or(static_cast<std::int64_t>(state_->Window->Rows.size()));
  }
  EXPECT_EQ(4101u, message);
  ++FindWindows().GetItemMessages;
  return state_->GetItemText(lParam);
}

struct SharedMapping::State {
  fakes::FakeMapping* Mapping;
};
SharedMapping::SharedMapping(const std::wstring& name, const std::wstring& file, std::size_t size)
    : state_(std::make_unique<State>(State{&FindWindows().Mappings[name]})) {
  state_->Mapping->File = file;
  state_->Mapping->Bytes.resize(size);
  state_->Mapping->Closed = false;
}
SharedMapping::~SharedMapping() {
  state_->Mapping->Closed = true;
}
std::span<std::byte> SharedMapping::Bytes() const {
  return state_->Mapping->Bytes;
}
std::uint64_t SharedMapping::Address() const {
  return 0x2000'0000;
}

}  // namespace folivant::platform
