// The language of the writers' tests: texts that are told apart from each other, whatever the language files say.
#pragma once

#include "ui/Messages.h"

namespace folivant {

inline Messages TestTexts() {
  Messages texts;
  const std::pair<Text, const wchar_t*> rows[] = {
      {Text::NoSubdirectories, L"No subdirectories"},
      {Text::IncludeSubdirectories, L"Include subdirectories"},
      {Text::TreeStyle, L"Tree-style"},
      {Text::DirectoryView, L"Directory view"},
      {Text::FullPathList, L"Full-path list"},
      {Text::FindWindowStyle, L"List from Windows' Find"},
      {Text::PathListStyle, L"Files of a list"},
      {Text::NameCaption, L"Name"},
      {Text::DosNameCaption, L"MS-DOS name"},
      {Text::SizeCaption, L"Size"},
      {Text::DateCaption, L"Date"},
      {Text::AttributesCaption, L"Attr"},
      {Text::FolderCaption, L"Folder"},
      {Text::Kilobytes, L"kb"},
      {Text::File, L"file"},
      {Text::Files, L"files"},
      {Text::DirectoryCaption, L"Directory"},
      {Text::FilesCaption, L"Files"},
      {Text::DirectorySizeCaption, L"Size"},
      {Text::TotalFilesCaption, L"Tot. files"},
      {Text::TotalSizeCaption, L"Total size"},
      {Text::JoiningWord, L","},
      {Text::DirectoryWord, L"directory"},
      {Text::DirectoriesWord, L"directories"},
      {Text::FreeOf, L"free of"},
      {Text::NoLabel, L"(no label)"},
      {Text::DirectoryHeading, L"Directory"},
      {Text::DirectorySizeText, L"<DIR>"},
      {Text::UnitBytes, L"b"},
      {Text::UnitKilobytes, L"kb"},
      {Text::UnitMegabytes, L"Mb"},
      {Text::UnitGigabytes, L"Gb"},
      {Text::UnitTerabytes, L"Tb"},
      {Text::OverwriteFirstLine, L"The file"},
      {Text::OverwriteLastLine, L"already exists. Do you want to overwrite it?"},
  };
  for (const auto& [number, text] : rows) {
    texts.Set(static_cast<std::size_t>(number), text);
  }
  return texts;
}

}  // namespace folivant
