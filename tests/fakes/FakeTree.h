// The file system of the fake platform: drives, directories and files in memory, built with chained verbs.
//
//     Tree().Dir(L"C:\\Data").File(L"a.txt", 1024).Short(L"A~1.TXT").Folder(L"Sub");
//
// Enumeration gives entries in the order in which they were made. Names are found without regard to letter case, an
// exact match first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Clock.h"
#include "platform/FindFiles.h"

namespace folivant::fakes {

/// A calendar time as a UTC file time.
std::uint64_t FileTime(const platform::CalendarTime& time);

struct FakeNode {
  std::wstring Name;
  std::wstring ShortName;        ///< 8.3 name; empty when Name is one
  std::uint32_t Attributes = 0;  ///< platform::kDirectory and so on
  std::uint64_t LastWrite = 0;   ///< UTC file time
  std::uint64_t Created = 0;     ///< the same
  std::uint64_t LastAccess = 0;  ///< the same
  std::uint32_t ReparseTag = 0;
  std::wstring Owner = L"HOME\\anna";
  std::uint32_t Links = 1;
  std::uint64_t Size = 0;
  std::string Content;
  std::wstring LinkTarget;               ///< full path; set for links to directories
  bool Unreadable = false;               ///< a directory that cannot be opened, a file that cannot be read
  std::optional<std::size_t> FailAfter;  ///< entries that an enumeration gives before it fails
  std::uint64_t Number = 0;              ///< file identity
  FakeNode* Parent = nullptr;
  std::vector<FakeNode*> Children;
  std::unordered_map<std::wstring, FakeNode*> ByLowerName;  ///< first one of a name

  bool IsDirectory() const { return (Attributes & platform::kDirectory) != 0; }
};

class FakeTree;

/// One directory under construction. File, Folder and Link add an entry; the verbs that follow describe the entry added
/// last, or the directory itself while nothing was added through this handle.
class FakeDir {
 public:
  FakeDir(FakeTree& tree, FakeNode& node) : tree_(&tree), node_(&node), last_(&node) {}

  /// An archived file of `size` bytes, last written 2001-02-03 04:05:06 UTC.
  FakeDir& File(std::wstring_view name, std::uint64_t size = 0);
  /// A file with content; its size is the content's.
  FakeDir& FileWith(std::wstring_view name, std::string content);
  FakeDir& Folder(std::wstring_view name);
  /// A directory entry that leads to the directory `target` (full path).
  FakeDir& Link(std::wstring_view name, std::wstring_view target);
  /// A subdirectory (made if it is not there), to go on inside it.
  FakeDir Dir(std::wstring_view name);

  FakeDir& Short(std::wstring_view shortName);
  FakeDir& Written(const platform::CalendarTime& utc);
  FakeDir& Written(std::uint64_t utc);
  FakeDir& Attributes(std::uint32_t bits);                          ///< replaces all but the directory and link bits
  FakeDir& AddAttributes(std::uint32_t bits);                       ///< on top of those there
  FakeDir& Times(std::uint64_t created, std::uint64_t lastAccess);  ///< UTC
  FakeDir& Tag(std::uint32_t reparseTag);
  FakeDir& Owner(std::wstring_view owner, std::uint32_t links = 1);
  FakeDir& Unreadable();                     ///< its own entry is listed, opening it fails
  FakeDir& FailsAfter(std::size_t entries);  ///< enumerating it breaks off

 private:
  FakeTree* tree_;
  FakeNode* node_;
  FakeNode* last_;
};

class FakeTree {
 public:
  FakeTree() { Clear(); }
  FakeTree(const FakeTree&) = delete;
  FakeTree& operator=(const FakeTree&) = delete;

  void Clear();
  /// The directory of that full path; it and its ancestors are made if they are not there.
  FakeDir Dir(std::wstring_view path);
  /// A file with content at that full path; its directory is made too.
  void File(std::wstring_view path, std::string content);
  void Remove(std::wstring_view path);

  /// The node at a full path, links followed on the way; the last component itself is followed when asked for.
  enum class LastLink { Follow, Keep };
  FakeNode* Find(std::wstring_view path, LastLink last = LastLink::Follow);
  FakeNode& Add(FakeNode& directory, std::wstring_view name, std::uint32_t attributes);
  /// The file at `path` for writing, emptied or made; null when its directory is not there or it is a directory.
  FakeNode* MakeFile(std::wstring_view path);

 private:
  FakeNode* Child(FakeNode& directory, std::wstring_view name);
  FakeNode* Followed(FakeNode* node, int hops);
  FakeNode* Walk(std::wstring_view path, LastLink last, int hops);

  std::deque<FakeNode> nodes_;
  FakeNode* root_ = nullptr;
  std::wstring lastPath_;  ///< the last path found, so that a walk downwards costs one step per level
  FakeNode* lastNode_ = nullptr;
};

}  // namespace folivant::fakes
