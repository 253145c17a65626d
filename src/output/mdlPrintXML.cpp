// XML documents: an element for an entry and one for each of its columns.
#include "output/mdlPrintXML.h"

#include "base/mdlFileRoutines.h"
#include "output/Columns.h"
#include "output/EntryFormatting.h"
#include "output/Escaping.h"
#include "output/FileWriter.h"
#include "platform/Clock.h"
#include "ui/ValueText.h"

namespace folivant {
namespace {

constexpr std::wstring_view kEndDirectory = L"</directory>";

void AppendStartTag(std::wstring_view element, std::wstring& line) {
  line.append(L"<").append(element).append(L">");
}

void AppendEndTag(std::wstring_view element, std::wstring& line) {
  line.append(L"</").append(element).append(L">");
}

class XmlWriter final : public FileWriter {
 public:
  void ListDirectory(const DirectoryListing& directory) override;
  void ListPaths(const DirectoryListing& directory) override;
  void BeginTree(std::wstring_view root) override;
  void TreeEntry(const FileRecord& entry) override;
  void DirectoryViewEntry(const DirNode& node) override;
  void FindList(const FoundRows& rows) override;

 private:
  void Begin() override;
  void End() override;
  void WriteDirectoryTag(std::wstring_view path);
  void WriteFile(const FileRecord& entry);
  void AppendColumns(const FileRecord& entry);
  void AppendColumn(const EntryColumn& column, const FileRecord& entry);
  void CloseDirectoriesAbove(std::int32_t level);

  /// Directory elements that an entry of the tree or of the directory view opened and that are not closed yet. Only the
  /// end of a listing empties it: the run after a cancelled one begins by closing that one's directories, on purpose.
  std::int16_t openDirectories_ = 0;
};

void XmlWriter::Begin() {
  const platform::CalendarTime now = platform::Now();
  File().WriteLine(L"<xml><generator>Folivant 4.0</generator><options><format>");
  if (const std::optional<TextId> style = StyleCaption(Run().Format.ListingStyle)) {
    File().WriteLine(Run().Texts[*style]);
  }
  File().WriteLine(L"</format><filter>");
  File().WriteLine(FilterDescription(Run().Filter, Run().Texts));
  File().WriteLine(L"</filter><date>");
  File().WriteLine(FormatDate(now, Run().DatePattern));
  File().WriteLine(L"</date><time>");
  File().WriteLine(FormatDate(now, kTimePattern));
  File().WriteLine(L"</time></options>");
}

void XmlWriter::WriteDirectoryTag(std::wstring_view path) {
  File().WriteLine(L"<directory><name>", path, L"</name>");
}

void XmlWriter::ListDirectory(const DirectoryListing& directory) {
  WriteDirectoryTag(directory.Path);
  for (const std::uint32_t index : directory.Order) {
    WriteFile(directory.Records[index]);
  }
  File().WriteLine(L"<summary>", directory.Summary, L"</summary></directory>");
}

void XmlWriter::ListPaths(const DirectoryListing& directory) {
  WriteDirectoryTag(directory.Path);
  const std::wstring path = AddBackslash(directory.Path);
  for (const std::uint32_t index : directory.Order) {
    File().Line().append(L"<file><fullpath>").append(path);
    Texts().AppendName(directory.Records[index], File().Line());
    File().WriteLine(L"</fullpath></file>");
  }
  File().WriteLine(kEndDirectory);
}

void XmlWriter::BeginTree(std::wstring_view root) {
  WriteDirectoryTag(root);
}

void XmlWriter::TreeEntry(const FileRecord& entry) {
  CloseDirectoriesAbove(entry.Level);
  if (!entry.IsDirectory()) {
    return WriteFile(entry);
  }
  File().Line() += L"<directory>";
  ++openDirectories_;
  AppendColumns(entry);  // what it holds, or its end tag, follows on the same line
}

void XmlWriter::WriteFile(const FileRecord& entry) {
  File().Line() += L"<file>";
  AppendColumns(entry);
  File().WriteLine(L"</file>");
}

void XmlWriter::AppendColumns(const FileRecord& entry) {
  AppendColumn(kNameColumn, entry);
  for (const EntryColumn& column : kFurtherColumns) {
    AppendColumn(column, entry);
  }
}

void XmlWriter::AppendColumn(const EntryColumn& column, const FileRecord& entry) {
  if (!(Run().Format.Files.*column.Shown)) {
    return;
  }
  std::wstring& line = File().Line();
  AppendStartTag(column.Element, line);
  const std::size_t start = line.size();
  (Texts().*column.AppendValue)(entry, line);
  if (column.Escaped) {
    EscapeFrom(start, line);
  }
  AppendEndTag(column.Element, line);
}

void XmlWriter::CloseDirectoriesAbove(std::int32_t level) {
  while (openDirectories_ > level) {
    File().WriteLine(kEndDirectory);
    --openDirectories_;
  }
}

void XmlWriter::DirectoryViewEntry(const DirNode& node) {
  CloseDirectoriesAbove(node.Level);
  std::wstring& line = File().Line();
  line += L"<directory>";
  ++openDirectories_;
  AppendStartTag(kNameColumn.Element, line);
  line += node.Path;
  AppendEndTag(kNameColumn.Element, line);
  for (const DirectoryColumn& column : kDirectoryColumns) {
    if (Run().Format.Directories.*column.Shown) {
      AppendStartTag(column.Element, line);
      column.AppendValue(node, Run().Texts, line);
      AppendEndTag(column.Element, line);
    }
  }
  File().EndLine();
}

void XmlWriter::FindList(const FoundRows& rows) {
  for (const FoundItem& row : rows.Items) {
    for (const FoundColumn& column : kFoundColumns) {
      std::wstring& line = File().Line();
      line += &column == &kFoundColumns.front() ? L"<file>" : L"";
      AppendStartTag(column.Element, line);
      line += row.*column.Value;
      AppendEndTag(column.Element, line);
      File().WriteLine(&column == &kFoundColumns.back() ? L"</file>" : L"");
    }
  }
}

void XmlWriter::End() {
  if (Run().Format.IsCollected()) {
    CloseDirectoriesAbove(0);
  }
  if (Run().Format.ListingStyle == ListingStyle::TreeStyle) {
    File().WriteLine(kEndDirectory);
  }
  File().WriteLine(L"</xml>");
}

}  // namespace

std::unique_ptr<ListingWriter> MakeXmlWriter() {
  return std::make_unique<XmlWriter>();
}

}  // namespace folivant
