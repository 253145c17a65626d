// What the controls of the columns dialog mean.
#pragma once

#include "res/Controls.h"
#include "scan/ListingFormat.h"
#include "ui/Binding.h"

namespace folivant {

inline constexpr Binding<ListingFormat> kColumnsControls[] = {
    {kWindow, Text::ColumnsTitle},
    {fraFileView, Text::FileView},
    {chkName, Text::ColumnName, Edits<&ListingFormat::Files, &FileColumns::Name>},
    {chkDOS, Text::ColumnDosName, Edits<&ListingFormat::Files, &FileColumns::DosName>},
    {chkSize, Text::ColumnSize, Edits<&ListingFormat::Files, &FileColumns::Size>},
    {chkTime, Text::ColumnDate, Edits<&ListingFormat::Files, &FileColumns::Date>},
    {chkAttr, Text::ColumnAttributes, Edits<&ListingFormat::Files, &FileColumns::Attributes>},
    {fraDirectoryView, Text::DirectoryViewFrame},
    {chkTFiles, Text::ColumnFiles, Edits<&ListingFormat::Directories, &DirectoryColumns::Files>},
    {chkTSize, Text::ColumnDirectorySize, Edits<&ListingFormat::Directories, &DirectoryColumns::Size>},
    {chkTTFiles, Text::ColumnTotalFiles, Edits<&ListingFormat::Directories, &DirectoryColumns::TotalFiles>},
    {chkTTSize, Text::ColumnTotalSize, Edits<&ListingFormat::Directories, &DirectoryColumns::TotalSize>},
    {txtLevel, Text::MaxLevel, Edits<&ListingFormat::SubLevel>},
    {lblAllLevels, Text::AllLevels},
    {cmdOK, Text::Ok},
    {cmdCancel, Text::Cancel},
    {cmdHelp, Text::Help},
};

}  // namespace folivant
