#include "output/mdlPrintXML.h"

#include "base/mdlFileRoutines.h"
#include "output/Columns.h"
#include "output/Escaping.h"
#include "platform/Clock.h"

namespace folivant {
namespace {

constexpr std::wstring_view kEndDirectory = L"</directory>";

}  // namespace

void XmlWriter::BeginListing() {
  file_.Open(run_.OutputFile);
  const platform::CalendarTime now = platform::Now();
  file_.WriteLine(L"<xml><generator>Folivant 4.0</generator><options><format>");
  if (const std::optional<Text> style = StyleCaption(run_.Format.ListingStyle)) {
    file_.WriteLine(run_.Texts[*style]);
  }
  file_.WriteLine(L"</format><filter>");
  file_.WriteLine(FilterDescription(run_.Filter, run_.Texts));
  file_.WriteLine(L"</filter><date>");
  file_.WriteLine(FormatDate(now, run_.DatePattern));
  file_.WriteLine(L"</date><time>");
  file_.WriteLine(FormatDate(now, kTimePattern));
  file_.WriteLine(L"</time></options>");
}

void XmlWriter::WriteDirectoryTag(std::wstring_view path) {
  file_.WriteLine(L"<directory><name>", path, L"</name>");
}

void XmlWriter::ListDirectory(const DirectoryListing& directory) {
  WriteDirectoryTag(directory.Path);
  if (run_.Format.ListingStyle == ListingStyle::FullPathList) {
    return WriteFullPaths(directory);
  }
  for (const std::uint32_t index : directory.Order) {
    TreeEntry(directory.Records[index]);
  }
  file_.WriteLine(L"<summary>", directory.Summary, L"</summary></directory>");
}

void XmlWriter::WriteFullPaths(const DirectoryListing& directory) {
  const std::wstring path = AddBackslash(directory.Path);
  std::wstring& line = file_.Line();
  for (const std::uint32_t index : directory.Order) {
    line.append(L"<file><fullpath>").append(path).append(directory.Records[index].Name);
    file_.WriteLine(L"</fullpath></file>");
  }
  file_.WriteLine(kEndDirectory);
}

void XmlWriter::BeginTree(std::wstring_view root) {
  WriteDirectoryTag(root);
}

void XmlWriter::TreeEntry(const FileRecord& entry) {
  const bool tree = run_.Format.ListingStyle == ListingStyle::TreeStyle;
  if (tree) {
    CloseDirectoriesAbove(entry.Level);
  }
  if (tree && entry.IsDirectory()) {
    file_.Line() += L"<directory>";
    ++openDirectories_;
    AppendEntryColumns(entry);
    return;  // what it holds, or its end tag, follows on the same line
  }
  file_.Line() += L"<file>";
  AppendEntryColumns(entry);
  file_.WriteLine(L"</file>");
}

void XmlWriter::AppendEntryColumns(const FileRecord& entry) {
  if (run_.Format.Files.*kNameColumn.Shown) {
    AppendElement(kNameColumn.Element, entry.Name, kNameColumn.Escaped);
  }
  for (const EntryColumn& column : kFurtherColumns) {
    if (run_.Format.Files.*column.Shown) {
      AppendElement(column.Element, entry.*column.Value, column.Escaped);
    }
  }
}

void XmlWriter::AppendElement(std::wstring_view element, std::wstring_view text, bool escaped) {
  std::wstring& line = file_.Line();
  line.append(L"<").append(element).append(L">");
  AppendValue(text, escaped, line);
  line.append(L"</").append(element).append(L">");
}

void XmlWriter::CloseDirectoriesAbove(std::int32_t level) {
  while (openDirectories_ > level) {
    file_.WriteLine(kEndDirectory);
    --openDirectories_;
  }
}

void XmlWriter::DirectoryViewEntry(const DirNode& node) {
  CloseDirectoriesAbove(node.Level);
  file_.Line() += L"<directory>";
  ++openDirectories_;
  AppendElement(kNameColumn.Element, node.Path, false);
  for (const DirectoryColumn& column : kDirectoryColumns) {
    if (run_.Format.Directories.*column.Shown) {
      value_.clear();
      column.AppendValue(node, run_.Texts, value_);
      AppendElement(column.Element, value_, false);
    }
  }
  file_.EndLine();
}

void XmlWriter::FindList(std::span<const FoundItem> rows) {
  for (const FoundItem& row : rows) {
    for (const FoundColumn& column : kFoundColumns) {
      file_.Line() += &column == &kFoundColumns.front() ? L"<file>" : L"";
      AppendElement(column.Element, row.*column.Value, false);
      file_.WriteLine(&column == &kFoundColumns.back() ? L"</file>" : L"");
    }
  }
}

void XmlWriter::EndListing() {
  if (run_.Format.IsCollected()) {
    CloseDirectoriesAbove(0);
  }
  if (run_.Format.ListingStyle == ListingStyle::TreeStyle) {
    file_.WriteLine(kEndDirectory);
  }
  file_.WriteLine(L"</xml>");
  file_.Close();
}

void XmlWriter::AbortListing() noexcept {
  file_.Abandon();
}

}  // namespace folivant
