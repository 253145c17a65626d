// The filter window: which entries are listed, and in which order.
#include "scan/frmFilter.h"

#include "scan/FilterChoices.h"
#include "ui/frmBase.h"

namespace folivant {
namespace {

constexpr Binding<FilterSettings> kBindings[] = {
    {chkName, Text::FilterByName, Edits<&FilterSettings::NameOn>},
    {chkSize, Text::FilterBySize, Edits<&FilterSettings::SizeOn>},
    {chkDate, Text::FilterByDate, Edits<&FilterSettings::DateOn>},
    {chkAttr, Text::FilterByAttributes, Edits<&FilterSettings::AttrOn>},
    {txtName, Binding<FilterSettings>::kNoCaption, Edits<&FilterSettings::FilterName>},
    {txtSize, Binding<FilterSettings>::kNoCaption, Edits<&FilterSettings::FilterSize>},
    {lblKb, Text::Kilobytes},
    {DTPickMin, Text::Between},
    {DTPickMax, Text::And},
    {lblYes, Text::MustHave},
    {lblAny, Text::DoNotCare},
    {lblNo, Text::MustNotHave},
    {lblAttr + kAttrArchive, Text::AttributeArchive},
    {lblAttr + kAttrReadOnly, Text::AttributeReadOnly},
    {lblAttr + kAttrHidden, Text::AttributeHidden},
    {lblAttr + kAttrSystem, Text::AttributeSystem},
    {lblAttr + kAttrDirectory, Text::AttributeDirectory},
    {fraOrder, Text::OrderByLabel},
    {optName, Text::OrderName},
    {optExt, Text::OrderExtension},
    {optDOS, Text::OrderDosName},
    {optSize, Text::OrderSize},
    {optDate, Text::OrderDate},
    {optAZ, Text::Ascending},
    {optZA, Text::Descending},
    {cmdOK, Text::Ok},
    {cmdCancel, Text::Cancel},
    {cmdHelp, Text::Help},
};

constexpr int kAttributes = 5;
constexpr int kAtLeast = 0;  // position in cmbSize

/// By code, from 0: the order in which AttributeChoice counts.
constexpr int kAttributeButtons[] = {chkN, chkY, chkX};
/// Nothing for no order and for a code without a meaning.
constexpr int ButtonOf(OrderBy order) {
  switch (order) {
    case OrderBy::Name:
      return optName;
    case OrderBy::DosName:
      return optDOS;
    case OrderBy::Size:
      return optSize;
    case OrderBy::Date:
      return optDate;
    case OrderBy::Extension:
      return optExt;
    default:
      return 0;
  }
}

class frmFilter final : public frmBase {
 public:
  frmFilter(const DialogContext& context, FilterSettings& filter, const SaveRecord& save)
      : frmBase(dlgFilter, context), filter_(filter), save_(save) {}

 private:
  template <class Settings>
  static auto& ChoiceAt(Settings& filter, int attribute) {
    return filter.Attributes[static_cast<std::size_t>(attribute)];
  }

  void Form_Load() override {
    SetWindowTextW(Window(), Texts()[Text::FilterTitle].c_str());
    SetCaptions<FilterSettings>(kBindings);
    AddItem(cmbSize, Texts()[Text::AtLeast]);
    AddItem(cmbSize, Texts()[Text::AtMost]);
    NameFields();
    NameAttributeButtons();

    Fill<FilterSettings>(kBindings, filter_);
    Send(cmbSize, CB_SETCURSEL, filter_.SizeMin ? kAtLeast : kAtLeast + 1);
    SetDate(DTPickMin, filter_.DateMin);
    SetDate(DTPickMax, filter_.DateMax);
    for (int i = 0; i < kAttributes; ++i) {
      Choose({chkY + i, chkX + i, chkN + i}, kAttributeButtons[static_cast<std::size_t>(ChoiceAt(filter_, i))] + i);
    }
    Choose({optName, optExt, optDOS, optSize, optDate}, ButtonOf(filter_.OrderBy));
    Choose({optAZ, optZA}, filter_.OrderAZ ? optAZ : optZA);
    EnableParts();

    for (const int part : {chkName, chkSize, chkDate, chkAttr}) {
      OnClick(part, [this] { EnableParts(); });
    }
    OnClick(cmdOK, [this] { cmdOK_Click(); });
    OnClick(cmdHelp, [this] { ShowHelp(); });
  }

  /// Each part follows its check box.
  void EnableParts() {
    Enable(txtName, Checked(chkName));
    for (const int control : {cmbSize, txtSize, lblKb}) {
      Enable(control, Checked(chkSize));
    }
    for (const int control : {LABEL_OF(DTPickMin), DTPickMin, LABEL_OF(DTPickMax), DTPickMax}) {
      Enable(control, Checked(chkDate));
    }
    for (const int control : {lblYes, lblAny, lblNo}) {
      Enable(control, Checked(chkAttr));
    }
    for (int i = 0; i < kAttributes; ++i) {
      for (const int control : {lblAttr, chkY, chkX, chkN}) {
        Enable(control + i, Checked(chkAttr));
      }
    }
  }

  /// Fields that a check box introduces have hidden labels for screen readers.
  void NameFields() {
    for (const auto& [field, box] : {std::pair(txtName, chkName), {cmbSize, chkSize}, {txtSize, chkSize}}) {
      SetText(LABEL_OF(field), FieldName(TextOf(box)));
    }
  }

  /// The buttons stand bare in their columns; their texts are for screen readers.
  void NameAttributeButtons() {
    for (int i = 0; i < kAttributes; ++i) {
      for (const auto& [button, head] : {std::pair(chkY, lblYes), std::pair(chkX, lblAny), std::pair(chkN, lblNo)}) {
        SetText(button + i, TextOf(lblAttr + i) + L": " + TextOf(head));
      }
    }
  }

  void cmdOK_Click() {
    FilterSettings filter = filter_;
    Read<FilterSettings>(kBindings, filter);
    filter.SizeMin = Send(cmbSize, CB_GETCURSEL) == kAtLeast;
    filter.DateMin = DateOf(DTPickMin);
    filter.DateMax = DateOf(DTPickMax);
    for (int i = 0; i < kAttributes; ++i) {
      ChoiceAt(filter, i) = AttributeChoiceOf(Checked(chkY + i), Checked(chkX + i));
    }
    filter.OrderBy = OrderByOf({.Name = Checked(optName),
                                .DosName = Checked(optDOS),
                                .Size = Checked(optSize),
                                .Date = Checked(optDate),
                                .Extension = Checked(optExt)});
    filter.OrderAZ = Checked(optAZ);
    filter_ = filter;
    save_();
    Close(IDOK);
  }

  void SetDate(int picker, DateValue date) {
    const platform::CalendarTime day = ToCalendarTime(date);
    SYSTEMTIME shown{};
    shown.wYear = static_cast<WORD>(day.Year);
    shown.wMonth = static_cast<WORD>(day.Month);
    shown.wDay = static_cast<WORD>(day.Day);
    Send(picker, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&shown));
  }

  /// The midnight of the day that is shown. A picker that shows days alone has a time of day all the same, the last one
  /// that it was given or that of its making.
  DateValue DateOf(int picker) const {
    SYSTEMTIME shown{};
    Send(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&shown));
    return ToDateValue({shown.wYear, shown.wMonth, shown.wDay});
  }

  /// A size that does not convert is asked for again, also when its part was switched off.
  void ShowField(int) override {
    SetChecked(chkSize, true);
    EnableParts();
  }

  FilterSettings& filter_;
  const SaveRecord& save_;
};

}  // namespace

void ShowFilterDialog(platform::Dialog& owner, const DialogContext& context, FilterSettings& filter,
                      const SaveRecord& save) {
  frmFilter(context, filter, save).ShowModal(owner.Window());
}

}  // namespace folivant
