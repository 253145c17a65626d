// Reads the tree of a folder of expectations (tree.txt) into the fake platform, and the expectations themselves.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>

#include "base/mdlFileRoutines.h"
#include "fakes/FakePlatform.h"

namespace folivant::listings {

/// The characters of a UTF-8 text; characters outside the first plane do not occur in expectations.
inline std::wstring FromUtf8(const std::string& bytes) {
  std::wstring text;
  for (std::size_t i = 0; i < bytes.size();) {
    const auto first = static_cast<unsigned char>(bytes[i++]);
    const int following = first < 0x80 ? 0 : first < 0xE0 ? 1 : 2;
    unsigned code = following == 0 ? first : following == 1 ? first & 0x1FU : first & 0x0FU;
    for (int n = 0; n < following; ++n) {
      code = code << 6 | (static_cast<unsigned char>(bytes.at(i++)) & 0x3FU);
    }
    text += static_cast<wchar_t>(code);
  }
  return text;
}

/// As a listing file holds it: one byte for a Latin letter, "?" for letters beyond the code page, lines that end in CR
/// LF.
inline std::string AsListed(const std::string& utf8) {
  std::string bytes;
  for (const wchar_t c : FromUtf8(utf8)) {
    if (c == L'\n') {
      bytes += '\r';
    }
    bytes += c > 0xFF ? '?' : static_cast<char>(c);
  }
  return bytes;
}

inline std::string ReadTestFile(const std::string& relativePath) {
  std::ifstream file(std::string(FOLIVANT_TESTS_FOLDER) + "/listings/" + relativePath, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << relativePath << " is missing";
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return std::move(bytes).str();
}

inline std::uint32_t AttributesOf(const std::string& letters) {
  const auto bit = [&letters](char letter, std::uint32_t value) {
    return letters.find(letter) == letters.npos ? 0 : value;
  };
  return bit('a', platform::kArchive) | bit('r', platform::kReadOnly) | bit('s', platform::kSystem) |
         bit('h', platform::kHidden);
}

inline platform::CalendarTime TimeOf(const std::string& date, const std::string& time) {
  return {std::stoi(date.substr(0, 4)), std::stoi(date.substr(5, 2)), std::stoi(date.substr(8, 2)),
          std::stoi(time.substr(0, 2)), std::stoi(time.substr(3, 2))};
}

/// One entry: "file 2026-01-04 05:06 -a--- 9999 Alpha\Beta\deep.txt".
inline void MakeEntry(const std::wstring& start, bool directory, std::istream& line) {
  std::string date, time, attributes, path;
  std::uint64_t size = 0;
  line >> date >> time >> attributes >> size >> std::ws;
  std::getline(line, path);
  const std::wstring full = AddBackslash(start) + FromUtf8(path);
  fakes::FakeDir folder = fakes::Tree().Dir(AddBackslash(GetFolder(full)));
  const std::wstring name = GetFileName(full);
  (directory ? folder.Folder(name) : folder.File(name, size))
      .Written(TimeOf(date, time))
      .Attributes(AttributesOf(attributes));
}

/// Builds the tree and its machine; returns the start directory.
inline std::wstring MakeTree(const std::string& folder) {
  fakes::Fake().Now = {2026, 11, 16, 14, 5, 0};
  fakes::Fake().FreeSpace[L"C:\\"] = {5'000'000'000, 20'000'000'000};
  fakes::Tree().Dir(L"C:\\Out");
  std::istringstream lines(ReadTestFile(folder + "/tree.txt"));
  std::wstring start;
  for (std::string text; std::getline(lines, text);) {
    std::istringstream line(text);
    std::string word, rest;
    line >> word >> std::ws;
    if (word == "dir" || word == "file") {
      MakeEntry(start, word == "dir", line);
      continue;
    }
    std::getline(line, rest);
    if (word == "start") {
      start = FromUtf8(rest);
      fakes::Tree().Dir(start);
    } else if (word == "offset") {
      fakes::Fake().LocalOffsetMinutes = std::stoi(rest);
    } else if (word == "label") {
      fakes::Fake().Labels[L"C:\\"] = FromUtf8(rest);
    }
  }
  return start;
}

}  // namespace folivant::listings
