#include "scan/frmColumns.h"

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
  frmColumns(const DialogContext& context, ListingFormat& format, const SaveRecord& save)
      : frmBase(dlgColumns, context), format_(format), save_(save) {}

 private:
  void Form_Load() override {
    SetWindowTextW(Window(), Texts()[Text::ColumnsTitle].c_str());
    SetCaptions<FileColumns>(kFileColumns);
    SetCaptions<DirectoryColumns>(kDirectoryColumns);
    SetCaptions<ListingFormat>(kFormat);
    Fill<FileColumns>(kFileColumns, format_.Files);
    Fill<DirectoryColumns>(kDirectoryColumns, format_.Directories);
    Fill<ListingFormat>(kFormat, format_);
    OnClick(cmdOK, [this] { cmdOK_Click(); });
    OnClick(cmdHelp, [this] { ShowHelp(); });
  }

  void cmdOK_Click() {
    ListingFormat format = format_;
    Read<FileColumns>(kFileColumns, format.Files);
    Read<DirectoryColumns>(kDirectoryColumns, format.Directories);
    Read<ListingFormat>(kFormat, format);
    format_ = format;
    save_();
    Close(IDOK);
  }

  ListingFormat& format_;
  const SaveRecord& save_;
};

}  // namespace

void ShowColumnsDialog(platform::Dialog& owner, const DialogContext& context, ListingFormat& format,
                       const SaveRecord& save) {
  frmColumns(context, format, save).ShowModal(owner.Window());
}

}  // namespace folivant
