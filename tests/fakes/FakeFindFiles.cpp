#include "fakes/FakePlatform.h"
#include "platform/FindFiles.h"

namespace folivant::platform {

using fakes::FakeNode;
using fakes::FakeTree;

namespace {

void FillFrom(const FakeNode& node, FindData& data) {
  data.Attributes = node.Attributes;
  data.LastWrite = node.LastWrite;
  data.Created = node.Created;
  data.LastAccess = node.LastAccess;
  data.ReparseTag = node.ReparseTag;
  data.Size = node.Size;
}

}  // namespace

struct FindFiles::State {
  const FakeNode* Directory = nullptr;
  ShortNames Names = ShortNames::Skip;
  std::size_t Position = 0;
  bool Failed = false;
  bool Denied = false;
};

FindFiles::FindFiles(std::wstring_view directory, ShortNames shortNames) : state_(std::make_unique<State>()) {
  const FakeNode* node = fakes::Tree().Find(directory);
  if (node != nullptr && node->IsDirectory() && !node->Unreadable) {
    *state_ = {node, shortNames};
    fakes::Fake().ShortNamesAsked += shortNames == ShortNames::Read ? 1 : 0;
  } else {
    state_->Denied = node != nullptr && node->Unreadable;
  }
}

FindFiles::~FindFiles() = default;

bool FindFiles::Opened() const {
  return state_->Directory != nullptr;
}
bool FindFiles::Failed() const {
  return state_->Failed;
}

SystemReason FindFiles::Reason() const {
  return Denied() || Failed() ? SystemReason{5, L"Access is denied."}
                              : SystemReason{3, L"The system cannot find the path specified."};
}

bool FindFiles::Denied() const {
  return state_->Denied;
}

bool FindFiles::Next(FindData& data) {
  if (!Opened() || state_->Failed) {
    return false;
  }
  const FakeNode& directory = *state_->Directory;
  if (directory.FailAfter && state_->Position >= *directory.FailAfter) {
    state_->Failed = true;
    return false;
  }
  if (state_->Position >= directory.Children.size()) {
    return false;
  }
  const FakeNode& node = *directory.Children[state_->Position++];
  FillFrom(node, data);
  data.Name = node.Name;
  data.AlternateName = state_->Names == ShortNames::Read ? std::wstring_view(node.ShortName) : std::wstring_view();
  return true;
}

std::optional<FoundEntry> FindEntry(std::wstring_view path) {
  if (path.empty() || path.back() == L'\\') {
    return std::nullopt;
  }
  const FakeNode* node = fakes::Tree().Find(path, FakeTree::LastLink::Keep);
  if (node == nullptr) {
    return std::nullopt;
  }
  FoundEntry found;
  FillFrom(*node, found.Data);
  found.Name = node->Name;
  return found;
}

std::optional<FileIdentity> IdentityOf(std::wstring_view directory) {
  ++fakes::Fake().IdentitiesAsked;
  const FakeNode* node = fakes::Tree().Find(directory);
  if (node == nullptr || !node->IsDirectory() || node->Unreadable) {
    return std::nullopt;
  }
  return FileIdentity{1, node->Number};
}

}  // namespace folivant::platform
