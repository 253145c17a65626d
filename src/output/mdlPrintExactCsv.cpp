#include "output/mdlPrintExactCsv.h"

#include "output/RecordWriter.h"
#include "platform/Utf8.h"

namespace folivant {
namespace {

class ExactCsvWriter final : public RecordWriter {
 private:
  void Begin(std::string& out) override;
  void End(std::string&) override {}
  void AppendEntry(const RecordedEntry& entry, std::string& out) override { AppendRow(kEntryFields, entry, out); }
  void AppendDirectory(const DirNode& node, std::string& out) override { AppendRow(kDirectoryFields, node, out); }
  void AppendFound(const FoundItem& row, std::string& out) override { AppendRow(kFoundFields, row, out); }

  template <class Subject>
  bool IsShown(const RecordField<Subject>& field) const {
    return field.Switch == nullptr || Run().General.*field.Switch;
  }
  template <class Subject>
  void AppendNames(RecordFields<Subject> fields, std::string& out);
  template <class Subject>
  void AppendRow(RecordFields<Subject> fields, const Subject& subject, std::string& out);
  void AppendValue(std::string& out);

  std::wstring value_;
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
      platform::AppendUtf8(field.Name, out);
    }
  }
  out += "\r\n";
}

template <class Subject>
void ExactCsvWriter::AppendRow(RecordFields<Subject> fields, const Subject& subject, std::string& out) {
  for (const RecordField<Subject>& field : fields) {
    if (!IsShown(field)) {
      continue;
    }
    out += &field == &fields.front() ? "" : ",";
    value_.clear();
    field.Append(subject, Facts(), value_);
    AppendValue(out);
  }
  out += "\r\n";
}

/// In quotes where a comma, a quote or a line break stands inside, or a blank at an end, which some readers drop.
void ExactCsvWriter::AppendValue(std::string& out) {
  if (value_.empty()) {
    return;
  }
  if (Run().General.CsvApostrophe && std::wstring_view(L"=+-@\t").find(value_.front()) != std::wstring_view::npos) {
    value_.insert(0, 1, L'\'');
  }
  const bool quoted =
      value_.find_first_of(L",\"\r\n") != value_.npos || value_.front() == L' ' || value_.back() == L' ';
  if (!quoted) {
    return platform::AppendUtf8(value_, out);
  }
  out += '"';
  for (std::size_t at = value_.find(L'"'); at != value_.npos; at = value_.find(L'"', at + 2)) {
    value_.insert(at, 1, L'"');
  }
  platform::AppendUtf8(value_, out);
  out += '"';
}

}  // namespace

std::unique_ptr<ListingWriter> MakeExactCsvWriter() {
  return std::make_unique<ExactCsvWriter>();
}

}  // namespace folivant
