// The kinds of output, each with everything that differs between them: what it is called on a command line and in the
// save dialog, which extension a name without one gets, and who writes it. A new kind is one row.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "output/OutputKind.h"
#include "scan/ListingWriter.h"
#include "ui/Messages.h"

namespace folivant {

struct OutputKindRow {
  OutputKind Kind;
  std::wstring_view Word;             ///< how ./run.sh calls it
  wchar_t Letter;                     ///< after "/t"; 0 for a kind that "/k" names
  std::wstring_view SwitchWord;       ///< after "/k"; empty for a kind that "/t" names
  std::wstring_view SwitchExtension;  ///< for a name without a dot after "/o"
  std::wstring_view DialogExtension;  ///< for a name without a dot from the save dialog
  std::wstring_view Pattern;          ///< in the save dialog; empty for a kind that is no file
  std::wstring (*Caption)(const Messages& texts);
  std::unique_ptr<ListingWriter> (*MakeWriter)();
};

/// In the order of the save dialog's types.
std::span<const OutputKindRow> OutputKinds();
/// The first row for a code that is no kind.
const OutputKindRow& RowOf(OutputKind kind);
/// Null for an unknown letter.
const OutputKindRow* RowOfLetter(wchar_t letter);
/// Null for an unknown word.
const OutputKindRow* RowOfSwitchWord(std::wstring_view word);

/// The types of the save dialog: "Text file|*.txt|HTML file|*.htm*".
std::wstring SaveDialogTypes(const Messages& texts);
/// The position of a kind among them, from 1; 1 for one that is no file. And back.
int SaveDialogIndexOf(OutputKind kind);
OutputKind KindAtSaveDialogIndex(int index);

}  // namespace folivant
