#include "scan/frmColumns.h"

#include "app/Settings.h"
#include "app/mdlVars.h"
#include "ui/frmBase.h"

namespace folivant {
namespace {

constexpr Binding<FileColumns> kFileColumns[] = {
    {chkName, Text::ColumnName, Edits<&FileColumns::Name>},
    {chkDOS, Text::ColumnDosName, Edits<&FileColumns::DosName>},
    {chkSize, Text::ColumnSize, Edits<&FileColumns::Size>},
    {chkTime, Text::ColumnDate, Edits<&FileColumns::Date>},
    {chkAttr, Text::ColumnAttributes, Edits<&FileColumns::Attributes>},
};
constexpr Binding<DirectoryColumns> kDirectoryColumns[] = {
    {chkTFiles, Text::ColumnFiles, Edits<&DirectoryColumns::Files>},
    {chkTSize, Text::ColumnDirectorySize, Edits<&DirectoryColumns::Size>},
    {chkTTFiles, Text::ColumnTotalFiles, Edits<&DirectoryColumns::TotalFiles>},
    {chkTTSize, Text::ColumnTotalSize, Edits<&DirectoryColumns::TotalSize>},
};
constexpr Binding<ListingFormat> kFormat[] = {
    {txtLevel, Text::MaxLevel, Edits<&ListingFormat::SubLevel>},
    {lblAllLevels, Text::AllLevels},
    {fraFileView, Text::FileView},
    {fraDirectoryView, Text::DirectoryViewFrame},
    {cmdOK, Text::Ok},
    {cmdCancel, Text::Cancel},
    {cmdHelp, Text::Help},
};

class frmColumns final : public frmBase {
 public:
  frmColumns() : frmBase(dlgColumns) {}

 private:
  void Form_Load() override {
    SetWindowTextW(Window(), mdlVars::Texts[Text::ColumnsTitle].c_str());
    SetCaptions<FileColumns>(kFileColumns);
    SetCaptions<DirectoryColumns>(kDirectoryColumns);
    SetCaptions<ListingFormat>(kFormat);
    Fill<FileColumns>(kFileColumns, mdlVars::Format.Files);
    Fill<DirectoryColumns>(kDirectoryColumns, mdlVars::Format.Directories);
    Fill<ListingFormat>(kFormat, mdlVars::Format);
    OnClick(cmdOK, [this] { cmdOK_Click(); });
    OnClick(cmdHelp, [this] { ShowHelp(); });
  }

  void cmdOK_Click() {
    ListingFormat format = mdlVars::Format;
    Read<FileColumns>(kFileColumns, format.Files);
    Read<DirectoryColumns>(kDirectoryColumns, format.Directories);
    Read<ListingFormat>(kFormat, format);
    mdlVars::Format = format;
    SaveFormatSettings();
    Close(IDOK);
  }
};

}  // namespace

bool ShowColumnsDialog(platform::Dialog& owner) {
  return frmColumns().ShowModal(owner.Window()) == IDOK;
}

}  // namespace folivant
