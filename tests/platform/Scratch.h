// A folder of a test's own, below the folder for temporary files, removed with all that it holds.
#pragma once

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace folivant::platform {

class Scratch {
 public:
  Scratch() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    std::wstring temporary = TemporaryDirectory();
    temporary += temporary.ends_with(L'\\') ? L"" : L"\\";
    folder_ = temporary + L"folivant-test-" + std::to_wstring(now);
    std::filesystem::create_directories(Native(folder_));
  }
  ~Scratch() {
    std::error_code ignored;
    for (std::wstring deep = deepest_; deep.size() > folder_.size(); deep.resize(deep.rfind(L'\\'))) {
      std::filesystem::remove(Native(deep), ignored);  // remove_all does not go that deep on Windows
    }
    std::filesystem::remove_all(Native(folder_), ignored);
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  const std::wstring& Folder() const { return folder_; }
  std::wstring Path(std::wstring_view name) const { return folder_ + L'\\' + std::wstring(name); }

  std::wstring MakeFolder(std::wstring_view name) const {
    std::filesystem::create_directories(Native(Path(name)));
    return Path(name);
  }
  /// A folder whose path has 400 characters and more; nothing may be left in it.
  std::wstring MakeDeepFolder() {
    deepest_ = folder_;
    for (int i = 0; i < 10; ++i) {
      deepest_ += L'\\' + std::wstring(40, L'x') + std::to_wstring(i);
      std::filesystem::create_directory(Native(deepest_));
    }
    return deepest_;
  }
  std::wstring MakeFile(std::wstring_view name, std::string_view bytes = {}) const {
    std::ofstream file(Native(Path(name)), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return Path(name);
  }
  std::string Content(std::wstring_view name) const {
    const std::filesystem::path path = Native(Path(name));
    std::string bytes(std::filesystem::file_size(path), '\0');
    std::ifstream(path, std::ios::binary).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
  }
  /// How many entries lie directly in the folder.
  std::ptrdiff_t Count() const {
    return std::distance(std::filesystem::directory_iterator(Native(folder_)), std::filesystem::directory_iterator());
  }

  /// A Windows path as the standard library takes it.
  static std::filesystem::path Native(const std::wstring& path) {
    if constexpr (std::filesystem::path::preferred_separator == '\\') {
      return path.size() < 240 ? path : L"\\\\?\\" + path;
    }
    std::u32string native;  // wide text would go through the C library's locale
    for (const wchar_t c : path.substr(path.find(L':') + 1)) {
      native += c == L'\\' ? U'/' : static_cast<char32_t>(c);
    }
    return native;
  }

 private:
  std::wstring folder_;
  std::wstring deepest_;
};

}  // namespace folivant::platform
