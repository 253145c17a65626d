// What the controls of the main window mean.
#pragma once

#include "output/OutputKind.h"
#include "res/Controls.h"
#include "ui/Binding.h"

namespace folivant {

inline constexpr Binding<NoRecord> kMainControls[] = {
    {Label1, Text::Directory},
    {Label3, Text::Filter},
    {Label2, Text::OutputFormat},
    {fraTo, Text::OutputTo},
    {cmdBrowse, Text::Browse},
    {cmdFilter, Text::FilterButton},
    {cmdFormat, Text::FormatButton},
    {cmdLoad, Text::LoadFilters},
    {cmdSave, Text::SaveFilters},
    {cmdOptions, Text::Options},
    {cmdOK, Text::Ok},
    {cmdCancel, Text::Close},
    {cmdHelp, Text::Help},
};
inline constexpr Binding<OutputTarget> kOutputToControls[] = {
    {optPrinter, Text::ToPrinter, Means<OutputTarget::Printer>},
    {optFile, Text::ToFile, Means<OutputTarget::File>},
    {optScreen, Text::ToScreen, Means<OutputTarget::Screen>},
};

}  // namespace folivant
