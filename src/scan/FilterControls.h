// What the controls of the filter dialog mean.
#pragma once

#include "res/Controls.h"
#include "scan/FilterSettings.h"
#include "ui/Binding.h"

namespace folivant {

/// Both senses of the size limit, in the order in which the list shows them.
inline constexpr ListItem<bool> kSizeLimits[] = {{TextId::AtLeast, true}, {TextId::AtMost, false}};

inline constexpr Binding<FilterSettings> kFilterControls[] = {
    {kWindow, TextId::FilterTitle},
    {chkName, TextId::FilterByName, Edits<&FilterSettings::NameOn>},
    {chkSize, TextId::FilterBySize, Edits<&FilterSettings::SizeOn>},
    {chkDate, TextId::FilterByDate, Edits<&FilterSettings::DateOn>},
    {chkAttr, TextId::FilterByAttributes, Edits<&FilterSettings::AttrOn>},
    {txtName, kNoCaption, Edits<&FilterSettings::FilterName>},
    {cmbSize, kNoCaption, Lists<&FilterSettings::SizeMin, kSizeLimits>},
    {txtSize, kNoCaption, Edits<&FilterSettings::FilterSize>},
    {lblKb, TextId::Kilobytes},
    {DTPickMin, TextId::Between, EditsDay<&FilterSettings::DateMin>},
    {DTPickMax, TextId::And, EditsDay<&FilterSettings::DateMax>},
    {lblYes, TextId::MustHave},
    {lblAny, TextId::DoNotCare},
    {lblNo, TextId::MustNotHave},
    {lblAttr + kAttrArchive, TextId::AttributeArchive},
    {lblAttr + kAttrReadOnly, TextId::AttributeReadOnly},
    {lblAttr + kAttrHidden, TextId::AttributeHidden},
    {lblAttr + kAttrSystem, TextId::AttributeSystem},
    {lblAttr + kAttrDirectory, TextId::AttributeDirectory},
    {fraOrder, TextId::OrderByLabel},
    {optName, TextId::OrderName, Chooses<&FilterSettings::OrderBy, OrderBy::Name>},
    {optExt, TextId::OrderExtension, Chooses<&FilterSettings::OrderBy, OrderBy::Extension>},
    {optDOS, TextId::OrderDosName, Chooses<&FilterSettings::OrderBy, OrderBy::DosName>},
    {optSize, TextId::OrderSize, Chooses<&FilterSettings::OrderBy, OrderBy::Size>},
    {optDate, TextId::OrderDate, Chooses<&FilterSettings::OrderBy, OrderBy::Date>},
    {kNoControl, kNoCaption, Chooses<&FilterSettings::OrderBy, OrderBy::None>},
    {optAZ, TextId::Ascending, Chooses<&FilterSettings::OrderAZ, true>},
    {optZA, TextId::Descending, Chooses<&FilterSettings::OrderAZ, false>},
    {cmdOK, TextId::Ok},
    {cmdCancel, TextId::Cancel},
    {cmdHelp, TextId::Help},
};

/// The buttons of the first attribute; those of the others have the numbers after them. Their texts are put together
/// from the heads of their row and column.
inline constexpr Binding<AttributeChoice> kAttributeControls[] = {
    {chkX, kNoCaption, Means<AttributeChoice::DoNotCare>},
    {chkY, kNoCaption, Means<AttributeChoice::MustHave>},
    {chkN, kNoCaption, Means<AttributeChoice::MustNotHave>},
};

}  // namespace folivant
