#include "output/mdlPrintJson.h"

#include "output/WriterFixture.h"

namespace folivant {
namespace {

class JsonLines : public WriterFixture {
 protected:
  static FileRecord Entry(std::wstring_view name, std::uint64_t size = 1'234) {
    FileRecord entry;
    entry.Name = name;
    entry.Size = size;
    entry.LastWrite = fakes::FileTime({2026, 1, 2, 3, 4, 5});
    entry.Attributes = platform::kArchive;
    return entry;
  }
  /// The lines written, without their LF.
  std::vector<std::string> JsonLinesWritten() const {
    std::vector<std::string> lines;
    std::string rest = Written();
    for (std::size_t end = rest.find('\n'); end != rest.npos; end = rest.find('\n')) {
      lines.push_back(rest.substr(0, end));
      rest.erase(0, end + 1);
    }
    EXPECT_EQ(rest, "");
    return lines;
  }
  std::vector<std::string> Listed(const std::vector<FileRecord>& entries) {
    writer_->BeginListing(Run);
    List(*writer_, L"C:\\Data", entries);
    writer_->EndListing();
    return JsonLinesWritten();
  }

  std::unique_ptr<ListingWriter> writer_ = MakeJsonWriter();
};

TEST_F(JsonLines, TheFirstLineSaysWhatIsListed) {
  Style(ListingStyle::IncludeSubdirectories);
  Format.SubLevel = 2;
  Filter.NameOn = Filter.SizeOn = Filter.DateOn = Filter.AttrOn = true;
  Filter.FilterName = L"*.txt";
  Filter.SizeMin = false;
  Filter.FilterSize = 10;
  Filter.DateMin = ToDateValue({2001, 2, 3});
  Filter.DateMax = ToDateValue({2001, 2, 4});
  Filter.Attributes = {AttributeChoice::MustHave, AttributeChoice::MustNotHave, AttributeChoice::DoNotCare,
                       AttributeChoice::DoNotCare, AttributeChoice::DoNotCare};
  Filter.OrderBy = OrderBy::Date;
  Filter.OrderAZ = false;
  const std::string first = Listed({}).at(0);
  EXPECT_TRUE(first.starts_with("{\"listing\":{\"format\":1,\"program\":\"Folivant ")) << first;
  EXPECT_TRUE(first.ends_with(
      "\",\"root\":\"C:\\\\Data\",\"style\":\"subdirectories\",\"depth\":2,\"filter\":{\"name\":\"*.txt\","
      "\"maximum_size\":10240,\"modified_from\":\"2001-02-03\",\"modified_to\":\"2001-02-04\",\"attributes\":{"
      "\"archive\":true,\"read-only\":false}},\"order\":{\"by\":\"modified\",\"ascending\":false},"
      "\"start\":\"2026-11-16T14:05:00.0000000Z\"}}"))
      << first;
}

TEST_F(JsonLines, ARowIsAnObject) {
  EXPECT_EQ(Listed({Entry(L"README.TXT")}).at(1),
            "{\"path\":\"C:\\\\Data\\\\README.TXT\",\"name\":\"README.TXT\",\"type\":\"file\",\"size\":1234,"
            "\"modified\":\"2026-01-02T03:04:05.0000000Z\",\"created\":null,\"accessed\":null,\"attributes\":\"A\"}");
}

TEST_F(JsonLines, TheLastLineCounts) {
  FileRecord folder = Entry(L"Sub", 0);
  folder.Attributes = platform::kDirectory;
  FileRecord link = Entry(L"Link", 0);
  link.Attributes = platform::kDirectory | platform::kLink;
  Run.Unread.push_back({L"C:\\Data\\Locked", {5, L"Access is denied."}});
  EXPECT_EQ(Listed({folder, link, Entry(L"a"), Entry(L"b", 1)}).back(),
            "{\"complete\":{\"files\":2,\"directories\":1,\"links\":1,\"bytes\":1235,\"more_bytes\":false,\"unread\":[{"
            "\"path\":\"C:\\\\Data\\\\Locked\",\"code\":5,\"reason\":\"Access is denied.\"}]}}");
}

TEST_F(JsonLines, ASumBeyond64BitsSaysSo) {
  EXPECT_NE(
      Listed({Entry(L"a", ~0ULL), Entry(L"b", 1)}).back().find("\"bytes\":18446744073709551615,\"more_bytes\":true"),
      std::string::npos);
}

TEST_F(JsonLines, ARecordThatBreaksOffHasNoLastLine) {
  writer_->BeginListing(Run);
  List(*writer_, L"C:\\Data", {Entry(L"a")});
  writer_->AbortListing();
  EXPECT_EQ(Written().find("complete"), std::string::npos);
  EXPECT_EQ(JsonLinesWritten().size(), 2U);
}

}  // namespace
}  // namespace folivant
