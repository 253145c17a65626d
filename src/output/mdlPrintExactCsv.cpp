#include "output/mdlPrintExactCsv.h"

#include <algorithm>

#include "output/RecordWriter.h"
#include "platform/Utf8.h"

namespace folivant {
namespace {

/// `text` is not empty. A blank behind an apostrophe is not at the beginning any more.
bool NeedsQuotes(std::wstring_view text, bool apostrophe) {
  const auto isSpecial = [](wchar_t c) { return c == L',' || c == L'"' || c == L'\r' || c == L'\n'; };
  return (!apostrophe && text.front() == L' ') || text.back() == L' ' ||
         std::any_of(text.begin(), text.end(), isSpecial);
}

/// The values of one row.
class CsvRow final : public FieldSink {
 public:
  /// With `apostrophe` what looks like a formula gets one.
  CsvRow(std::string& out, bool apostrophe) : out_(out), apostrophe_(apostrophe) {}

  void Text(std::wstring_view text) override;
  void Plain(std::string_view text) override;
  void Number(std::uint64_t number) override { AppendNumber(number, out_); }
  void None() override {}

 private:
  /// Whether a value that begins so gets an apostrophe.
  bool LooksLikeFormula(wchar_t first) const {
    return apostrophe_ && std::wstring_view(L"=+-@\t").find(first) != std::wstring_view::npos;
  }

  std::string& out_;
  bool apostrophe_;
};

class ExactCsvWriter final : public RecordWriter {
 private:
  void Begin(std::string& out) override;
  void End(std::string&) override {}
  void AppendEntry(const RecordedEntry& entry, std::string& out) override { AppendRow(kEntryFields, entry, out); }
  void AppendDirectory(const DirNode& node, std::string& out) override { AppendRow(kDirectoryFields, node, out); }
  void AppendFound(const FoundItem& row, std::string& out) override { AppendRow(kFoundFields, row, out); }

  template <class Subject>
  void AppendNames(RecordFields<Subject> fields, std::string& out);
  template <class Subject>
  void AppendRow(RecordFields<Subject> fields, const Subject& subject, std::string& out);
};

void ExactCsvWriter::Begin(std::string& out) {
  out += "\xEF\xBB\xBF";
  switch (Run().Format.ListingStyle) {
    case ListingStyle::DirectoryView:
      return AppendNames(kDirectoryFields, out);
    case ListingStyle::FindWindow:
      return AppendNames(kFoundFields, out);
    default:
      return AppendNames(kEntryFields, out);
  }
}

template <class Subject>
void ExactCsvWriter::AppendNames(RecordFields<Subject> fields, std::string& out) {
  for (const RecordField<Subject>& field : fields) {
    if (IsShown(field)) {
      out += &field == &fields.front() ? "" : ",";
      out += field.Name;
    }
  }
  out += "\r\n";
}

template <class Subject>
void ExactCsvWriter::AppendRow(RecordFields<Subject> fields, const Subject& subject, std::string& out) {
  CsvRow row(out, Run().General.CsvApostrophe);
  for (const RecordField<Subject>& field : fields) {
    if (IsShown(field)) {
      out += &field == &fields.front() ? "" : ",";
      field.Put(subject, Facts(), row);
    }
  }
  out += "\r\n";
}

/// In quotes where a comma, a quote or a line break stands inside, or a blank at an end, which some readers drop.
void CsvRow::Text(std::wstring_view text) {
  if (text.empty()) {
    return;
  }
  const bool formula = LooksLikeFormula(text.front());
  if (!NeedsQuotes(text, formula)) {
    out_ += formula ? "'" : "";
    return platform::AppendUtf8(text, out_);
  }
  out_ += formula ? "\"'" : "\"";
  for (std::size_t quote = text.find(L'"'); quote != text.npos; quote = text.find(L'"')) {
    platform::AppendUtf8(text.substr(0, quote + 1), out_);
    out_ += '"';
    text.remove_prefix(quote + 1);
  }
  platform::AppendUtf8(text, out_);
  out_ += '"';
}

void CsvRow::Plain(std::string_view text) {
  out_ += !text.empty() && LooksLikeFormula(static_cast<wchar_t>(text.front())) ? "'" : "";
  out_ += text;
}

}  // namespace

std::unique_ptr<ListingWriter> MakeExactCsvWriter() {
  return std::make_unique<ExactCsvWriter>();
}

}  // namespace folivant
