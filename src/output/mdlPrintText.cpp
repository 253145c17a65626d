#include "output/mdlPrintText.h"

#include <algorithm>

#include "base/mdlFileRoutines.h"
#include "output/DriverServices.h"
#include "output/NameShortening.h"

namespace folivant {
namespace {

constexpr std::wstring_view kGap = L"  ";
constexpr std::size_t kIndent = 3;
/// The length of the directory caption that the padding after it assumes, whatever the language, on purpose.
constexpr double kAssumedCaption = 9;

void AppendPaddedRight(std::wstring_view text, std::size_t width, std::wstring& line) {
  line += text.substr(0, width);
  line.append(width - std::min(width, text.size()), L' ');
}

/// Padded on the left; a longer text loses its start.
void AppendPaddedLeft(std::wstring_view text, std::size_t width, std::wstring& line) {
  const std::size_t shown = std::min(width, text.size());
  line.append(width - shown, L' ');
  line += text.substr(text.size() - shown);
}

void AppendCell(std::wstring_view text, const CellLayout& layout, std::wstring& line) {
  line += kGap;
  switch (layout.Align) {
    case Alignment::Left:
      return AppendPaddedRight(text, layout.Width, line);
    case Alignment::Right:
      return AppendPaddedLeft(text, layout.Width, line);
    case Alignment::AsItStands:
      line += text;
  }
}

void AppendIndent(std::int32_t level, std::wstring& line) {
  line.append(kIndent * static_cast<std::size_t>(std::max(level, 0)), L' ');
}

}  // namespace

void TextWriter::BeginListing() {
  file_.Open(run_.OutputFile);
  nameWidth_ = NameWidth();
  if (run_.Format.ListingStyle != ListingStyle::FullPathList) {
    WriteField(ExpandHeaderFooter(HeaderFooter::Header, run_));
    file_.EndLine();
    file_.EndLine();
  }
  if (run_.Format.ListingStyle == ListingStyle::DirectoryView) {
    WriteDirectoryViewCaptions();
  }
}

double TextWriter::NameWidth() const {
  double width = run_.General.TextWidth;
  if (run_.Format.IsFileList()) {
    width = (width - 26) / 3 - 2;
  } else if (run_.Format.ListingStyle == ListingStyle::DirectoryView) {
    for (const DirectoryColumn& column : kDirectoryColumns) {
      width -= run_.Format.Directories.*column.Shown ? kDirectoryColumnWidth : 0;
    }
  } else {
    for (const EntryColumn& column : kFurtherColumns) {
      width -= run_.Format.Files.*column.Shown ? static_cast<double>(column.Layout.Room) : 0;
    }
  }
  return std::max(width, 0.0);
}

void TextWriter::WriteDirectoryViewCaptions() {
  std::wstring& line = file_.Line();
  line += run_.Texts[Text::DirectoryCaption];
  line.append(CharacterMeasure::Characters(nameWidth_ - kAssumedCaption), L' ');
  EndField(0);
  for (const DirectoryColumn& column : kDirectoryColumns) {
    if (run_.Format.Directories.*column.Shown) {
      const std::size_t start = line.size();
      const std::wstring& caption = run_.Texts[column.Caption];
      // A caption is never cut, unlike the values below it.
      const std::size_t blanks = kDirectoryColumnWidth - std::min(kDirectoryColumnWidth, caption.size());
      line.append(column.CaptionBlanks.value_or(blanks), L' ');
      line += caption;
      EndField(start);
    }
  }
  file_.EndLine();
}

void TextWriter::WriteHeading(std::wstring_view path) {
  file_.EndLine();
  file_.WriteLine(run_.Texts[Text::DirectoryHeading], L" ", path);
  file_.EndLine();
  std::wstring& line = file_.Line();
  if (run_.Format.Files.*kNameColumn.Shown) {
    AppendPaddedRight(run_.Texts[kNameColumn.Caption], CharacterMeasure::Characters(nameWidth_), line);
    EndField(0);
  }
  for (const EntryColumn& column : kFurtherColumns) {
    if (run_.Format.Files.*column.Shown) {
      const std::size_t start = line.size();
      AppendCell(run_.Texts[column.Caption], column.Layout, line);
      EndField(start);
    }
  }
  file_.EndLine();
  file_.EndLine();
}

void TextWriter::TreeEntry(const FileRecord& entry) {
  const bool indented = run_.Format.ListingStyle == ListingStyle::TreeStyle;
  std::wstring& line = file_.Line();
  if (run_.Format.Files.*kNameColumn.Shown) {
    if (indented) {
      AppendIndent(entry.Level, line);
    }
    // In a delimited file the indent stands before the field, so that it survives the trimming.
    const std::size_t field = separator_ == kPlainText ? 0 : line.size();
    line += entry.Name;
    FitName(0, nameWidth_);
    EndField(field);
  }
  for (const EntryColumn& column : kFurtherColumns) {
    if (run_.Format.Files.*column.Shown) {
      const std::size_t start = line.size();
      AppendCell(entry.*column.Value, column.Layout, line);
      EndField(start);
    }
  }
  file_.EndLine();
}

void TextWriter::FitName(std::size_t start, double width) {
  if (separator_ != kPlainText) {
    return;
  }
  std::wstring& line = file_.Line();
  if (static_cast<double>(line.size() - start) > width) {
    line.replace(start, line.npos, ShortenName(std::wstring_view(line).substr(start), width, CharacterMeasure()));
  }
  line.resize(start + CharacterMeasure::Characters(width), L' ');
}

void TextWriter::ListDirectory(const DirectoryListing& directory) {
  if (run_.Format.ListingStyle == ListingStyle::FullPathList) {
    return WriteFullPaths(directory);
  }
  WriteHeading(directory.Path);
  for (const std::uint32_t index : directory.Order) {
    TreeEntry(directory.Records[index]);
  }
  file_.EndLine();
  WriteField(directory.Summary);
  file_.EndLine();
}

void TextWriter::WriteFullPaths(const DirectoryListing& directory) {
  const std::wstring path = AddBackslash(directory.Path);
  for (const std::uint32_t index : directory.Order) {
    file_.WriteLine(path, directory.Records[index].Name, {});
  }
}

void TextWriter::BeginTree(std::wstring_view root) {
  WriteHeading(root);
}

void TextWriter::DirectoryViewEntry(const DirNode& node) {
  std::wstring& line = file_.Line();
  AppendIndent(node.Level, line);
  line += node.Name;
  FitName(0, nameWidth_);
  EndField(0);
  for (const DirectoryColumn& column : kDirectoryColumns) {
    if (run_.Format.Directories.*column.Shown) {
      const std::size_t start = line.size();
      value_.clear();
      column.AppendValue(node, run_.Texts, value_);
      AppendPaddedLeft(value_, kDirectoryColumnWidth, line);
      EndField(start);
    }
  }
  file_.EndLine();
}

void TextWriter::FindList(std::span<const FoundItem> rows) {
  file_.WriteLine(run_.Tree.FindWindowTitle);
  file_.EndLine();
  for (const FoundColumn& column : kFoundColumns) {
    AppendFoundCell(column, run_.Texts[column.Caption]);
  }
  file_.EndLine();
  file_.EndLine();
  for (const FoundItem& row : rows) {
    for (const FoundColumn& column : kFoundColumns) {
      AppendFoundCell(column, row.*column.Value);
    }
    file_.EndLine();
  }
}

void TextWriter::AppendFoundCell(const FoundColumn& column, std::wstring_view text) {
  std::wstring& line = file_.Line();
  const std::size_t start = line.size();
  if (column.NameWidths == 0) {
    AppendCell(text, column.Layout, line);
  } else {
    line += &column == kFoundColumns.data() ? std::wstring_view() : kGap;
    const std::size_t name = line.size();
    line += text;
    FitName(name, nameWidth_ * column.NameWidths);
  }
  EndField(start);
}

void TextWriter::EndListing() {
  if (run_.Format.IsCollected()) {
    file_.EndLine();
  }
  for (const std::wstring& sentence : ClosingSentences(run_)) {
    WriteField(sentence);
  }
  file_.Close();
}

void TextWriter::AbortListing() noexcept {
  file_.Abandon();
}

void TextWriter::EndField(std::size_t start) {
  if (separator_ == kPlainText) {
    return;
  }
  std::wstring& line = file_.Line();
  const std::size_t last = line.find_last_not_of(L' ');
  line.resize(last == line.npos ? start : std::max(start, last + 1));
  line.erase(start, std::min(line.find_first_not_of(L' ', start), line.size()) - start);
  line += separator_;
}

void TextWriter::WriteField(std::wstring_view field) {
  file_.Line() += field;
  EndField(0);
  file_.EndLine();
}

}  // namespace folivant
