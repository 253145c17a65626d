#include "output/Columns.h"

#include "base/mdlFileRoutines.h"
#include "ui/ValueText.h"

namespace folivant {
namespace {

template <std::int32_t DirNode::*Count>
void AppendCount(const DirNode& node, const Messages&, std::wstring& out) {
  AppendGrouped(node.*Count, out);
}

template <Currency DirNode::*Sum>
void AppendSum(const DirNode& node, const Messages& texts, std::wstring& out) {
  AppendSize(node.*Sum, texts, out);
}

}  // namespace

// The fixed blanks assume the lengths of the English captions: the columns of old listings stand there.
const std::array<DirectoryColumn, 4> kDirectoryColumns = {{
    {&DirectoryColumns::Files, TextId::FilesCaption, 5, AppendCount<&DirNode::Files>, L"files"},
    {&DirectoryColumns::Size, TextId::DirectorySizeCaption, 6, AppendSum<&DirNode::Size>, L"size"},
    {&DirectoryColumns::TotalFiles, TextId::TotalFilesCaption, {}, AppendCount<&DirNode::TotalFiles>, L"total_files"},
    {&DirectoryColumns::TotalSize, TextId::TotalSizeCaption, {}, AppendSum<&DirNode::TotalSize>, L"total_size"},
}};

std::optional<TextId> StyleCaption(ListingStyle style) {
  switch (style) {
    case ListingStyle::NoSubdirectories:
      return TextId::NoSubdirectories;
    case ListingStyle::IncludeSubdirectories:
      return TextId::IncludeSubdirectories;
    case ListingStyle::TreeStyle:
      return TextId::TreeStyle;
    case ListingStyle::DirectoryView:
      return TextId::DirectoryView;
    case ListingStyle::FullPathList:
      return TextId::FullPathList;
    case ListingStyle::FindWindow:
      return TextId::FindWindowStyle;
    case ListingStyle::PathListFile:
      return TextId::PathListStyle;
  }
  return std::nullopt;
}

}  // namespace folivant
