// What the controls of the options dialog mean, on whatever page they stand. Languages and fonts are chosen in lists
// and dialogs of their own, which frmOptions looks after.
#pragma once

#include "base/GeneralSettings.h"
#include "res/Controls.h"
#include "ui/Binding.h"

namespace folivant {

inline constexpr Binding<GeneralSettings> kOptionsControls[] = {
    {kWindow, Text::OptionsTitle},
    {txtViewer, Text::Viewer, Edits<&GeneralSettings::TextViewer>},
    {cmdBrowse, Text::Browse},
    {fraPage, Text::TextPage},
    {txtWidth, Text::Width, EditsLeadingNumber<&GeneralSettings::TextWidth, kReadableTextWidths, kTextWidths>},
    {lblChars, Text::Characters},
    {txtHeight, Text::Height, EditsLeadingNumber<&GeneralSettings::TextHeight>},
    {lblLines, Text::Lines},
    {cmbDate, Text::DateFormat, EditsPosition<&GeneralSettings::DateFormat>},
    {chkExit, Text::ExitAfterPrinting, Edits<&GeneralSettings::ExitWhenDone>},
    {chkFF, Text::FilesBeforeDirs, Edits<&GeneralSettings::FilesFirst>},
    {chkEmptyDirs, Text::PrintEmptyDirs, Edits<&GeneralSettings::EmptyDirs>},
    {fraInches, Text::MarginsUnit},
    {optInches, Text::Inches, Chooses<&GeneralSettings::Inches, true>},
    {optMilimeter, Text::Millimeter, Chooses<&GeneralSettings::Inches, false>},
    {fraMargins, Text::Margins},
    {txtLeft, Text::MarginLeft, Edits<&GeneralSettings::MarginLeft>},
    {txtTop, Text::MarginTop, Edits<&GeneralSettings::MarginTop>},
    {txtRight, Text::MarginRight, Edits<&GeneralSettings::MarginRight>},
    {txtBottom, Text::MarginBottom, Edits<&GeneralSettings::MarginBottom>},
    {fraOrientation, Text::Orientation},
    {optPort, Text::Portrait, Chooses<&GeneralSettings::Portrait, true>},
    {optLand, Text::Landscape, Chooses<&GeneralSettings::Portrait, false>},
    {cmdPrinter, Text::PrinterButton},
    {cmdFont, Text::ChooseFont},
    {lblFont, Text::ListingsFont},
    {chkFontHF, Text::HeaderFooter80, Edits<&GeneralSettings::Font80HF>},
    {lblFontHF, Text::HeaderFooterFont},
    {cmdFontHF, Text::ChooseHeaderFooterFont},
    {txtHeader, Text::HeaderLabel, Edits<&GeneralSettings::Header>},
    {txtFooter, Text::FooterLabel, Edits<&GeneralSettings::Footer>},
    {fraLegend, Text::Placeholders},
    {cmbLang, Text::LanguageLabel},
    {lblRestart, Text::RestartNote},
    {cmdOK, Text::Ok},
    {cmdCancel, Text::Cancel},
    {cmdHelp, Text::Help},
};

inline constexpr Binding<PrinterSettings> kCopiesControls[] = {
    {txtCopies, Text::Copies, EditsNumber<&PrinterSettings::PrinterCopies, kRangeOf<std::int16_t>>},
};

}  // namespace folivant
