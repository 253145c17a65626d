// A whole file out of its pieces: its size is never believed, because it may grow, or be a device that says none.
#include "platform/Files.h"
#include "platform/InputFile.h"
#include "platform/RuntimeError.h"

namespace folivant::platform {

std::string ReadWholeFile(const std::wstring& path) {
  InputFile file(path);
  std::string bytes(std::size_t{64} * 1024, '\0');
  std::size_t filled = 0;
  while (const std::size_t read = file.Read(std::span(bytes).subspan(filled))) {
    filled += read;
    if (filled > kLongestWholeFile) {
      throw RuntimeError(FailedAction::ReadLargeFile, file.Path(), std::to_wstring(kLongestWholeFile / kMegabyte), 0);
    }
    if (filled == bytes.size()) {
      bytes.resize(2 * filled);
    }
  }
  bytes.resize(filled);
  return bytes;
}

}  // namespace folivant::platform
