#include "output/mdlPrintJson.h"

#include <algorithm>
#include <cmath>

#include "output/JsonText.h"
#include "output/RecordWriter.h"
#include "platform/Clock.h"
#include "platform/Utf8.h"
#include "res/Version.h"

namespace folivant {
namespace {

/// Of what the first and last object hold; goes up when a reader of today would misread what is written then.
constexpr int kFormatVersion = 1;

class JsonWriter final : public RecordWriter {
 private:
  void Begin(std::string& out) override;
  void End(std::string& out) override;
  void AppendEntry(const RecordedEntry& entry, std::string& out) override { AppendRow(kEntryFields, entry, out); }
  void AppendDirectory(const DirNode& node, std::string& out) override { AppendRow(kDirectoryFields, node, out); }
  void AppendFound(const FoundItem& row, std::string& out) override { AppendRow(kFoundFields, row, out); }

  template <class Subject>
  void AppendRow(RecordFields<Subject> fields, const Subject& subject, std::string& out);

  std::wstring value_;
};

/// One object under construction.
class JsonObject {
 public:
  explicit JsonObject(std::string& out) : out_(out) { out_ += '{'; }
  JsonObject(const JsonObject&) = delete;
  JsonObject& operator=(const JsonObject&) = delete;
  ~JsonObject() { out_ += '}'; }

  /// A key; its value is to be appended next.
  std::string& Key(std::wstring_view name) {
    out_ += out_.back() == '{' ? "" : ",";
    AppendJsonString(name, out_);
    return out_ += ':';
  }
  void Text(std::wstring_view name, std::wstring_view value) { AppendJsonString(value, Key(name)); }
  void Number(std::wstring_view name, std::uint64_t value) { Key(name) += std::to_string(value); }
  void Flag(std::wstring_view name, bool value) { Key(name) += value ? "true" : "false"; }

 private:
  std::string& out_;
};

std::wstring_view StyleWord(ListingStyle style) {
  constexpr std::wstring_view kWords[] = {L"files", L"subdirectories", L"tree",     L"directories",
                                          L"paths", L"find window",    L"path list"};
  const auto index = static_cast<std::size_t>(style);
  return index < std::size(kWords) ? kWords[index] : kWords[0];
}

std::wstring_view OrderWord(OrderBy order) {
  constexpr std::wstring_view kWords[] = {L"none", L"name", L"short name", L"size", L"modified", L"extension"};
  const auto index = static_cast<std::size_t>(order);
  return index < std::size(kWords) ? kWords[index] : kWords[0];
}

/// As it is compared: a day stands for its midnight, local time.
std::wstring DayText(DateValue date) {
  const platform::CalendarTime day = ToCalendarTime(std::floor(date));
  return PaddedText(day.Year, 4) + L'-' + PaddedText(day.Month, 2) + L'-' + PaddedText(day.Day, 2);
}

void AppendAttributeFilter(const FilterSettings& filter, std::string& out) {
  constexpr std::wstring_view kNames[] = {L"archive", L"read-only", L"hidden", L"system", L"directory"};
  JsonObject object(out);
  for (std::size_t i = 0; i < std::size(kNames); ++i) {
    if (filter.Attributes[i] != AttributeChoice::DoNotCare) {
      object.Flag(kNames[i], filter.Attributes[i] == AttributeChoice::MustHave);
    }
  }
}

/// What is switched off is left out.
void AppendFilter(const FilterSettings& filter, std::string& out) {
  constexpr std::uint64_t kKilobyte = 1024;
  JsonObject object(out);
  if (filter.NameOn) {
    object.Text(L"name", filter.FilterName);
  }
  if (filter.SizeOn) {
    object.Number(filter.SizeMin ? L"minimum_size" : L"maximum_size",
                  static_cast<std::uint64_t>(std::max(filter.FilterSize, 0)) * kKilobyte);
  }
  if (filter.DateOn) {
    object.Text(L"modified_from", DayText(filter.DateMin));
    object.Text(L"modified_to", DayText(filter.DateMax));
  }
  if (filter.AttrOn) {
    AppendAttributeFilter(filter, object.Key(L"attributes"));
  }
}

void AppendUnread(const UnreadPath& unread, std::string& out) {
  JsonObject object(out);
  object.Text(L"path", unread.Path);
  object.Number(L"code", unread.Reason.Code);
  object.Text(L"reason", unread.Reason.Text);
}

void JsonWriter::Begin(std::string& out) {
  const ListingRun& run = Run();
  {
    JsonObject line(out);
    JsonObject listing(line.Key(L"listing"));
    listing.Number(L"format", kFormatVersion);
    listing.Text(L"program", L"Folivant " VERSION_TEXT);
    if (run.Format.ListingStyle != ListingStyle::FindWindow) {
      listing.Text(L"root", run.Start.OnDisk);
    }
    listing.Text(L"style", StyleWord(run.Format.ListingStyle));
    if (!run.Format.IsFileList()) {
      listing.Key(L"depth") += std::to_string(run.Format.SubLevel);
      AppendFilter(run.Filter, listing.Key(L"filter"));
      JsonObject order(listing.Key(L"order"));
      order.Text(L"by", OrderWord(run.Filter.OrderBy));
      order.Flag(L"ascending", run.Filter.OrderAZ);
    }
    value_.clear();
    AppendUtcTime(platform::UtcNow(), value_);
    listing.Text(L"start", value_);
  }
  out += '\n';
}

void JsonWriter::End(std::string& out) {
  {
    JsonObject line(out);
    JsonObject complete(line.Key(L"complete"));
    complete.Number(L"files", Totals().Files);
    complete.Number(L"directories", Totals().Directories);
    complete.Number(L"links", Totals().Links);
    if (Run().Format.ListingStyle == ListingStyle::FindWindow) {
      complete.Key(L"bytes") += "null";  // a Find window tells no sizes, only texts
    } else {
      complete.Number(L"bytes", Totals().Bytes);
    }
    complete.Flag(L"more_bytes", Totals().MoreBytes);
    complete.Key(L"unread") += '[';
    for (const UnreadPath& unread : Run().Unread) {
      out += &unread == &Run().Unread.front() ? "" : ",";
      AppendUnread(unread, out);
    }
    out += ']';
  }
  out += '\n';
}

template <class Subject>
void JsonWriter::AppendRow(RecordFields<Subject> fields, const Subject& subject, std::string& out) {
  {
    JsonObject row(out);
    for (const RecordField<Subject>& field : fields) {
      if (field.Switch != nullptr && !(Run().General.*field.Switch)) {
        continue;
      }
      value_.clear();
      if (!field.Append(subject, Facts(), value_)) {
        row.Key(field.Name) += "null";
      } else if (field.Type == FieldType::Number) {
        platform::AppendUtf8(value_, row.Key(field.Name));
      } else {
        row.Text(field.Name, value_);
      }
    }
  }
  out += '\n';
}

}  // namespace

std::unique_ptr<ListingWriter> MakeJsonWriter() {
  return std::make_unique<JsonWriter>();
}

}  // namespace folivant
