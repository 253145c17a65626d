// What both walks keep of the directories that they are in: the names of the subdirectories still to be entered, and
// whether a link leads back to one of those directories. A stack of its own, so that the depth of a tree is not limited
// by the thread's.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FindFiles.h"
#include "scan/SortOrder.h"
#include "scan/WalkPath.h"

namespace folivant {

/// A share of the progress bar divided among `parts`, to the nearest integer, halves to even.
std::int32_t DivideShare(std::int32_t share, std::size_t parts);

/// The names of one directory's subdirectories, held behind those of its parents.
class NameStack {
 public:
  struct Name {
    std::size_t Start = 0;
    std::uint32_t Length = 0;
    bool IsLink = false;
  };

  explicit NameStack(platform::Digits digits = platform::Digits::AsCharacters) : sorter_(digits) {}

  void Push(std::wstring_view name, bool isLink) {
    names_.push_back({text_.size(), static_cast<std::uint32_t>(name.size()), isLink});
    text_ += name;
  }
  std::size_t Size() const { return names_.size(); }
  const Name& operator[](std::size_t index) const { return names_[index]; }
  std::wstring_view TextOf(std::size_t index) const {
    return std::wstring_view(text_).substr(names_[index].Start, names_[index].Length);
  }
  /// Orders the names from `first` on by the platform's text comparison.
  void SortFrom(std::size_t first, bool ascending);
  /// Forgets every name from `first` on.
  void CutTo(std::size_t first);

 private:
  std::wstring text_;
  std::vector<Name> names_;
  EntrySorter sorter_;
  std::vector<std::uint32_t> order_;
};

/// The directories that the walk is in, outermost first, by the length of their path, and those above its start.
/// Identities are asked for only when a link is met: on Windows each costs an open file.
class Ancestors {
 public:
  void Push(WalkPath::Mark mark) { entries_.push_back({mark, {}, false}); }
  void Pop() { entries_.pop_back(); }
  /// Whether the directory at the end of `path` is one of them.
  bool Contain(const WalkPath& path);

 private:
  struct Entry {
    WalkPath::Mark Mark;
    std::optional<platform::FileIdentity> Identity;
    bool Asked;
  };
  void FindAboveStart(const WalkPath& path);

  std::vector<Entry> entries_;
  std::vector<platform::FileIdentity> aboveStart_;
  bool aboveStartFound_ = false;
};

}  // namespace folivant
