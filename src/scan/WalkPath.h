// The path of a walk as it goes down and up: once as shown, once as the file system spells it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace folivant {

class WalkPath {
 public:
  struct Mark {
    std::size_t Shown = 0;
    std::size_t OnDisk = 0;
  };

  WalkPath(std::wstring shown, std::wstring onDisk) : shown_(std::move(shown)), onDisk_(std::move(onDisk)) {}

  const std::wstring& Shown() const { return shown_; }
  const std::wstring& OnDisk() const { return onDisk_; }
  Mark Here() const { return {shown_.size(), onDisk_.size()}; }
  std::wstring_view OnDiskAt(Mark mark) const { return std::wstring_view(onDisk_).substr(0, mark.OnDisk); }

  void Enter(std::wstring_view shownName, std::wstring_view nameOnDisk) {
    Append(shown_, shownName);
    Append(onDisk_, nameOnDisk);
  }
  void GoBackTo(Mark mark) {
    shown_.resize(mark.Shown);
    onDisk_.resize(mark.OnDisk);
  }

 private:
  static void Append(std::wstring& path, std::wstring_view name) {
    if (!path.ends_with(L'\\')) {
      path += L'\\';
    }
    path += name;
  }

  std::wstring shown_;
  std::wstring onDisk_;
};

}  // namespace folivant
