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

// The fixed blanks assume the lengths of the English captions, on purpose.
const std::array<DirectoryColumn, 4> kDirectoryColumns = {{
    {&DirectoryColumns::Files, Text::FilesCaption, 5, AppendCount<&DirNode::Files>, L"files"},
    {&DirectoryColumns::Size, Text::DirectorySizeCaption, 6, AppendSum<&DirNode::Size>, L"size"},
    {&DirectoryColumns::TotalFiles, Text::TotalFilesCaption, {}, AppendCount<&DirNode::TotalFiles>, L"total_files"},
    {&DirectoryColumns::TotalSize, Text::TotalSizeCaption, {}, AppendSum<&DirNode::TotalSize>, L"total_size"},
}};

std::optional<Text> StyleCaption(ListingStyle style) {
  switch (style) {
    case ListingStyle::NoSubdirectories:
      return Text::NoSubdirectories;
    case ListingStyle::IncludeSubdirectories:
      return Text::IncludeSubdirectories;
    case ListingStyle::TreeStyle:
      return Text::TreeStyle;
    case ListingStyle::DirectoryView:
      return Text::DirectoryView;
    case ListingStyle::FullPathList:
      return Text::FullPathList;
    case ListingStyle::FindWindow:
      return Text::FindWindowStyle;
    case ListingStyle::PathListFile:
      return Text::PathListStyle;
  }
  return std::nullopt;
}

}  // namespace folivant
