// Windows paths as places of this system. "Z:\" is "/"; other drives and servers do not exist.
#pragma once

#include <fcntl.h>

#include <string>
#include <string_view>

#include "platform/host/Descriptor.h"

namespace folivant::platform {

/// The bytes of a path: "Z:\data\a.txt" is "/data/a.txt". Empty when no place can have that name.
std::string HostBytes(std::wstring_view path);

/// Where a path leads: a name below an open directory. To be given to the ...at functions, which say whether it exists.
class HostPath {
 public:
  /// `bytes` is taken from the current directory.
  explicit HostPath(std::string bytes) : name_(std::move(bytes)) {}
  HostPath(Descriptor directory, std::string name) : directory_(std::move(directory)), name_(std::move(name)) {}

  int Directory() const { return directory_ ? directory_.Get() : AT_FDCWD; }
  const char* Name() const { return name_.c_str(); }

 private:
  Descriptor directory_;
  std::string name_;
};

/// The place of an existing file or directory: of the exact name if there is one, otherwise of the first that differs
/// in letter case only, component by component. What does not exist keeps its name as given. Long paths are opened in
/// pieces, so that their length does not matter.
HostPath Locate(std::wstring_view path);

}  // namespace folivant::platform
