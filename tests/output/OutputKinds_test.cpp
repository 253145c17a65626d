#include "output/OutputKinds.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"
#include "fakes/RunRecords.h"

namespace folivant {
namespace {

constexpr OutputKind kUnknown = static_cast<OutputKind>(99);

/// What users and their scripts depend on.
struct ExpectedRow {
  OutputKind Kind;
  int Code;
  std::wstring Word;
  wchar_t Letter;
  std::wstring SwitchWord;
  std::wstring SwitchExtension;
  std::wstring DialogExtension;
  std::wstring Pattern;
  std::wstring Caption;  ///< empty for a kind without one
  int DialogIndex;
};
const ExpectedRow kExpected[] = {
    {OutputKind::Text, 0, L"text", L't', L"", L".txt", L".txt", L"*.txt", L"Plain", 1},
    {OutputKind::TabDelimited, 1, L"tab", L'a', L"", L".txt", L".txt", L"*.txt", L"With tabs", 2},
    {OutputKind::Html, 2, L"html", L'h', L"", L".html", L".html", L"*.htm*", L"Page", 3},
    {OutputKind::Csv, 3, L"csv", L'c', L"", L".txt", L".txt", L"*.csv", L"CSV-file", 4},
    {OutputKind::Xml, 4, L"xml", L'x', L"", L".txt", L".xml", L"*.xml", L"XML file", 5},
    {OutputKind::ExactCsv, 6, L"exact-csv", L'\0', L"csv", L".csv", L".csv", L"*.csv", L"Rows", 6},
    {OutputKind::JsonLines, 7, L"jsonl", L'\0', L"json", L".jsonl", L".jsonl", L"*.jsonl", L"Objects", 7},
    {OutputKind::Sha256, 8, L"sha256", L'\0', L"sha256", L".sha256", L".sha256", L"*.sha256", L"Sums", 8},
    {OutputKind::Printer, 5, L"printer", L'p', L"", L".txt", L".txt", L"", L"", 1},
};

Messages TypeNames() {
  Messages texts;
  texts.Set(static_cast<std::size_t>(TextId::TypeText), L"Plain");
  texts.Set(static_cast<std::size_t>(TextId::TypeTabDelimited), L"With tabs");
  texts.Set(static_cast<std::size_t>(TextId::TypeHtml), L"Page");
  texts.Set(static_cast<std::size_t>(TextId::TypeExactCsv), L"Rows");
  texts.Set(static_cast<std::size_t>(TextId::TypeJsonLines), L"Objects");
  texts.Set(static_cast<std::size_t>(TextId::TypeSha256), L"Sums");
  return texts;
}

TEST(OutputKinds, StandInTheOrderOfTheSaveDialogAndKeepTheirCodes) {
  ASSERT_EQ(OutputKinds().size(), std::size(kExpected));
  for (std::size_t i = 0; i < std::size(kExpected); ++i) {
    EXPECT_EQ(OutputKinds()[i].Kind, kExpected[i].Kind);
    EXPECT_EQ(static_cast<int>(kExpected[i].Kind), kExpected[i].Code);
  }
}

TEST(OutputKinds, HaveTheirWordLetterExtensionsAndType) {
  for (const ExpectedRow& expected : kExpected) {
    SCOPED_TRACE(testing::PrintToString(expected.Word));
    const OutputKindRow& row = RowOf(expected.Kind);
    EXPECT_EQ(row.Kind, expected.Kind);
    EXPECT_EQ(row.Word, expected.Word);
    EXPECT_EQ(row.Letter, expected.Letter);
    EXPECT_EQ(row.SwitchWord, expected.SwitchWord);
    EXPECT_EQ(row.SwitchExtension, expected.SwitchExtension);
    EXPECT_EQ(row.DialogExtension, expected.DialogExtension);
    EXPECT_EQ(row.Pattern, expected.Pattern);
    EXPECT_EQ(row.Caption ? row.Caption(TypeNames()) : L"", expected.Caption);
  }
}

TEST(OutputKinds, AreTextForACodeThatIsNone) {
  EXPECT_EQ(RowOf(kUnknown).Kind, OutputKind::Text);
  EXPECT_EQ(RowOf(static_cast<OutputKind>(-1)).Kind, OutputKind::Text);
}

TEST(OutputKinds, AreFoundByTheirLetterOrTheirWord) {
  for (const ExpectedRow& expected : kExpected) {
    const OutputKindRow* const row =
        expected.Letter != 0 ? RowOfLetter(expected.Letter) : RowOfSwitchWord(expected.SwitchWord);
    ASSERT_NE(row, nullptr) << testing::PrintToString(expected.Word);
    EXPECT_EQ(row->Kind, expected.Kind);
  }
  for (const wchar_t* word : {L"", L"CSV", L"jsonl", L"text", L"csv "}) {
    EXPECT_EQ(RowOfSwitchWord(word), nullptr);
  }
  for (const wchar_t letter : {L'T', L'z', L' ', L'\0'}) {
    EXPECT_EQ(RowOfLetter(letter), nullptr);
  }
}

TEST(OutputKinds, AreTheTypesOfTheSaveDialog) {
  EXPECT_EQ(SaveDialogTypes(TypeNames()),
            L"Plain|*.txt|With tabs|*.txt|Page|*.htm*|CSV-file|*.csv|XML file|*.xml|"
            L"Rows|*.csv|Objects|*.jsonl|Sums|*.sha256");
}

TEST(OutputKinds, HaveAPositionInTheSaveDialog) {
  for (const ExpectedRow& expected : kExpected) {
    SCOPED_TRACE(testing::PrintToString(expected.Word));
    EXPECT_EQ(SaveDialogIndexOf(expected.Kind), expected.DialogIndex);
    if (!expected.Pattern.empty()) {
      EXPECT_EQ(KindAtSaveDialogIndex(expected.DialogIndex), expected.Kind);
    }
  }
  EXPECT_EQ(SaveDialogIndexOf(kUnknown), 1);
  for (const int index : {-1, 0, 9, 100}) {
    EXPECT_EQ(KindAtSaveDialogIndex(index), OutputKind::Text) << index;
  }
}

class OutputKindWriters : public testing::Test, protected fakes::RunRecords {
 protected:
  OutputKindWriters() {
    fakes::Tree().Dir(L"C:\\Out");
    Format.ListingStyle = ListingStyle::TreeStyle;
    Format.Files.Name = true;
    General.TextWidth = 6;
  }
  /// What the kind's writer makes of a tree that holds one file.
  std::string TreeAs(OutputKind kind) {
    FileRecord file;
    file.Name = L"File";
    const std::unique_ptr<ListingWriter> writer = RowOf(kind).MakeWriter();
    ListingRun run = MakeRun();
    writer->BeginListing(run);
    writer->BeginTree(L"C:\\Data");
    writer->TreeEntry(file);
    writer->AbortListing();
    return fakes::Fake().Content(OutputFile);
  }
};

TEST_F(OutputKindWriters, WriteTheirOwnFormat) {
  EXPECT_TRUE(TreeAs(OutputKind::Text).ends_with("\r\nFile  \r\n"));
  EXPECT_TRUE(TreeAs(OutputKind::TabDelimited).ends_with("\r\nFile\t\r\n"));
  EXPECT_TRUE(TreeAs(OutputKind::Csv).ends_with("\r\nFile;\r\n"));
  EXPECT_TRUE(TreeAs(OutputKind::Html).ends_with("<tr><td>File</tr>\r\n"));
  EXPECT_TRUE(TreeAs(OutputKind::Xml).ends_with("<file><name>File</name></file>\r\n"));
}

}  // namespace
}  // namespace folivant
