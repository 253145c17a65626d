// What the controls of the options dialog mean, on whatever page they stand. Languages and fonts are chosen in lists
// and dialogs of their own, which frmOptions looks after.
#pragma once

#include "base/GeneralSettings.h"
#include "res/Controls.h"
#include "ui/Binding.h"

namespace folivant {

inline constexpr Binding<GeneralSettings> kOptionsControls[] = {
    {kWindow, TextId::OptionsTitle},
    {txtViewer, TextId::Viewer, Edits<&GeneralSettings::TextViewer>},
    {cmdBrowse, TextId::Browse},
    {fraPage, TextId::TextPage},
    {txtWidth, TextId::Width, EditsLeadingNumber<&GeneralSettings::TextWidth, kReadableTextWidths, kTextWidths>},
    {lblChars, TextId::Characters},
    {txtHeight, TextId::Height, EditsLeadingNumber<&GeneralSettings::TextHeight>},
    {lblLines, TextId::Lines},
    {cmbDate, TextId::DateFormat, EditsPosition<&GeneralSettings::DateFormat>},
    {chkExit, TextId::ExitAfterPrinting, Edits<&GeneralSettings::ExitWhenDone>},
    {chkFF, TextId::FilesBeforeDirs, Edits<&GeneralSettings::FilesFirst>},
    {chkEmptyDirs, TextId::PrintEmptyDirs, Edits<&GeneralSettings::EmptyDirs>},
    {fraInches, TextId::MarginsUnit},
    {optInches, TextId::Inches, Chooses<&GeneralSettings::Inches, true>},
    {optMilimeter, TextId::Millimeter, Chooses<&GeneralSettings::Inches, false>},
    {fraMargins, TextId::Margins},
    {txtLeft, TextId::MarginLeft, Edits<&GeneralSettings::MarginLeft>},
    {txtTop, TextId::MarginTop, Edits<&GeneralSettings::MarginTop>},
    {txtRight, TextId::MarginRight, Edits<&GeneralSettings::MarginRight>},
    {txtBottom, TextId::MarginBottom, Edits<&GeneralSettings::MarginBottom>},
    {fraOrientation, TextId::Orientation},
    {optPort, TextId::Portrait, Chooses<&GeneralSettings::Portrait, true>},
    {optLand, TextId::Landscape, Chooses<&GeneralSettings::Portrait, false>},
    {cmdPrinter, TextId::PrinterButton},
    {cmdFont, TextId::ChooseFont},
    {lblFont, TextId::ListingsFont},
    {chkFontHF, TextId::HeaderFooter80, Edits<&GeneralSettings::Font80HF>},
    {lblFontHF, TextId::HeaderFooterFont},
    {cmdFontHF, TextId::ChooseHeaderFooterFont},
    {txtHeader, TextId::HeaderLabel, Edits<&GeneralSettings::Header>},
    {txtFooter, TextId::FooterLabel, Edits<&GeneralSettings::Footer>},
    {fraLegend, TextId::Placeholders},
    {cmbLang, TextId::LanguageLabel},
    {lblRestart, TextId::RestartNote},
    {chkFollowLinks, TextId::FollowLinks, Edits<&GeneralSettings::FollowLinks>},
    {chkNaturalOrder, TextId::NaturalOrder, Edits<&GeneralSettings::NaturalOrder>},
    {fraRecord, TextId::RecordFields},
    {chkOwner, TextId::RecordOwner, Edits<&GeneralSettings::RecordOwner>},
    {chkLinks, TextId::RecordLinks, Edits<&GeneralSettings::RecordLinks>},
    {lblOpens, TextId::RecordOpensFiles},
    {chkSha256, TextId::RecordSha256, Edits<&GeneralSettings::RecordSha256>},
    {lblReads, TextId::RecordReadsFiles},
    {fraExactCsv, TextId::TypeExactCsv},
    {chkApostrophe, TextId::CsvApostrophe, Edits<&GeneralSettings::CsvApostrophe>},
    {lblApostrophe, TextId::CsvApostropheNote},
    {cmdOK, TextId::Ok},
    {cmdCancel, TextId::Cancel},
    {cmdHelp, TextId::Help},
};

inline constexpr Binding<PrinterSettings> kCopiesControls[] = {
    {txtCopies, TextId::Copies, EditsNumber<&PrinterSettings::PrinterCopies, kRangeOf<std::int16_t>>},
};

}  // namespace folivant
