#include "platform/Store.h"

#include <sys/stat.h>

#include <cstdlib>

#include "platform/Files.h"
#include "platform/ProfileText.h"
#include "platform/host/Host.h"

namespace folivant::platform {
namespace {

std::string StoreFolder() {
  const char* const configuration = std::getenv("XDG_CONFIG_HOME");
  if (configuration != nullptr && *configuration != 0) {
    return std::string(configuration) + "/Folivant 3.0";
  }
  const char* const home = std::getenv("HOME");
  return std::string(home == nullptr ? "" : home) + "/.config/Folivant 3.0";
}

std::wstring StoreFile() {
  return FromNativePath(StoreFolder() + "/settings.ini");
}

ProfileText ReadStoreFile() {
  return PathExists(StoreFile()) ? ProfileText(ReadWholeFile(StoreFile())) : ProfileText();
}

/// The store as this process knows it: the file is read once.
ProfileText& Store() {
  static ProfileText store = ReadStoreFile();
  return store;
}

void MakeFolders(const std::string& path) {
  for (std::size_t end = path.find('/', 1); end != path.npos; end = path.find('/', end + 1)) {
    mkdir(path.substr(0, end).c_str(), 0777);
  }
  mkdir(path.c_str(), 0700);
}

}  // namespace

std::optional<std::wstring> ReadStore(const std::wstring& section, const std::wstring& key) {
  return Store().Read(section, key);
}

void WriteStore(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
  Store().Write(section, key, value);
  MakeFolders(StoreFolder());
  ReplaceFile(StoreFile(), Store().Bytes());
}

std::wstring StoreName(const std::wstring&) {
  return StoreFile();
}

}  // namespace folivant::platform
