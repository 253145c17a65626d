#include "output/mdlPrintHTML.h"

#include "base/mdlFileRoutines.h"
#include "output/Columns.h"
#include "output/DriverServices.h"
#include "output/Escaping.h"
#include "platform/Text.h"

namespace folivant {
namespace {

constexpr std::wstring_view kTable = L"<table cellpadding=3><tr>";

void AppendAnchorCharacter(wchar_t c, std::wstring& out) {
  switch (c) {
    case L'\\':
      out += L"%5c";
      break;
    case L':':
      out += L"%3a";
      break;
    case L'\'':
      out += L"%2d";  // not the code of an apostrophe, on purpose
      break;
    case L'#':
      out += L"%23";
      break;
    case L' ':
      out += L"%20";
      break;
    default:
      out += c;
  }
}

/// `text` and a backslash, unless it ends in one.
void AppendAnchorPart(std::wstring_view text, std::wstring& out) {
  for (const wchar_t c : text) {
    AppendAnchorCharacter(c, out);
  }
  if (text.empty() || text.back() != L'\\') {
    AppendAnchorCharacter(L'\\', out);
  }
}

void AppendIndent(std::int32_t level, std::wstring& line) {
  for (std::int32_t i = 0; i < level; ++i) {
    line += L"&nbsp;&nbsp;&nbsp;";
  }
}

}  // namespace

void AppendAnchor(std::wstring_view directory, std::wstring_view name, std::wstring& out) {
  const std::size_t start = out.size();
  AppendAnchorPart(directory, out);
  if (!name.empty()) {
    AppendAnchorPart(name, out);
  }
  platform::LowerInto(std::wstring_view(out).substr(start), out.data() + start);
}

void HtmlWriter::BeginListing() {
  file_.Open(run_.OutputFile);
  const std::wstring header = ExpandHeaderFooter(HeaderFooter::Header, run_);
  file_.WriteLine(L"<html><head><title>");
  file_.WriteLine(header);
  file_.WriteLine(L"</title></head><body>");
  file_.WriteLine(L"<font face=\"", run_.General.FontName, L"\">");
  if (run_.Format.ListingStyle != ListingStyle::FullPathList) {
    file_.WriteLine(L"<h3>", header, L"</h3>");
  }
  if (run_.Format.ListingStyle == ListingStyle::DirectoryView) {
    WriteDirectoryViewHead();
  }
}

void HtmlWriter::WriteDirectoryViewHead() {
  std::wstring& line = file_.Line();
  line.append(kTable).append(L"<th>").append(run_.Texts[Text::DirectoryCaption]);
  for (const DirectoryColumn& column : kDirectoryColumns) {
    if (run_.Format.Directories.*column.Shown) {
      line.append(L"<th>").append(run_.Texts[column.Caption]);
    }
  }
  file_.WriteLine(L"</tr>");
}

void HtmlWriter::WriteHeading(std::wstring_view path) {
  std::wstring& line = file_.Line();
  line += L"<a name='";
  AppendAnchor(path, {}, line);
  file_.WriteLine(L"'/>");
  line.append(L"<h4>").append(run_.Texts[Text::DirectoryHeading]).append(L" ").append(path);
  file_.WriteLine(L"</h4>");
  line += kTable;
  if (run_.Format.Files.*kNameColumn.Shown) {
    line.append(L"<th>").append(run_.Texts[kNameColumn.Caption]);
  }
  for (const EntryColumn& column : kFurtherColumns) {
    if (run_.Format.Files.*column.Shown) {
      line.append(L"<th>").append(run_.Texts[column.Caption]);
    }
  }
  file_.WriteLine(L"</tr>");
}

void HtmlWriter::WriteEntry(std::wstring_view directory, const FileRecord& entry) {
  std::wstring& line = file_.Line();
  line += L"<tr>";
  if (run_.Format.Files.*kNameColumn.Shown) {
    AppendNameCell(directory, entry);
  }
  for (const EntryColumn& column : kFurtherColumns) {
    if (run_.Format.Files.*column.Shown) {
      line += L"<td>";
      AppendValue(entry.*column.Value, column.Escaped, line);
    }
  }
  file_.WriteLine(L"</tr>");
}

void HtmlWriter::AppendNameCell(std::wstring_view directory, const FileRecord& entry) {
  std::wstring& line = file_.Line();
  line += L"<td>";
  const bool linked = run_.Format.ListingStyle == ListingStyle::IncludeSubdirectories && entry.IsDirectory();
  if (linked) {
    line += L"<a href='#";
    AppendAnchor(directory, entry.Name, line);
    file_.WriteLine(L"'>");
  }
  if (run_.Format.ListingStyle == ListingStyle::TreeStyle) {
    AppendIndent(entry.Level, line);
  }
  line += entry.Name;
  if (linked) {
    file_.WriteLine(L"</a>");
  }
}

void HtmlWriter::WriteFooter(std::wstring_view summary) {
  // The two rows stand behind the table's end tag, on purpose.
  file_.WriteLine(L"</table>");
  file_.WriteLine(L"<tr><td>&nbsp;</tr>");
  file_.WriteLine(L"<tr><td>&nbsp;&nbsp;&nbsp;<td>", summary, L"</tr></table><br>");
}

void HtmlWriter::ListDirectory(const DirectoryListing& directory) {
  if (run_.Format.ListingStyle == ListingStyle::FullPathList) {
    return WriteFullPaths(directory);
  }
  WriteHeading(directory.Path);
  for (const std::uint32_t index : directory.Order) {
    WriteEntry(directory.Path, directory.Records[index]);
  }
  WriteFooter(directory.Summary);
}

void HtmlWriter::WriteFullPaths(const DirectoryListing& directory) {
  const std::wstring path = AddBackslash(directory.Path);
  for (const std::uint32_t index : directory.Order) {
    file_.WriteLine(path, directory.Records[index].Name, L"<br>");
  }
}

void HtmlWriter::BeginTree(std::wstring_view root) {
  WriteHeading(root);
}

void HtmlWriter::TreeEntry(const FileRecord& entry) {
  WriteEntry({}, entry);
}

void HtmlWriter::DirectoryViewEntry(const DirNode& node) {
  std::wstring& line = file_.Line();
  line += L"<tr><td>";
  AppendIndent(node.Level, line);
  line += node.Name;
  for (const DirectoryColumn& column : kDirectoryColumns) {
    if (run_.Format.Directories.*column.Shown) {
      line += L"<td>";
      column.AppendValue(node, run_.Texts, line);
    }
  }
  file_.WriteLine(L"</tr>");
}

void HtmlWriter::FindList(std::span<const FoundItem> rows) {
  file_.WriteLine(L"<h4>", run_.Tree.FindWindowTitle, L"</h4>");
  file_.WriteLine(kTable);
  for (const FoundColumn& column : kFoundColumns) {
    file_.WriteLine(L"<th>", run_.Texts[column.Caption], &column == &kFoundColumns.back() ? L"</tr>" : L"");
  }
  file_.EndLine();
  for (const FoundItem& row : rows) {
    for (const FoundColumn& column : kFoundColumns) {
      file_.WriteLine(&column == &kFoundColumns.front() ? L"<tr><td>" : L"<td>", row.*column.Value,
                      &column == &kFoundColumns.back() ? L"</tr>" : L"");
    }
    if (run_.Tree.Cancelled) {
      return;  // the table stays open, on purpose
    }
  }
  file_.WriteLine(L"</table>");
}

void HtmlWriter::EndListing() {
  if (run_.Format.IsCollected()) {
    file_.WriteLine(L"</table><br>");
  }
  for (const std::wstring& sentence : ClosingSentences(run_)) {
    file_.WriteLine(L"<br>", sentence, {});
  }
  file_.Close();
}

void HtmlWriter::AbortListing() noexcept {
  file_.Abandon();
}

}  // namespace folivant
