#include "fakes/FakePlatform.h"
#include "platform/FileFacts.h"
#include "platform/RuntimeError.h"

namespace folivant::platform {
namespace {

const fakes::FakeNode& NodeOf(std::wstring_view path) {
  const fakes::FakeNode* const node = fakes::Tree().Find(path);
  if (node == nullptr || node->Unreadable) {
    const auto failure = fakes::AccessDenied();
    throw RuntimeError(FailedAction::ReadFile, std::wstring(path), failure.Text, failure.Code);
  }
  return *node;
}

}  // namespace

std::wstring OwnerOf(std::wstring_view path) {
  return NodeOf(path).Owner;
}

std::uint32_t LinkCountOf(std::wstring_view path) {
  return NodeOf(path).Links;
}

/// Not a hash at all: what was added, so that a test sees which bytes went in.
struct Sha256::State {
  std::string Added;
};

Sha256::Sha256() : state_(std::make_unique<State>()) {}
Sha256::~Sha256() = default;

void Sha256::Add(std::span<const char> bytes) {
  state_->Added.append(bytes.data(), bytes.size());
}

std::wstring Sha256::Hex() {
  return L"sum(" + std::wstring(state_->Added.begin(), state_->Added.end()) + L")";
}

}  // namespace folivant::platform
