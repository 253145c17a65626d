// The floor on the host: reads each directory, takes each entry's status once, sorts the names, prints nothing.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace {

std::uint64_t totalSize = 0;

void Walk(const std::string& path) {
  DIR* const directory = opendir(path.c_str());
  if (directory == nullptr) {
    return;
  }
  std::vector<std::string> names;
  std::vector<std::string> subdirectories;
  while (const dirent* entry = readdir(directory)) {
    const std::string name = entry->d_name;
    struct stat status;
    if (name == "." || name == ".." || fstatat(dirfd(directory), entry->d_name, &status, 0) != 0) {
      continue;
    }
    if (S_ISDIR(status.st_mode)) {
      subdirectories.push_back(name);
    }
    totalSize += static_cast<std::uint64_t>(status.st_size);
    names.push_back(name);
  }
  closedir(directory);
  std::sort(names.begin(), names.end());
  std::sort(subdirectories.begin(), subdirectories.end());
  for (const std::string& name : subdirectories) {
    Walk(path + "/" + name);
  }
}

}  // namespace

int main(int count, char** arguments) {
  Walk(count > 1 ? arguments[1] : ".");
  return totalSize == 1 ? 1 : 0;  // the sizes must be looked at
}
