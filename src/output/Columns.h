// The columns of listings, listed once for all writers: which switch shows them, what stands above them, what they show
// and how each kind of document lays them out.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "output/EntryTexts.h"
#include "scan/DirNode.h"
#include "scan/FoundRows.h"
#include "scan/ListingFormat.h"
#include "ui/Messages.h"

namespace folivant {

enum class Alignment { Left, Right, AsItStands };

/// How a column stands in a plain-text line, after two blanks: padded or cut to Width characters, on the right for
/// Left, on the left for Right. Room is what the column takes from the width of the line.
struct CellLayout {
  Alignment Align = Alignment::Left;
  std::size_t Width = 0;
  std::size_t Room = 0;
};
inline constexpr CellLayout kDosNameLayout = {Alignment::Left, 12, 14};
inline constexpr CellLayout kSizeLayout = {Alignment::Right, 8, 10};
inline constexpr CellLayout kDateLayout = {Alignment::Left, 16, 18};
/// The room is one character short of what attributes take: the widths of all listings are made with it.
inline constexpr CellLayout kAttributesLayout = {Alignment::AsItStands, 0, 6};

/// A column of the entry lines. A text writer's name column is as wide as the others leave it.
struct EntryColumn {
  bool FileColumns::*Shown;
  TextId Caption;
  void (EntryTexts::*AppendValue)(const FileRecord& entry, std::wstring& out);
  CellLayout Layout;
  std::wstring_view Element;  ///< in XML documents
  bool Escaped;               ///< in HTML and XML documents; by design the size texts alone
};
inline constexpr EntryColumn kNameColumn = {
    &FileColumns::Name, TextId::NameCaption, &EntryTexts::AppendName, {}, L"name", false};
/// All but the name, in the order in which they follow it.
inline constexpr std::array<EntryColumn, 4> kFurtherColumns = {{
    {&FileColumns::DosName, TextId::DosNameCaption, &EntryTexts::AppendDosName, kDosNameLayout, L"dosname", false},
    {&FileColumns::Size, TextId::SizeCaption, &EntryTexts::AppendSize, kSizeLayout, L"size", true},
    {&FileColumns::Date, TextId::DateCaption, &EntryTexts::AppendDate, kDateLayout, L"date", false},
    {&FileColumns::Attributes, TextId::AttributesCaption, &EntryTexts::AppendAttributes, kAttributesLayout, L"attr",
     false},
}};

/// A column of the directory view. All are right-aligned in kDirectoryColumnWidth characters of plain text.
struct DirectoryColumn {
  bool DirectoryColumns::*Shown;
  TextId Caption;
  /// Blanks before the caption in plain text, whatever its length; nothing for a right-aligned caption.
  std::optional<std::size_t> CaptionBlanks;
  void (*AppendValue)(const DirNode& node, const Messages& texts, std::wstring& out);
  std::wstring_view Element;  ///< in XML documents
};
inline constexpr std::size_t kDirectoryColumnWidth = 10;  ///< characters
extern const std::array<DirectoryColumn, 4> kDirectoryColumns;

/// A column of the file lists. In plain text the folder is twice as wide as the name.
struct FoundColumn {
  TextId Caption;
  std::wstring FoundItem::*Value;
  int NameWidths;             ///< its width, in widths of the name column; 0 for one with a layout of its own
  CellLayout Layout;          ///< used when NameWidths is 0
  std::wstring_view Element;  ///< in XML documents
};
inline constexpr std::array<FoundColumn, 4> kFoundColumns = {{
    {TextId::NameCaption, &FoundItem::Name, 1, {}, L"name"},
    {TextId::FolderCaption, &FoundItem::InFolder, 2, {}, L"path"},
    {TextId::SizeCaption, &FoundItem::Size, 0, kSizeLayout, L"size"},
    {TextId::DateCaption, &FoundItem::Modified, 0, kDateLayout, L"date"},
}};

/// What a listing style is called; nothing for a code that is none.
std::optional<TextId> StyleCaption(ListingStyle style);

}  // namespace folivant
