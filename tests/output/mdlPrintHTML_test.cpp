#include "output/mdlPrintHTML.h"

#include "output/WriterFixture.h"

namespace folivant {
namespace {

using LineList = std::vector<std::string>;

std::wstring Anchor(std::wstring_view directory, std::wstring_view name) {
  std::wstring anchor;
  AppendAnchor(directory, name, anchor);
  return anchor;
}

TEST(Anchor, EncodesAPathInLowerCase) {
  EXPECT_EQ(Anchor(L"C:\\My Docs", L""), L"c%3a%5cmy%20docs%5c");
  EXPECT_EQ(Anchor(L"C:\\", L""), L"c%3a%5c");
}

TEST(Anchor, IsTheSameAtTheLinkAndAtItsTarget) {
  EXPECT_EQ(Anchor(L"C:\\", L"My Docs"), Anchor(L"C:\\My Docs", L""));
  EXPECT_EQ(Anchor(L"C:\\data", L"old stuff"), L"c%3a%5cdata%5cold%20stuff%5c");
  EXPECT_EQ(Anchor(L"C:\\Data\\Old Stuff", L""), L"c%3a%5cdata%5cold%20stuff%5c");
}

TEST(Anchor, EncodesFiveCharactersAndNoOther) {
  EXPECT_EQ(Anchor(L"C:\\a'b#c d%e;f&g<h>\"i", L""), L"c%3a%5ca%2db%23c%20d%e;f&g<h>\"i%5c");
}

TEST(Anchor, LowersLettersBeyondAscii) {
  EXPECT_EQ(Anchor(L"C:\\\u00c9t\u00c9", L"\u0141"), L"c%3a%5c\u00e9t\u00e9%5c\u0142%5c");
}

TEST(Anchor, LeavesWhatStandsBeforeItAlone) {
  std::wstring text = L"NAME: ";
  AppendAnchor(L"C:\\", L"A", text);
  EXPECT_EQ(text, L"NAME: c%3a%5ca%5c");
}

class HtmlPage : public WriterFixture {
 protected:
  /// The lines of a listing, without the five that begin every page (four in a full-path list).
  LineList Body() {
    LineList lines = Lines();
    lines.erase(lines.begin(), lines.begin() + (Format.ListingStyle == ListingStyle::FullPathList ? 4 : 5));
    return lines;
  }
  std::unique_ptr<ListingWriter> writer_ = MakeHtmlWriter();
};

TEST_F(HtmlPage, BeginsWithTitleFontAndHeading) {
  General.Header = L"Page %n of %p";
  writer_->BeginListing(Run);
  writer_->AbortListing();
  EXPECT_EQ(Lines(), (LineList{"<html><head><title>", "Page 0 of C:\\Data", "</title></head><body>",
                               "<font face=\"Arial\">", "<h3>Page 0 of C:\\Data</h3>"}));
}

TEST_F(HtmlPage, HasNoHeadingInAFullPathList) {
  Style(ListingStyle::FullPathList);
  writer_->BeginListing(Run);
  List(*writer_, L"C:\\Data", {File(L"a&b.txt")});
  writer_->EndListing();
  EXPECT_EQ(Lines(), (LineList{"<html><head><title>", "C:\\Data", "</title></head><body>", "<font face=\"Arial\">",
                               "C:\\Data\\A&b.txt<br>"}));
}

TEST_F(HtmlPage, BeginsADirectoryViewWithItsCaptionsInOneLine) {
  Style(ListingStyle::DirectoryView);
  Format.Directories = {.Size = true, .TotalFiles = true};
  writer_->BeginListing(Run);
  writer_->BeginDirectoryView();
  writer_->DirectoryViewEntry({L"C:\\Data", L"C:\\Data", 0, 1, Currency::FromWhole(2), 1'234, {}});
  writer_->DirectoryViewEntry({L"A&B", L"C:\\Data\\A&B", 1, 1, Currency::FromWhole(20'000), 1, {}});
  writer_->AbortListing();
  EXPECT_EQ(Body(),
            (LineList{"<table cellpadding=3><tr><th>Directory<th>Size<th>Tot. files</tr>",
                      "<tr><td>C:\\Data<td>2 b <td>1,234</tr>", "<tr><td>&nbsp;&nbsp;&nbsp;A&B<td>19 kb<td>1</tr>"}));
}

TEST_F(HtmlPage, WritesAPlainRowInOneLine) {
  Style(ListingStyle::NoSubdirectories);
  writer_->BeginListing(Run);
  List(*writer_, L"C:\\Data", {File(L"a&b<c>.txt")});
  writer_->AbortListing();
  EXPECT_EQ(Body(),
            (LineList{"<a name='c%3a%5cdata%5c'/>", "<h4>Directory C:\\Data</h4>",
                      "<table cellpadding=3><tr><th>Name<th>MS-DOS name<th>Size<th>Date<th>Attr</tr>",
                      "<tr><td>A&b<c>.txt<td>short.nam<td>1,234 b <td>2026/01/02 03:04<td> a   </tr>", "</table>",
                      "<tr><td>&nbsp;</tr>", "<tr><td>&nbsp;&nbsp;&nbsp;<td>the summary</tr></table><br>"}));
}

TEST_F(HtmlPage, LinksASubdirectoryInThreeLines) {
  Style(ListingStyle::IncludeSubdirectories);
  Format.Files = {.Name = true, .Size = true};
  writer_->BeginListing(Run);
  List(*writer_, L"C:\\Data", {Directory(L"It's")});
  writer_->AbortListing();
  const LineList body = Body();
  EXPECT_EQ(LineList(body.begin() + 3, body.begin() + 6),
            (LineList{"<tr><td><a href='#c%3a%5cdata%5cit%2ds%5c'>", "It's</a>", "<td>&lt;DIR&gt;   </tr>"}));
}

TEST_F(HtmlPage, LinksOnlyWhenSubdirectoriesAreIncluded) {
  Format.Files = {.Name = true};
  Style(ListingStyle::NoSubdirectories);
  writer_->BeginListing(Run);
  List(*writer_, L"C:\\Data", {Directory(L"Sub")});
  writer_->AbortListing();
  EXPECT_EQ(Body().at(3), "<tr><td>Sub</tr>");

  Style(ListingStyle::TreeStyle);
  writer_->BeginListing(Run);
  writer_->BeginTree(L"C:\\Data");
  writer_->TreeEntry(Directory(L"Sub", 0));
  writer_->TreeEntry(Directory(L"Deeper", 2));
  writer_->AbortListing();
  EXPECT_EQ(Body().at(3), "<tr><td>Sub</tr>");
  EXPECT_EQ(Body().at(4), "<tr><td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;Deeper</tr>");
}

TEST_F(HtmlPage, LinksNothingWithoutTheNameColumn) {
  Style(ListingStyle::IncludeSubdirectories);
  Format.Files = {.Attributes = true};
  writer_->BeginListing(Run);
  List(*writer_, L"C:\\Data", {Directory(L"Sub")});
  writer_->AbortListing();
  EXPECT_EQ(Body().at(3), "<tr><td>d    </tr>");
}

TEST_F(HtmlPage, EscapesSizesAndNothingElse) {
  Style(ListingStyle::NoSubdirectories);
  Texts.Set(static_cast<std::size_t>(TextId::DirectorySizeText), L"<s>&\"'&lt;");
  Texts.Set(static_cast<std::size_t>(TextId::UnitBytes), L"<&");
  DatePattern = L"<t>&";
  FileRecord file = File(L"<n>&");
  file.AlternateName = L"<D>&";
  FileRecord directory = Directory(L"<n>&");
  directory.AlternateName = L"<D>&";
  writer_->BeginListing(Run);
  List(*writer_, L"C:\\<p>&", {file, directory});
  writer_->AbortListing();
  EXPECT_EQ(Body().at(1), "<h4>Directory C:\\<p>&</h4>");
  EXPECT_EQ(Body().at(3), "<tr><td><n>&<td><d>&<td>1,234 &lt;&amp;<td><t>& 03:04<td> a   </tr>");
  EXPECT_EQ(Body().at(4), "<tr><td><n>&<td><d>&<td>&lt;s&gt;&amp;\"'&amp;lt;   <td><t>& 03:04<td>d    </tr>");
}

TEST_F(HtmlPage, LeavesTheSizesOfTheDirectoryViewAsTheyAre) {
  Style(ListingStyle::DirectoryView);
  Format.Directories = {.Size = true};
  Texts.Set(static_cast<std::size_t>(TextId::UnitBytes), L"<&");
  writer_->BeginListing(Run);
  writer_->BeginDirectoryView();
  writer_->DirectoryViewEntry({L"<A>&", L"C:\\", 0, 0, Currency::FromWhole(5), 0, {}});
  writer_->AbortListing();
  EXPECT_EQ(Body().at(1), "<tr><td><A>&<td>5 <&</tr>");
}

TEST_F(HtmlPage, WritesAFindListFourLinesToARow) {
  Style(ListingStyle::FindWindow);
  const FoundItem row = {L"a&b", L"C:\\<x>", L"<1KB>", L"1/2/2026"};
  writer_->BeginListing(Run);
  writer_->FindList({L"Find: <all>", {row}});
  writer_->EndListing();
  EXPECT_EQ(Body(), (LineList{"<h4>Find: <all></h4>", "<table cellpadding=3><tr>", "<th>Name", "<th>Folder", "<th>Size",
                              "<th>Date</tr>", "", "<tr><td>a&b", "<td>C:\\<x>", "<td><1KB>", "<td>1/2/2026</tr>",
                              "</table>"}));
}

TEST_F(HtmlPage, LeavesTheTableOfACancelledFindListOpen) {
  Style(ListingStyle::FindWindow);
  Run.Cancelled = true;
  writer_->BeginListing(Run);
  writer_->FindList({L"Found", {{L"first", L"", L"", L""}, {L"second", L"", L"", L""}}});
  writer_->AbortListing();
  EXPECT_EQ(Lines().back(), "<td></tr>");
  EXPECT_NE(Written().find("first"), std::string::npos);
  EXPECT_EQ(Written().find("second"), std::string::npos);
  EXPECT_EQ(Written().find("</table>"), std::string::npos);
}

TEST_F(HtmlPage, EndsTheOneTableOfTreeAndDirectoryView) {
  for (const ListingStyle style : {ListingStyle::TreeStyle, ListingStyle::DirectoryView}) {
    Style(style);
    writer_->BeginListing(Run);
    if (style == ListingStyle::TreeStyle) {
      writer_->BeginTree(L"C:\\Data");
    } else {
      writer_->BeginDirectoryView();
    }
    writer_->EndListing();
    const LineList lines = Lines();
    EXPECT_EQ(LineList(lines.end() - 3, lines.end()),
              (LineList{"</table><br>", "<br>0 files, 0 directories, 0 b ", "<br>4,768 Mb free of 18 Gb."}));
  }
}

TEST_F(HtmlPage, EndsOtherStylesWithWhatTheyTotal) {
  Style(ListingStyle::IncludeSubdirectories);
  writer_->BeginListing(Run);
  writer_->EndListing();
  EXPECT_EQ(Body(), (LineList{"<br>0 files, 0 directories, 0 b ", "<br>4,768 Mb free of 18 Gb."}));
  Style(ListingStyle::NoSubdirectories);
  writer_->BeginListing(Run);
  writer_->EndListing();
  EXPECT_EQ(Body(), (LineList{"<br>4,768 Mb free of 18 Gb."}));
}

TEST_F(HtmlPage, KeepsTheLineWhenTheFreeSpaceIsUnknown) {
  fakes::Fake().FreeSpace.clear();
  Style(ListingStyle::NoSubdirectories);
  writer_->BeginListing(Run);
  writer_->EndListing();
  EXPECT_EQ(Body(), LineList{"<br>"});
}

}  // namespace
}  // namespace folivant
