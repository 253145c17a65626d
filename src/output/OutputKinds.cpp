// The table of output kinds, and what is asked of it.
#include "output/OutputKinds.h"

#include <algorithm>
#include <array>

#include "output/mdlPrintExactCsv.h"
#include "output/mdlPrintHTML.h"
#include "output/mdlPrintJson.h"
#include "output/mdlPrintPrinter.h"
#include "output/mdlPrintSha256.h"
#include "output/mdlPrintText.h"
#include "output/mdlPrintXML.h"

namespace folivant {
namespace {

template <wchar_t separator>
std::unique_ptr<ListingWriter> MakeText() {
  return MakeTextWriter(separator);
}

template <TextId caption>
std::wstring FromLanguage(const Messages& texts) {
  return texts[caption];
}
// The same in every language.
std::wstring CsvCaption(const Messages&) {
  return L"CSV-file";
}
std::wstring XmlCaption(const Messages&) {
  return L"XML file";
}

// A CSV file without an extension becomes ".txt" everywhere, and an XML file on a command line too, on purpose: scripts
// depend on the names that they get. The printer's extensions are for a name that is given and that nothing writes.
constexpr std::array<OutputKindRow, 9> kRows = {{
    {OutputKind::Text, L"text", L't', L"", L".txt", L".txt", L"*.txt", FromLanguage<TextId::TypeText>,
     MakeText<kPlainText>},
    {OutputKind::TabDelimited, L"tab", L'a', L"", L".txt", L".txt", L"*.txt", FromLanguage<TextId::TypeTabDelimited>,
     MakeText<kTabDelimited>},
    {OutputKind::Html, L"html", L'h', L"", L".html", L".html", L"*.htm*", FromLanguage<TextId::TypeHtml>,
     MakeHtmlWriter},
    {OutputKind::Csv, L"csv", L'c', L"", L".txt", L".txt", L"*.csv", CsvCaption, MakeText<kCsv>},
    {OutputKind::Xml, L"xml", L'x', L"", L".txt", L".xml", L"*.xml", XmlCaption, MakeXmlWriter},
    {OutputKind::ExactCsv, L"exact-csv", L'\0', L"csv", L".csv", L".csv", L"*.csv", FromLanguage<TextId::TypeExactCsv>,
     MakeExactCsvWriter},
    {OutputKind::JsonLines, L"jsonl", L'\0', L"json", L".jsonl", L".jsonl", L"*.jsonl",
     FromLanguage<TextId::TypeJsonLines>, MakeJsonWriter},
    {OutputKind::Sha256, L"sha256", L'\0', L"sha256", L".sha256", L".sha256", L"*.sha256",
     FromLanguage<TextId::TypeSha256>, MakeSha256Writer},
    {OutputKind::Printer, L"printer", L'p', L"", L".txt", L".txt", L"", nullptr, MakePrinterWriter},
}};

}  // namespace

std::span<const OutputKindRow> OutputKinds() {
  return kRows;
}

const OutputKindRow& RowOf(OutputKind kind) {
  const auto row = std::find_if(kRows.begin(), kRows.end(), [kind](const auto& each) { return each.Kind == kind; });
  return row == kRows.end() ? kRows.front() : *row;
}

const OutputKindRow* RowOfLetter(wchar_t letter) {
  const auto row = std::find_if(kRows.begin(), kRows.end(),
                                [letter](const auto& each) { return letter != 0 && each.Letter == letter; });
  return row == kRows.end() ? nullptr : &*row;
}

const OutputKindRow* RowOfSwitchWord(std::wstring_view word) {
  const auto row = std::find_if(kRows.begin(), kRows.end(),
                                [word](const auto& each) { return !word.empty() && each.SwitchWord == word; });
  return row == kRows.end() ? nullptr : &*row;
}

std::wstring SaveDialogTypes(const Messages& texts) {
  std::wstring types;
  for (const OutputKindRow& row : kRows) {
    if (!row.Pattern.empty()) {
      types += types.empty() ? L"" : L"|";
      types.append(row.Caption(texts)).append(L"|").append(row.Pattern);
    }
  }
  return types;
}

int SaveDialogIndexOf(OutputKind kind) {
  int index = 1;
  for (const OutputKindRow& row : kRows) {
    if (row.Kind == kind) {
      return row.Pattern.empty() ? 1 : index;
    }
    index += row.Pattern.empty() ? 0 : 1;
  }
  return 1;
}

OutputKind KindAtSaveDialogIndex(int index) {
  for (const OutputKindRow& row : kRows) {
    if (!row.Pattern.empty() && --index == 0) {
      return row.Kind;
    }
  }
  return kRows.front().Kind;
}

}  // namespace folivant
