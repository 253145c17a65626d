#include "output/mdlPrintJson.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "output/JsonText.h"
#include "output/RecordWriter.h"
#include "platform/Clock.h"
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
};

void AppendPlain(std::string_view text, std::string& out) {
  out += '"';
  out += text;
  out += '"';
}

/// Values, each behind its key.
class JsonValues final : public FieldSink {
 public:
  explicit JsonValues(std::string& out) : out_(out) {}

  void Text(std::wstring_view text) override { AppendJsonString(text, out_); }
  void Plain(std::string_view text) override { AppendPlain(text, out_); }
  void Number(std::uint64_t number) override { AppendNumber(number, out_); }
  void None() override { out_ += "null"; }

 private:
  std::string& out_;
};

/// One object under construction.
class JsonObject {
 public:
  explicit JsonObject(std::string& out) : out_(out) { out_ += '{'; }
  JsonObject(const JsonObject&) = delete;
  JsonObject& operator=(const JsonObject&) = delete;
  ~JsonObject() { out_ += '}'; }

  /// A key, in which nothing has to be escaped; its value is to be appended next.
  std::string& Key(std::string_view name) {
    out_ += out_.back() == '{' ? "\"" : ",\"";
    out_ += name;
    return out_ += "\":";
  }
  void Text(std::string_view name, std::wstring_view value) { AppendJsonString(value, Key(name)); }
  void Plain(std::string_view name, std::string_view value) { AppendPlain(value, Key(name)); }
  void Number(std::string_view name, std::uint64_t value) { AppendNumber(value, Key(name)); }
  void Flag(std::string_view name, bool value) { Key(name) += value ? "true" : "false"; }

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
  constexpr std::string_view kNames[] = {"archive", "read-only", "hidden", "system", "directory"};
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
    object.Text("name", filter.FilterName);
  }
  if (filter.SizeOn) {
    object.Number(filter.SizeMin ? "minimum_size" : "maximum_size",
                  static_cast<std::uint64_t>(std::max(filter.FilterSize, 0)) * kKilobyte);
  }
  if (filter.DateOn) {
    object.Text("modified_from", DayText(filter.DateMin));
    object.Text("modified_to", DayText(filter.DateMax));
  }
  if (filter.AttrOn) {
    AppendAttributeFilter(filter, object.Key("attributes"));
  }
}

void AppendUnread(const UnreadPath& unread, std::string& out) {
  JsonObject object(out);
  object.Text("path", unread.Path);
  object.Number("code", unread.Reason.Code);
  object.Text("reason", unread.Reason.Text);
}

void JsonWriter::Begin(std::string& out) {
  const ListingRun& run = Run();
  {
    JsonObject line(out);
    JsonObject listing(line.Key("listing"));
    listing.Number("format", kFormatVersion);
    listing.Text("program", L"Folivant " VERSION_TEXT);
    if (run.Format.ListingStyle != ListingStyle::FindWindow) {
      listing.Text("root", run.Start.OnDisk);
    }
    listing.Text("style", StyleWord(run.Format.ListingStyle));
    if (!run.Format.IsFileList()) {
      listing.Key("depth") += std::to_string(run.Format.SubLevel);
      AppendFilter(run.Filter, listing.Key("filter"));
      JsonObject order(listing.Key("order"));
      order.Text("by", OrderWord(run.Filter.OrderBy));
      order.Flag("ascending", run.Filter.OrderAZ);
    }
    listing.Plain("start", UtcTimeText(platform::UtcNow()).Text());
  }
  out += '\n';
}

void JsonWriter::End(std::string& out) {
  {
    JsonObject line(out);
    JsonObject complete(line.Key("complete"));
    complete.Number("files", Totals().Files);
    complete.Number("directories", Totals().Directories);
    complete.Number("links", Totals().Links);
    if (Run().Format.ListingStyle == ListingStyle::FindWindow) {
      complete.Key("bytes") += "null";  // a Find window tells no sizes, only texts
    } else {
      complete.Number("bytes", Totals().Bytes);
    }
    complete.Flag("more_bytes", Totals().MoreBytes);
    complete.Key("unread") += '[';
    for (const UnreadPath& unread : Run().Unread) {
      out += &unread == &Run().Unread.front() ? "" : ",";
      AppendUnread(unread, out);
    }
    out += ']';
  }
  out += '\n';
}

/// What stands before the value of each field.
template <class Subject>
std::vector<std::string> KeysOf(RecordFields<Subject> fields) {
  std::vector<std::string> keys;
  for (const RecordField<Subject>& field : fields) {
    keys.push_back((keys.empty() ? "{\"" : ",\"") + std::string(field.Name) + "\":");
  }
  return keys;
}

template <class Subject>
void JsonWriter::AppendRow(RecordFields<Subject> fields, const Subject& subject, std::string& out) {
  static const std::vector<std::string> keys = KeysOf(fields);
  JsonValues values(out);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (IsShown(fields[i])) {
      out += keys[i];
      fields[i].Put(subject, Facts(), values);
    }
  }
  out += "}\n";
}

}  // namespace

std::unique_ptr<ListingWriter> MakeJsonWriter() {
  return std::make_unique<JsonWriter>();
}

}  // namespace folivant
