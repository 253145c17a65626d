// HTML documents: one table for a directory, with links between the tables of a tree.
#include "output/mdlPrintHTML.h"

#include "base/mdlFileRoutines.h"
#include "output/Columns.h"
#include "output/DriverServices.h"
#include "output/Escaping.h"
#include "output/FileWriter.h"
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
      out += L"%2d";  // not the code of an apostrophe: anchors and links agree on it
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

class HtmlWriter final : public FileWriter {
 public:
  void ListDirectory(const DirectoryListing& directory) override;
  void ListPaths(const DirectoryListing& directory) override;
  void BeginTree(std::wstring_view root) override;
  void TreeEntry(const FileRecord& entry) override;
  void BeginDirectoryView() override;
  void DirectoryViewEntry(const DirNode& node) override;
  void FindList(const FoundRows& rows) override;

 private:
  void Begin() override;
  void End() override;
  void WriteHeading(std::wstring_view path);
  void WriteSummary(std::wstring_view summary);
  void AppendLinkedName(std::wstring_view directory, const FileRecord& entry);
  void EndEntry(const FileRecord& entry);

  std::wstring name_;  ///< buffer
};

void HtmlWriter::Begin() {
  const std::wstring header = ExpandHeaderFooter(HeaderFooter::Header, Run());
  File().WriteLine(L"<html><head><title>");
  File().WriteLine(header);
  File().WriteLine(L"</title></head><body>");
  File().WriteLine(L"<font face=\"", Run().General.FontName, L"\">");
  if (Run().Format.ListingStyle != ListingStyle::FullPathList) {
    File().WriteLine(L"<h3>", header, L"</h3>");
  }
}

void HtmlWriter::BeginDirectoryView() {
  std::wstring& line = File().Line();
  line.append(kTable).append(L"<th>").append(Run().Texts[TextId::DirectoryCaption]);
  for (const DirectoryColumn& column : kDirectoryColumns) {
    if (Run().Format.Directories.*column.Shown) {
      line.append(L"<th>").append(Run().Texts[column.Caption]);
    }
  }
  File().WriteLine(L"</tr>");
}

void HtmlWriter::WriteHeading(std::wstring_view path) {
  std::wstring& line = File().Line();
  line += L"<a name='";
  AppendAnchor(path, {}, line);
  File().WriteLine(L"'/>");
  line.append(L"<h4>").append(Run().Texts[TextId::DirectoryHeading]).append(L" ").append(path);
  File().WriteLine(L"</h4>");
  line += kTable;
  if (Run().Format.Files.*kNameColumn.Shown) {
    line.append(L"<th>").append(Run().Texts[kNameColumn.Caption]);
  }
  for (const EntryColumn& column : kFurtherColumns) {
    if (Run().Format.Files.*column.Shown) {
      line.append(L"<th>").append(Run().Texts[column.Caption]);
    }
  }
  File().WriteLine(L"</tr>");
}

void HtmlWriter::ListDirectory(const DirectoryListing& directory) {
  WriteHeading(directory.Path);
  for (const std::uint32_t index : directory.Order) {
    const FileRecord& entry = directory.Records[index];
    File().Line() += L"<tr>";
    if (Run().Format.Files.*kNameColumn.Shown) {
      File().Line() += L"<td>";
      if (directory.SubdirectoriesFollow && entry.IsDirectory()) {
        AppendLinkedName(directory.Path, entry);
      } else {
        Texts().AppendName(entry, File().Line());
      }
    }
    EndEntry(entry);
  }
  WriteSummary(directory.Summary);
}

void HtmlWriter::AppendLinkedName(std::wstring_view directory, const FileRecord& entry) {
  name_.clear();
  Texts().AppendName(entry, name_);
  File().Line() += L"<a href='#";
  AppendAnchor(directory, name_, File().Line());
  File().WriteLine(L"'>");
  File().WriteLine(name_, L"</a>", {});
}

/// The columns that follow the name.
void HtmlWriter::EndEntry(const FileRecord& entry) {
  std::wstring& line = File().Line();
  for (const EntryColumn& column : kFurtherColumns) {
    if (Run().Format.Files.*column.Shown) {
      line += L"<td>";
      const std::size_t start = line.size();
      (Texts().*column.AppendValue)(entry, line);
      if (column.Escaped) {
        EscapeFrom(start, line);
      }
    }
  }
  File().WriteLine(L"</tr>");
}

void HtmlWriter::WriteSummary(std::wstring_view summary) {
  // The two rows stand behind the table's end tag: programs that read these pages find them there.
  File().WriteLine(L"</table>");
  File().WriteLine(L"<tr><td>&nbsp;</tr>");
  File().WriteLine(L"<tr><td>&nbsp;&nbsp;&nbsp;<td>", summary, L"</tr></table><br>");
}

void HtmlWriter::ListPaths(const DirectoryListing& directory) {
  const std::wstring path = AddBackslash(directory.Path);
  for (const std::uint32_t index : directory.Order) {
    File().Line() += path;
    Texts().AppendName(directory.Records[index], File().Line());
    File().WriteLine(L"<br>");
  }
}

void HtmlWriter::BeginTree(std::wstring_view root) {
  WriteHeading(root);
}

void HtmlWriter::TreeEntry(const FileRecord& entry) {
  std::wstring& line = File().Line();
  line += L"<tr>";
  if (Run().Format.Files.*kNameColumn.Shown) {
    line += L"<td>";
    AppendIndent(entry.Level, line);
    Texts().AppendName(entry, line);
  }
  EndEntry(entry);
}

void HtmlWriter::DirectoryViewEntry(const DirNode& node) {
  std::wstring& line = File().Line();
  line += L"<tr><td>";
  AppendIndent(node.Level, line);
  line += node.Name;
  for (const DirectoryColumn& column : kDirectoryColumns) {
    if (Run().Format.Directories.*column.Shown) {
      line += L"<td>";
      column.AppendValue(node, Run().Texts, line);
    }
  }
  File().WriteLine(L"</tr>");
}

void HtmlWriter::FindList(const FoundRows& rows) {
  File().WriteLine(L"<h4>", rows.Title, L"</h4>");
  File().WriteLine(kTable);
  for (const FoundColumn& column : kFoundColumns) {
    File().WriteLine(L"<th>", Run().Texts[column.Caption], &column == &kFoundColumns.back() ? L"</tr>" : L"");
  }
  File().EndLine();
  for (const FoundItem& row : rows.Items) {
    for (const FoundColumn& column : kFoundColumns) {
      File().WriteLine(&column == &kFoundColumns.front() ? L"<tr><td>" : L"<td>", row.*column.Value,
                       &column == &kFoundColumns.back() ? L"</tr>" : L"");
    }
    if (Run().IsCancelled()) {
      return;  // the table stays open: the page shows where it broke off
    }
  }
  File().WriteLine(L"</table>");
}

void HtmlWriter::End() {
  if (Run().Format.IsCollected()) {
    File().WriteLine(L"</table><br>");
  }
  for (const std::wstring& sentence : ClosingSentences(Run())) {
    File().WriteLine(L"<br>", sentence, {});
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

std::unique_ptr<ListingWriter> MakeHtmlWriter() {
  return std::make_unique<HtmlWriter>();
}

}  // namespace folivant
