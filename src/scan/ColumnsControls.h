// What the controls of the columns dialog mean.
#pragma once

#include "res/Controls.h"
#include "scan/ListingFormat.h"
#include "ui/Binding.h"

namespace folivant {

inline constexpr Binding<ListingFormat> kColumnsControls[] = {
    {kWindow, TextId::ColumnsTitle},
    {fraFileView, TextId::FileView},
    {chkName, TextId::ColumnName, Edits<&ListingFormat::Files, &FileColumns::Name>},
    {chkDOS, TextId::ColumnDosName, Edits<&ListingFormat::Files, &FileColumns::DosName>},
    {chkSize, TextId::ColumnSize, Edits<&ListingFormat::Files, &FileColumns::Size>},
    {chkTime, TextId::ColumnDate, Edits<&ListingFormat::Files, &FileColumns::Date>},
    {chkAttr, TextId::ColumnAttributes, Edits<&ListingFormat::Files, &FileColumns::Attributes>},
    {fraDirectoryView, TextId::DirectoryViewFrame},
    {chkTFiles, TextId::ColumnFiles, Edits<&ListingFormat::Directories, &DirectoryColumns::Files>},
    {chkTSize, TextId::ColumnDirectorySize, Edits<&ListingFormat::Directories, &DirectoryColumns::Size>},
    {chkTTFiles, TextId::ColumnTotalFiles, Edits<&ListingFormat::Directories, &DirectoryColumns::TotalFiles>},
    {chkTTSize, TextId::ColumnTotalSize, Edits<&ListingFormat::Directories, &DirectoryColumns::TotalSize>},
    {txtLevel, TextId::MaxLevel, Edits<&ListingFormat::SubLevel>},
    {lblAllLevels, TextId::AllLevels},
    {cmdOK, TextId::Ok},
    {cmdCancel, TextId::Cancel},
    {cmdHelp, TextId::Help},
};

}  // namespace folivant
