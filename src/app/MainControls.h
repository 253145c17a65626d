// What the controls of the main window mean.
#pragma once

#include "output/OutputKind.h"
#include "res/Controls.h"
#include "ui/Binding.h"

namespace folivant {

inline constexpr Binding<NoRecord> kMainControls[] = {
    {Label1, TextId::Directory},
    {Label3, TextId::Filter},
    {Label2, TextId::OutputFormat},
    {fraTo, TextId::OutputTo},
    {cmdBrowse, TextId::Browse},
    {cmdFilter, TextId::FilterButton},
    {cmdFormat, TextId::FormatButton},
    {cmdLoad, TextId::LoadFilters},
    {cmdSave, TextId::SaveFilters},
    {cmdOptions, TextId::Options},
    {cmdOK, TextId::Ok},
    {cmdCancel, TextId::Close},
    {cmdHelp, TextId::Help},
};
inline constexpr Binding<OutputTarget> kOutputToControls[] = {
    {optPrinter, TextId::ToPrinter, Means<OutputTarget::Printer>},
    {optFile, TextId::ToFile, Means<OutputTarget::File>},
    {optScreen, TextId::ToScreen, Means<OutputTarget::Screen>},
};

}  // namespace folivant
