#include "output/mdlPrintXML.h"

#include "output/WriterFixture.h"

namespace folivant {
namespace {

using LineList = std::vector<std::string>;

class XmlDocument : public WriterFixture {
 protected:
  XmlDocument() { Format.Files = {.Name = true}; }
  /// The lines after the nine that begin every document.
  LineList Body() {
    LineList lines = Lines();
    lines.erase(lines.begin(), lines.begin() + 9);
    return lines;
  }
  void WriteTree(const std::vector<FileRecord>& entries) {
    Style(ListingStyle::TreeStyle);
    writer_->BeginListing(Run);
    writer_->BeginTree(L"C:\\Data");
    for (const FileRecord& entry : entries) {
      writer_->TreeEntry(entry);
    }
  }
  static FileRecord FileAt(std::wstring_view name, std::int32_t level) {
    FileRecord entry = File(name);
    entry.Level = level;
    return entry;
  }
  std::unique_ptr<ListingWriter> writer_ = MakeXmlWriter();
};

TEST_F(XmlDocument, BeginsWithNineLines) {
  Style(ListingStyle::TreeStyle);
  Filter.NameOn = true;
  Filter.FilterName = L"*.txt & more";
  DatePattern = L"dd/mm/yy";
  writer_->BeginListing(Run);
  writer_->AbortListing();
  EXPECT_EQ(Lines(),
            (LineList{"<xml><generator>Folivant 4.0</generator><options><format>", "Tree-style", "</format><filter>",
                      "*.txt & more", "</filter><date>", "16/11/26", "</date><time>", "14:05", "</time></options>"}));
}

TEST_F(XmlDocument, NamesEveryStyle) {
  const std::pair<int, const char*> rows[] = {
      {0, "No subdirectories"}, {1, "Include subdirectories"},  {2, "Tree-style"},      {3, "Directory view"},
      {4, "Full-path list"},    {5, "List from Windows' Find"}, {6, "Files of a list"},
  };
  for (const auto& [style, name] : rows) {
    Style(static_cast<ListingStyle>(style));
    writer_->BeginListing(Run);
    writer_->AbortListing();
    EXPECT_EQ(Lines().at(1), name);
  }
}

TEST_F(XmlDocument, LeavesTheLineOfAnUnknownStyleOut) {
  Style(static_cast<ListingStyle>(9));
  writer_->BeginListing(Run);
  writer_->AbortListing();
  EXPECT_EQ(Lines().size(), 8U);
  EXPECT_EQ(Lines().at(1), "</format><filter>");
}

TEST_F(XmlDocument, ListsFullPathsPerDirectory) {
  Style(ListingStyle::FullPathList);
  writer_->BeginListing(Run);
  List(*writer_, L"C:\\", {File(L"one"), File(L"a&b")});
  writer_->EndListing();
  EXPECT_EQ(Body(), (LineList{"<directory><name>C:\\</name>", "<file><fullpath>C:\\One</fullpath></file>",
                              "<file><fullpath>C:\\A&b</fullpath></file>", "</directory>", "</xml>"}));
}

TEST_F(XmlDocument, WritesDirectoriesAsFilesOutsideATree) {
  Style(ListingStyle::IncludeSubdirectories);
  writer_->BeginListing(Run);
  List(*writer_, L"C:\\Data", {Directory(L"Sub"), File(L"a.txt")});
  writer_->EndListing();
  EXPECT_EQ(Body(),
            (LineList{"<directory><name>C:\\Data</name>", "<file><name>Sub</name></file>",
                      "<file><name>A.txt</name></file>", "<summary>the summary</summary></directory>", "</xml>"}));
}

TEST_F(XmlDocument, EscapesSizesAndNothingElse) {
  Style(ListingStyle::NoSubdirectories);
  Format.Files = {true, true, true, true, true};
  Texts.Set(static_cast<std::size_t>(TextId::DirectorySizeText), L"<s>&\"'");
  Texts.Set(static_cast<std::size_t>(TextId::UnitBytes), L"<&");
  DatePattern = L"<t>&";
  FileRecord file = File(L"<n>&");
  file.AlternateName = L"<D>&";
  FileRecord directory = Directory(L"<n>&");
  directory.AlternateName = L"<D>&";
  writer_->BeginListing(Run);
  List(*writer_, L"C:\\<p>&", {file, directory});
  writer_->AbortListing();
  EXPECT_EQ(Body().at(0), "<directory><name>C:\\<p>&</name>");
  EXPECT_EQ(Body().at(1),
            "<file><name><n>&</name><dosname><d>&</dosname><size>1,234 &lt;&amp;</size>"
            "<date><t>& 03:04</date><attr> a   </attr></file>");
  EXPECT_EQ(Body().at(2),
            "<file><name><n>&</name><dosname><d>&</dosname><size>&lt;s&gt;&amp;\"'   </size>"
            "<date><t>& 03:04</date><attr>d    </attr></file>");
}

TEST_F(XmlDocument, PutsADirectoryAndItsFirstFileOnOneLine) {
  WriteTree({Directory(L"Sub", 0), FileAt(L"in.txt", 1), FileAt(L"out.txt", 0)});
  writer_->EndListing();
  EXPECT_EQ(Body(),
            (LineList{"<directory><name>C:\\Data</name>", "<directory><name>Sub</name><file><name>In.txt</name></file>",
                      "</directory>", "<file><name>Out.txt</name></file>", "</directory>", "</xml>"}));
}

TEST_F(XmlDocument, ClosesAnEmptyDirectoryOnItsOwnLine) {
  WriteTree({Directory(L"Empty", 0), Directory(L"Sibling", 0)});
  writer_->EndListing();
  EXPECT_EQ(Body(), (LineList{"<directory><name>C:\\Data</name>", "<directory><name>Empty</name></directory>",
                              "<directory><name>Sibling</name></directory>", "</directory>", "</xml>"}));
}

TEST_F(XmlDocument, WritesAFileWithoutColumnsAsItsTagsAlone) {
  Format.Files = {};
  WriteTree({FileAt(L"a.txt", 0), Directory(L"Sub", 0), FileAt(L"b.txt", 1)});
  writer_->EndListing();
  EXPECT_EQ(Body(), (LineList{"<directory><name>C:\\Data</name>", "<file></file>", "<directory><file></file>",
                              "</directory>", "</directory>", "</xml>"}));
}

TEST_F(XmlDocument, ClosesEverythingThatIsOpenAtTheEndOfATree) {
  WriteTree({Directory(L"A", 0), Directory(L"B", 1), Directory(L"C", 2)});
  writer_->EndListing();
  EXPECT_EQ(Body(), (LineList{"<directory><name>C:\\Data</name>",
                              "<directory><name>A</name><directory><name>B</name><directory><name>C</name></directory>",
                              "</directory>", "</directory>", "</directory>", "</xml>"}));
}

TEST_F(XmlDocument, NestsTheDirectoryViewUnderItsRoot) {
  Style(ListingStyle::DirectoryView);
  writer_->BeginListing(Run);
  writer_->BeginDirectoryView();
  writer_->DirectoryViewEntry(
      {L"C:\\Data", L"C:\\Data", 0, 1'234, Currency::FromWhole(12'345), 2'345'678, Currency::FromWhole(20'000'000)});
  Format.Directories = {};
  writer_->DirectoryViewEntry({L"A", L"C:\\Data\\A", 1, 0, {}, 0, {}});
  writer_->DirectoryViewEntry({L"B", L"C:\\Data\\B", 1, 0, {}, 0, {}});
  writer_->EndListing();
  EXPECT_EQ(Body(), (LineList{"<directory><name>C:\\Data</name><files>1,234</files><size>12 kb</size>"
                              "<total_files>2,345,678</total_files><total_size>19 Mb</total_size>",
                              "<directory><name>C:\\Data\\A</name>", "</directory>",
                              "<directory><name>C:\\Data\\B</name>", "</directory>", "</directory>", "</xml>"}));
}

TEST_F(XmlDocument, LeavesTheSizesOfTheDirectoryViewAsTheyAre) {
  Style(ListingStyle::DirectoryView);
  Format.Directories = {.Size = true};
  Texts.Set(static_cast<std::size_t>(TextId::UnitBytes), L"<&");
  writer_->BeginListing(Run);
  writer_->BeginDirectoryView();
  writer_->DirectoryViewEntry({L"A", L"C:\\<A>&", 0, 0, Currency::FromWhole(5), 0, {}});
  writer_->AbortListing();
  EXPECT_EQ(Body(), (LineList{"<directory><name>C:\\<A>&</name><size>5 <&</size>"}));
}

TEST_F(XmlDocument, BreaksOffWhenCancelled) {
  WriteTree({Directory(L"A", 0), FileAt(L"f", 1), Directory(L"B", 1)});
  writer_->AbortListing();
  const std::string end = "<directory><name>A</name><file><name>F</name></file>\r\n<directory><name>B</name>";
  ASSERT_GE(Written().size(), end.size());
  EXPECT_EQ(Written().substr(Written().size() - end.size()), end);
}

TEST_F(XmlDocument, ClosesTheDirectoriesOfACancelledRunInTheNext) {
  WriteTree({Directory(L"A", 0), Directory(L"B", 1)});
  writer_->AbortListing();
  WriteTree({FileAt(L"x", 0)});
  writer_->EndListing();
  EXPECT_EQ(Body(), (LineList{"<directory><name>C:\\Data</name>", "</directory>", "</directory>",
                              "<file><name>X</name></file>", "</directory>", "</xml>"}));
}

TEST_F(XmlDocument, RemembersThemThroughRunsOfOtherStyles) {
  WriteTree({Directory(L"A", 0)});
  writer_->AbortListing();
  Style(ListingStyle::IncludeSubdirectories);
  writer_->BeginListing(Run);
  List(*writer_, L"C:\\Data", {});
  writer_->EndListing();
  EXPECT_EQ(Body(),
            (LineList{"<directory><name>C:\\Data</name>", "<summary>the summary</summary></directory>", "</xml>"}));
  WriteTree({FileAt(L"x", 0)});
  writer_->EndListing();
  EXPECT_EQ(Body().at(1), "</directory>");
}

TEST_F(XmlDocument, ForgetsThemAtTheEndOfARunWithoutEntries) {
  WriteTree({Directory(L"A", 0)});
  writer_->AbortListing();
  WriteTree({});
  writer_->EndListing();
  EXPECT_EQ(Body(), (LineList{"<directory><name>C:\\Data</name>", "</directory>", "</directory>", "</xml>"}));
  WriteTree({FileAt(L"x", 0)});
  writer_->EndListing();
  EXPECT_EQ(Body().at(1), "<file><name>X</name></file>");
}

TEST_F(XmlDocument, SharesThemBetweenTreeAndDirectoryView) {
  WriteTree({Directory(L"A", 0), Directory(L"B", 1)});
  writer_->AbortListing();
  Style(ListingStyle::DirectoryView);
  Format.Directories = {};
  writer_->BeginListing(Run);
  writer_->BeginDirectoryView();
  writer_->DirectoryViewEntry({L"C:\\Data", L"C:\\Data", 0, 0, {}, 0, {}});
  writer_->EndListing();
  EXPECT_EQ(Body(),
            (LineList{"</directory>", "</directory>", "<directory><name>C:\\Data</name>", "</directory>", "</xml>"}));
}

TEST_F(XmlDocument, WritesAFoundRowInFourLines) {
  Style(ListingStyle::PathListFile);
  const FoundItem row = {L"a&b", L"C:\\<x>", L"<1 kb>", L"2026/01/02 03:04"};
  writer_->BeginListing(Run);
  writer_->FindList({L"not written", {row}});
  writer_->EndListing();
  EXPECT_EQ(Body(), (LineList{"<file><name>a&b</name>", "<path>C:\\<x></path>", "<size><1 kb></size>",
                              "<date>2026/01/02 03:04</date></file>", "</xml>"}));
}

}  // namespace
}  // namespace folivant
