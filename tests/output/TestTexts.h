// The language of the writers' tests: texts that are told apart from each other, whatever the language files say.
#pragma once

#include "ui/Messages.h"

namespace folivant {

inline Messages TestTexts() {
  Messages texts;
  const std::pair<TextId, const wchar_t*> rows[] = {
      {TextId::NoSubdirectories, L"No subdirectories"},
      {TextId::IncludeSubdirectories, L"Include subdirectories"},
      {TextId::TreeStyle, L"Tree-style"},
      {TextId::DirectoryView, L"Directory view"},
      {TextId::FullPathList, L"Full-path list"},
      {TextId::FindWindowStyle, L"List from Windows' Find"},
      {TextId::PathListStyle, L"Files of a list"},
      {TextId::NameCaption, L"Name"},
      {TextId::DosNameCaption, L"MS-DOS name"},
      {TextId::SizeCaption, L"Size"},
      {TextId::DateCaption, L"Date"},
      {TextId::AttributesCaption, L"Attr"},
      {TextId::FolderCaption, L"Folder"},
      {TextId::Kilobytes, L"kb"},
      {TextId::File, L"file"},
      {TextId::Files, L"files"},
      {TextId::DirectoryCaption, L"Directory"},
      {TextId::FilesCaption, L"Files"},
      {TextId::DirectorySizeCaption, L"Size"},
      {TextId::TotalFilesCaption, L"Tot. files"},
      {TextId::TotalSizeCaption, L"Total size"},
      {TextId::JoiningWord, L","},
      {TextId::DirectoryWord, L"directory"},
      {TextId::DirectoriesWord, L"directories"},
      {TextId::FreeOf, L"free of"},
      {TextId::NoLabel, L"(no label)"},
      {TextId::DirectoryHeading, L"Directory"},
      {TextId::DirectorySizeText, L"<DIR>"},
      {TextId::UnitBytes, L"b"},
      {TextId::UnitKilobytes, L"kb"},
      {TextId::UnitMegabytes, L"Mb"},
      {TextId::UnitGigabytes, L"Gb"},
      {TextId::UnitTerabytes, L"Tb"},
      {TextId::OverwriteFirstLine, L"The file"},
      {TextId::OverwriteLastLine, L"already exists. Do you want to overwrite it?"},
  };
  for (const auto& [number, text] : rows) {
    texts.Set(static_cast<std::size_t>(number), text);
  }
  return texts;
}

}  // namespace folivant
