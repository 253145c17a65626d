// No windows: a listing of a Find window ends with the message that none is open.
#include "platform/FindWindows.h"

#include "platform/RuntimeError.h"

namespace folivant::platform {

std::vector<WindowHandle> TopLevelWindows() {
  return {};
}
std::vector<WindowHandle> ChildWindows(WindowHandle) {
  return {};
}
std::wstring WindowClass(WindowHandle) {
  return {};
}
std::uint32_t WindowStyle(WindowHandle) {
  return 0;
}
std::wstring WindowTitle(WindowHandle) {
  return {};
}

struct ForeignWindow::State {};
ForeignWindow::ForeignWindow(WindowHandle, std::wstring title) {
  throw RuntimeError(FailedAction::ReadWindow, std::move(title), {}, 0);
}
ForeignWindow::~ForeignWindow() = default;
RecordLayout ForeignWindow::Layout() const {
  return RecordLayout::Bits64;
}
std::uint64_t ForeignWindow::Reserve(std::size_t) {
  return 0;
}
void ForeignWindow::Write(std::size_t, std::span<const std::byte>) {}
void ForeignWindow::Read(std::size_t, std::span<std::byte>) {}
std::int64_t ForeignWindow::Send(std::uint32_t, std::uint64_t, std::uint64_t) {
  return 0;
}

struct SharedMapping::State {
  std::vector<std::byte> Memory;
};
SharedMapping::SharedMapping(const std::wstring&, const std::wstring&, std::size_t size)
    : state_(std::make_unique<State>(State{std::vector<std::byte>(size)})) {}
SharedMapping::~SharedMapping() = default;
std::span<std::byte> SharedMapping::Bytes() const {
  return state_->Memory;
}
std::uint64_t SharedMapping::Address() const {
  return 0;
}

}  // namespace folivant::platform
