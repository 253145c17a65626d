// The store as a profile file in the user's configuration folder; the registry's place on the host.
#include "platform/Store.h"

#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>

#include "platform/Files.h"
#include "platform/ProfileText.h"
#include "platform/RuntimeError.h"
#include "platform/host/Host.h"
#include "platform/host/HostPath.h"

namespace folivant::platform {
namespace {

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

std::string ConfigurationFolder() {
  const std::string named = Environment("XDG_CONFIG_HOME");
  return named.starts_with('/') ? named : Environment("HOME") + "/.config";
}

std::wstring StorePath() {
  return FromHostPath(ConfigurationFolder() + "/Folivant 3.0/settings.ini");
}

/// What tells one state of a file from the next.
struct FileState {
  dev_t Device = 0;
  ino_t Inode = 0;  ///< each replacement brings a new one
  off_t Size = 0;
  timespec Changed{};
  bool operator==(const FileState& other) const {
    return Device == other.Device && Inode == other.Inode && Size == other.Size &&
           Changed.tv_sec == other.Changed.tv_sec && Changed.tv_nsec == other.Changed.tv_nsec;
  }
};

FileState StateOf(const std::wstring& path) {
  struct stat status;
  if (stat(HostBytes(path).c_str(), &status) != 0) {
    return {};
  }
  return {status.st_dev, status.st_ino, status.st_size, status.st_mtim};
}

/// The store's text, read again only after the file has changed: a start asks for some hundred values.
ProfileText& Text() {
  static ProfileText text;
  static FileState known;
  const std::wstring path = StorePath();
  if (const FileState now = StateOf(path); now != known) {
    text = now == FileState() ? ProfileText() : ProfileText(ReadWholeFile(path));
    known = now;
  }
  return text;
}

template <class Edit>
void Change(const std::wstring& section, const std::wstring& key, Edit edit) {
  const std::wstring path = StorePath();
  try {
    std::error_code ignored;  // the write then says what is wrong
    std::filesystem::create_directories(std::filesystem::path(HostBytes(path)).parent_path(), ignored);
    ProfileText text = Text();
    edit(text);
    ReplaceFile(path, text.Bytes());
  } catch (const RuntimeError& error) {
    throw RuntimeError(FailedAction::WriteSetting, StoreName(section) + L"\\" + section + L"\\" + key,
                       error.SystemText(), error.SystemCode());
  }
}

}  // namespace

struct StoreSection::State {
  std::wstring Name;
};

StoreSection::StoreSection(const std::wstring& section) : state_(std::make_unique<State>(State{section})) {}

StoreSection::~StoreSection() = default;

std::optional<std::wstring> StoreSection::Read(const std::wstring& key) const {
  try {
    return Text().Read(state_->Name, key);
  } catch (const RuntimeError&) {  // a store that cannot be read holds nothing, as a registry key without access
    return std::nullopt;
  }
}

void WriteStore(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
  if (Text().Read(section, key) != value) {
    Change(section, key, [&](ProfileText& text) { text.Write(section, key, value); });
  }
}

void RemoveFromStore(const std::wstring& section, const std::wstring& key) {
  if (Text().Read(section, key)) {
    Change(section, key, [&](ProfileText& text) { text.Remove(section, key); });
  }
}

std::wstring StoreName(const std::wstring&) {
  return StorePath();
}

}  // namespace folivant::platform
