#include "fakes/FakeTree.h"

#include <algorithm>
#include <chrono>

#include "platform/Text.h"

namespace folivant::fakes {
namespace {

constexpr int kMostHops = 40;
constexpr platform::CalendarTime kUsualTime{2001, 2, 3, 4, 5, 6};

/// Cuts the first component off `rest`; the two backslashes of a network path are a component of their own.
std::wstring_view TakeComponent(std::wstring_view& rest) {
  if (rest.starts_with(L"\\\\")) {
    const std::wstring_view network = rest.substr(0, 2);
    rest.remove_prefix(2);
    return network;
  }
  const std::size_t end = std::min(rest.find(L'\\'), rest.size());
  const std::wstring_view component = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return component;
}

std::wstring_view WithoutLastBackslash(std::wstring_view path) {
  return path.size() > 2 && path.back() == L'\\' ? path.substr(0, path.size() - 1) : path;
}

}  // namespace

std::uint64_t FileTime(const platform::CalendarTime& time) {
  using namespace std::chrono;
  const sys_days day = year(time.Year) / month(static_cast<unsigned>(time.Month)) / time.Day;
  const sys_days start = year(1601) / January / 1;
  const auto whole = (day - start) + hours(time.Hour) + minutes(time.Minute) + seconds(time.Second);
  return static_cast<std::uint64_t>(duration_cast<seconds>(whole).count()) * 10'000'000U;
}

FakeDir& FakeDir::File(std::wstring_view name, std::uint64_t size) {
  last_ = &tree_->Add(*node_, name, platform::kArchive);
  last_->Size = size;
  return *this;
}

FakeDir& FakeDir::FileWith(std::wstring_view name, std::string content) {
  File(name, content.size());
  last_->Content = std::move(content);
  return *this;
}

FakeDir& FakeDir::Folder(std::wstring_view name) {
  last_ = &tree_->Add(*node_, name, platform::kDirectory);
  return *this;
}

FakeDir& FakeDir::Link(std::wstring_view name, std::wstring_view target) {
  last_ = &tree_->Add(*node_, name, platform::kDirectory | platform::kLink);
  last_->LinkTarget = target;
  return *this;
}

FakeDir FakeDir::Dir(std::wstring_view name) {
  for (FakeNode* child : node_->Children) {
    if (child->Name == name) {
      return {*tree_, *child};
    }
  }
  return {*tree_, tree_->Add(*node_, name, platform::kDirectory)};
}

FakeDir& FakeDir::Short(std::wstring_view shortName) {
  last_->ShortName = shortName;
  return *this;
}

FakeDir& FakeDir::Written(const platform::CalendarTime& utc) {
  return Written(FileTime(utc));
}

FakeDir& FakeDir::Written(std::uint64_t utc) {
  last_->LastWrite = utc;
  return *this;
}

FakeDir& FakeDir::Attributes(std::uint32_t bits) {
  last_->Attributes = (last_->Attributes & (platform::kDirectory | platform::kLink)) | bits;
  return *this;
}

FakeDir& FakeDir::AddAttributes(std::uint32_t bits) {
  last_->Attributes |= bits;
  return *this;
}

FakeDir& FakeDir::Times(std::uint64_t created, std::uint64_t lastAccess) {
  last_->Created = created;
  last_->LastAccess = lastAccess;
  return *this;
}

FakeDir& FakeDir::Tag(std::uint32_t reparseTag) {
  last_->ReparseTag = reparseTag;
  return *this;
}

FakeDir& FakeDir::Owner(std::wstring_view owner, std::uint32_t links) {
  last_->Owner = owner;
  last_->Links = links;
  return *this;
}

FakeDir& FakeDir::Unreadable() {
  last_->Unreadable = true;
  return *this;
}

FakeDir& FakeDir::FailsAfter(std::size_t entries) {
  last_->FailAfter = entries;
  return *this;
}

void FakeTree::Clear() {
  nodes_.clear();
  root_ = &nodes_.emplace_back();
  root_->Attributes = platform::kDirectory;
  lastPath_.clear();
  lastNode_ = nullptr;
}

FakeNode& FakeTree::Add(FakeNode& directory, std::wstring_view name, std::uint32_t attributes) {
  FakeNode& node = nodes_.emplace_back();
  node.Name = name;
  node.Attributes = attributes;
  node.LastWrite = FileTime(kUsualTime);
  node.Number = nodes_.size();
  node.Parent = &directory;
  directory.Children.push_back(&node);
  directory.ByLowerName.try_emplace(platform::ToLower(name), &node);
  return node;
}

FakeNode* FakeTree::Child(FakeNode& directory, std::wstring_view name) {
  const auto found = directory.ByLowerName.find(platform::ToLower(name));
  if (found == directory.ByLowerName.end()) {
    return nullptr;
  }
  if (found->second->Name != name) {
    for (FakeNode* child : directory.Children) {
      if (child->Name == name) {
        return child;
      }
    }
  }
  return found->second;
}

FakeDir FakeTree::Dir(std::wstring_view path) {
  FakeNode* node = root_;
  for (std::wstring_view rest = WithoutLastBackslash(path); !rest.empty();) {
    const std::wstring_view name = TakeComponent(rest);
    FakeNode* child = Followed(Child(*node, name), 0);
    node = child != nullptr ? child : &Add(*node, name, platform::kDirectory);
  }
  return {*this, *node};
}

void FakeTree::File(std::wstring_view path, std::string content) {
  const std::size_t cut = path.rfind(L'\\');
  Dir(path.substr(0, cut));
  FakeNode* node = MakeFile(path);
  node->Size = content.size();
  node->Content = std::move(content);
}

FakeNode* FakeTree::MakeFile(std::wstring_view path) {
  const std::size_t cut = path.rfind(L'\\');
  if (cut == path.npos || cut + 1 == path.size()) {
    return nullptr;
  }
  FakeNode* node = Find(path);
  if (node == nullptr) {
    FakeNode* directory = Find(path.substr(0, cut));
    if (directory == nullptr || !directory->IsDirectory()) {
      return nullptr;
    }
    node = &Add(*directory, path.substr(cut + 1), platform::kArchive);
  }
  if (node->IsDirectory()) {
    return nullptr;
  }
  node->Content.clear();
  node->Size = 0;
  return node;
}

void FakeTree::Remove(std::wstring_view path) {
  FakeNode* node = Find(path, LastLink::Keep);
  if (node == nullptr || node->Parent == nullptr) {
    return;
  }
  FakeNode& parent = *node->Parent;
  std::erase(parent.Children, node);
  parent.ByLowerName.clear();
  for (FakeNode* child : parent.Children) {
    parent.ByLowerName.try_emplace(platform::ToLower(child->Name), child);
  }
  lastPath_.clear();
  lastNode_ = nullptr;
}

FakeNode* FakeTree::Followed(FakeNode* node, int hops) {
  if (node == nullptr || node->LinkTarget.empty()) {
    return node;
  }
  return hops > kMostHops ? nullptr : Walk(node->LinkTarget, LastLink::Follow, hops + 1);
}

FakeNode* FakeTree::Walk(std::wstring_view path, LastLink last, int hops) {
  FakeNode* node = root_;
  std::wstring_view rest = path;
  if (lastNode_ != nullptr && path.size() > lastPath_.size() && path[lastPath_.size()] == L'\\' &&
      path.starts_with(lastPath_)) {
    node = lastNode_;
    rest.remove_prefix(lastPath_.size() + 1);
  }
  while (!rest.empty() && node != nullptr) {
    node = Child(*node, TakeComponent(rest));
    if (!rest.empty() || last == LastLink::Follow) {
      node = Followed(node, hops);
    }
  }
  return node;
}

FakeNode* FakeTree::Find(std::wstring_view path, LastLink last) {
  path = WithoutLastBackslash(path);
  FakeNode* const node = path.empty() ? nullptr : Walk(path, last, 0);
  if (node != nullptr && last == LastLink::Follow && node->IsDirectory()) {
    lastPath_ = path;
    lastNode_ = node;
  }
  return node;
}

}  // namespace folivant::fakes
