// Every line is put together in the file's buffer: a cell is appended, then padded or cut in place, then, in a
// delimited file, trimmed and closed by its separator.
#include "output/mdlPrintText.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "base/mdlFileRoutines.h"
#include "output/Columns.h"
#include "output/DriverServices.h"
#include "output/FileWriter.h"
#include "output/NameShortening.h"

namespace folivant {
namespace {

constexpr std::wstring_view kGap = L"  ";
constexpr std::size_t kIndent = 3;
/// The length of the directory caption that the padding after it assumes, whatever the language: readers count on the
/// column.
constexpr double kAssumedCaption = 9;

/// Pads or cuts what the line holds from `start` on, on the right.
void PadRight(std::size_t start, std::size_t width, std::wstring& line) {
  line.resize(start + width, L' ');
}

/// The same on the left; a longer text loses its start.
void PadLeft(std::size_t start, std::size_t width, std::wstring& line) {
  const std::size_t length = line.size() - start;
  if (length < width) {
    line.insert(start, width - length, L' ');
  } else {
    line.erase(start, length - width);
  }
}

void FitCell(std::size_t start, const CellLayout& layout, std::wstring& line) {
  switch (layout.Align) {
    case Alignment::Left:
      return PadRight(start, layout.Width, line);
    case Alignment::Right:
      return PadLeft(start, layout.Width, line);
    case Alignment::AsItStands:
      return;
  }
}

void AppendIndent(std::int32_t level, std::wstring& line) {
  line.append(kIndent * static_cast<std::size_t>(std::max(level, 0)), L' ');
}

class TextWriter final : public FileWriter {
 public:
  explicit TextWriter(wchar_t separator) : separator_(separator) {}

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

  void SetNameWidth(double width) { nameWidth_ = std::max(width, 0.0); }
  double EntryNameWidth() const;
  double DirectoryNameWidth() const;

  void WriteHeading(std::wstring_view path);
  void WriteEntry(const FileRecord& entry, std::int32_t indent);
  void AppendFoundCell(const FoundColumn& column, std::wstring_view text);
  /// Makes what the line holds from `start` on a name of `width` characters: shortened, and padded. A delimited file
  /// shows names whole.
  void FitName(std::size_t start, double width);
  /// The field filter, for what the line holds from `start` on.
  void EndField(std::size_t start);
  /// One field as a line of its own.
  void WriteField(std::wstring_view field);

  const wchar_t separator_;
  double nameWidth_ = 0;  ///< characters; a fraction in the file lists, never below zero
};

void TextWriter::Begin() {
  if (Run().Format.ListingStyle != ListingStyle::FullPathList) {
    WriteField(ExpandHeaderFooter(HeaderFooter::Header, Run()));
    File().EndLine();
    File().EndLine();
  }
}

double TextWriter::EntryNameWidth() const {
  double width = Run().General.TextWidth;
  for (const EntryColumn& column : kFurtherColumns) {
    width -= Run().Format.Files.*column.Shown ? static_cast<double>(column.Layout.Room) : 0;
  }
  return width;
}

double TextWriter::DirectoryNameWidth() const {
  double width = Run().General.TextWidth;
  for (const DirectoryColumn& column : kDirectoryColumns) {
    width -= Run().Format.Directories.*column.Shown ? static_cast<double>(kDirectoryColumnWidth) : 0;
  }
  return width;
}

void TextWriter::BeginDirectoryView() {
  SetNameWidth(DirectoryNameWidth());
  std::wstring& line = File().Line();
  line += Run().Texts[TextId::DirectoryCaption];
  line.append(CharacterMeasure::Characters(nameWidth_ - kAssumedCaption), L' ');
  EndField(0);
  for (const DirectoryColumn& column : kDirectoryColumns) {
    if (Run().Format.Directories.*column.Shown) {
      const std::size_t start = line.size();
      const std::wstring& caption = Run().Texts[column.Caption];
      // A caption is never cut, unlike the values below it.
      const std::size_t blanks = kDirectoryColumnWidth - std::min(kDirectoryColumnWidth, caption.size());
      line.append(column.CaptionBlanks.value_or(blanks), L' ');
      line += caption;
      EndField(start);
    }
  }
  File().EndLine();
}

void TextWriter::WriteHeading(std::wstring_view path) {
  SetNameWidth(EntryNameWidth());
  File().EndLine();
  File().WriteLine(Run().Texts[TextId::DirectoryHeading], L" ", path);
  File().EndLine();
  std::wstring& line = File().Line();
  if (Run().Format.Files.*kNameColumn.Shown) {
    line += Run().Texts[kNameColumn.Caption];
    PadRight(0, CharacterMeasure::Characters(nameWidth_), line);
    EndField(0);
  }
  for (const EntryColumn& column : kFurtherColumns) {
    if (Run().Format.Files.*column.Shown) {
      const std::size_t start = line.size();
      line += kGap;
      line += Run().Texts[column.Caption];
      FitCell(start + kGap.size(), column.Layout, line);
      EndField(start);
    }
  }
  File().EndLine();
  File().EndLine();
}

void TextWriter::WriteEntry(const FileRecord& entry, std::int32_t indent) {
  std::wstring& line = File().Line();
  if (Run().Format.Files.*kNameColumn.Shown) {
    AppendIndent(indent, line);
    // In a delimited file the indent stands before the field, so that it survives the trimming.
    const std::size_t field = separator_ == kPlainText ? 0 : line.size();
    (Texts().*kNameColumn.AppendValue)(entry, line);
    FitName(0, nameWidth_);
    EndField(field);
  }
  for (const EntryColumn& column : kFurtherColumns) {
    if (Run().Format.Files.*column.Shown) {
      const std::size_t start = line.size();
      line += kGap;
      (Texts().*column.AppendValue)(entry, line);
      FitCell(start + kGap.size(), column.Layout, line);
      EndField(start);
    }
  }
  File().EndLine();
}

void TextWriter::FitName(std::size_t start, double width) {
  if (separator_ != kPlainText) {
    return;
  }
  std::wstring& line = File().Line();
  if (static_cast<double>(line.size() - start) > width) {
    line.replace(start, line.npos, ShortenName(std::wstring_view(line).substr(start), width, CharacterMeasure()));
  }
  PadRight(start, CharacterMeasure::Characters(width), line);
}

void TextWriter::ListDirectory(const DirectoryListing& directory) {
  WriteHeading(directory.Path);
  for (const std::uint32_t index : directory.Order) {
    WriteEntry(directory.Records[index], 0);
  }
  File().EndLine();
  WriteField(directory.Summary);
  File().EndLine();
}

void TextWriter::ListPaths(const DirectoryListing& directory) {
  const std::wstring path = AddBackslash(directory.Path);
  for (const std::uint32_t index : directory.Order) {
    File().Line() += path;
    Texts().AppendName(directory.Records[index], File().Line());
    File().EndLine();
  }
}

void TextWriter::BeginTree(std::wstring_view root) {
  WriteHeading(root);
}

void TextWriter::TreeEntry(const FileRecord& entry) {
  WriteEntry(entry, entry.Level);
}

void TextWriter::DirectoryViewEntry(const DirNode& node) {
  std::wstring& line = File().Line();
  AppendIndent(node.Level, line);
  line += node.Name;
  FitName(0, nameWidth_);
  EndField(0);
  for (const DirectoryColumn& column : kDirectoryColumns) {
    if (Run().Format.Directories.*column.Shown) {
      const std::size_t start = line.size();
      column.AppendValue(node, Run().Texts, line);
      PadLeft(start, kDirectoryColumnWidth, line);
      EndField(start);
    }
  }
  File().EndLine();
}

void TextWriter::FindList(const FoundRows& rows) {
  SetNameWidth((static_cast<double>(Run().General.TextWidth) - 26) / 3 - 2);
  File().WriteLine(rows.Title);
  File().EndLine();
  for (const FoundColumn& column : kFoundColumns) {
    AppendFoundCell(column, Run().Texts[column.Caption]);
  }
  File().EndLine();
  File().EndLine();
  for (const FoundItem& row : rows.Items) {
    for (const FoundColumn& column : kFoundColumns) {
      AppendFoundCell(column, row.*column.Value);
    }
    File().EndLine();
  }
}

void TextWriter::AppendFoundCell(const FoundColumn& column, std::wstring_view text) {
  std::wstring& line = File().Line();
  const std::size_t start = line.size();
  line += &column == kFoundColumns.data() ? std::wstring_view() : kGap;
  const std::size_t cell = line.size();
  line += text;
  if (column.NameWidths == 0) {
    FitCell(cell, column.Layout, line);
  } else {
    FitName(cell, nameWidth_ * column.NameWidths);
  }
  EndField(start);
}

void TextWriter::End() {
  if (Run().Format.IsCollected()) {
    File().EndLine();
  }
  for (const std::wstring& sentence : ClosingSentences(Run())) {
    WriteField(sentence);
  }
}

void TextWriter::EndField(std::size_t start) {
  if (separator_ == kPlainText) {
    return;
  }
  std::wstring& line = File().Line();
  const std::size_t last = line.find_last_not_of(L' ');
  line.resize(last == line.npos ? start : std::max(start, last + 1));
  line.erase(start, std::min(line.find_first_not_of(L' ', start), line.size()) - start);
  line += separator_;
}

void TextWriter::WriteField(std::wstring_view field) {
  File().Line() += field;
  EndField(0);
  File().EndLine();
}

}  // namespace

std::unique_ptr<ListingWriter> MakeTextWriter(wchar_t separator) {
  return std::make_unique<TextWriter>(separator);
}

}  // namespace folivant
