// What the controls of the filter dialog mean.
#pragma once

#include "res/Controls.h"
#include "scan/FilterSettings.h"
#include "ui/Binding.h"

namespace folivant {

/// Both senses of the size limit, in the order in which the list shows them.
inline constexpr ListItem<bool> kSizeLimits[] = {{Text::AtLeast, true}, {Text::AtMost, false}};

inline constexpr Binding<FilterSettings> kFilterControls[] = {
    {kWindow, Text::FilterTitle},
    {chkName, Text::FilterByName, Edits<&FilterSettings::NameOn>},
    {chkSize, Text::FilterBySize, Edits<&FilterSettings::SizeOn>},
    {chkDate, Text::FilterByDate, Edits<&FilterSettings::DateOn>},
    {chkAttr, Text::FilterByAttributes, Edits<&FilterSettings::AttrOn>},
    {txtName, kNoCaption, Edits<&FilterSettings::FilterName>},
    {cmbSize, kNoCaption, Lists<&FilterSettings::SizeMin, kSizeLimits>},
    {txtSize, kNoCaption, Edits<&FilterSettings::FilterSize>},
    {lblKb, Text::Kilobytes},
    {DTPickMin, Text::Between, EditsDay<&FilterSettings::DateMin>},
    {DTPickMax, Text::And, EditsDay<&FilterSettings::DateMax>},
    {lblYes, Text::MustHave},
    {lblAny, Text::DoNotCare},
    {lblNo, Text::MustNotHave},
    {lblAttr + kAttrArchive, Text::AttributeArchive},
    {lblAttr + kAttrReadOnly, Text::AttributeReadOnly},
    {lblAttr + kAttrHidden, Text::AttributeHidden},
    {lblAttr + kAttrSystem, Text::AttributeSystem},
    {lblAttr + kAttrDirectory, Text::AttributeDirectory},
    {fraOrder, Text::OrderByLabel},
    {optName, Text::OrderName, Chooses<&FilterSettings::OrderBy, OrderBy::Name>},
    {optExt, Text::OrderExtension, Chooses<&FilterSettings::OrderBy, OrderBy::Extension>},
    {optDOS, Text::OrderDosName, Chooses<&FilterSettings::OrderBy, OrderBy::DosName>},
    {optSize, Text::OrderSize, Chooses<&FilterSettings::OrderBy, OrderBy::Size>},
    {optDate, Text::OrderDate, Chooses<&FilterSettings::OrderBy, OrderBy::Date>},
    {kNoControl, kNoCaption, Chooses<&FilterSettings::OrderBy, OrderBy::None>},
    {optAZ, Text::Ascending, Chooses<&FilterSettings::OrderAZ, true>},
    {optZA, Text::Descending, Chooses<&FilterSettings::OrderAZ, false>},
    {cmdOK, Text::Ok},
    {cmdCancel, Text::Cancel},
    {cmdHelp, Text::Help},
};

/// The buttons of the first attribute; those of the others have the numbers after them. Their texts are put together
/// from the heads of their row and column.
inline constexpr Binding<AttributeChoice> kAttributeControls[] = {
    {chkX, kNoCaption, Means<AttributeChoice::DoNotCare>},
    {chkY, kNoCaption, Means<AttributeChoice::MustHave>},
    {chkN, kNoCaption, Means<AttributeChoice::MustNotHave>},
};

}  // namespace folivant
