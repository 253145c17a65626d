// What the controls of a dialog edit: how a member of a record is shown in a control and read back from it. Windows are
// not known here, only platform/Controls.h, so that what a dialog means can be tested without one.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/DateValue.h"
#include "base/Numbers.h"
#include "platform/Controls.h"
#include "ui/Messages.h"

namespace folivant {

using platform::Controls;

/// How a control shows a field and reads it back; one of the makers below makes it.
template <class Record>
struct Field {
  void (*AddItems)(Controls& controls, int control, const Messages& texts) = nullptr;
  void (*Fill)(Controls& controls, int control, const Record& record) = nullptr;
  void (*Read)(const Controls& controls, int control, Record& record) = nullptr;

  // An option button has these instead, because one button alone does not tell the field.
  const void* Group = nullptr;                      ///< the same for all buttons of a field
  bool (*IsMeant)(const Record& record) = nullptr;  ///< whether the field has the button's value
  void (*Take)(Record& record) = nullptr;           ///< gives the field that value
};

/// What was typed into a control does not convert.
class FieldError final : public std::exception {
 public:
  /// `limits` where a number was typed that the field does not take.
  explicit FieldError(int control, std::optional<ValueLimits> limits = {})
      : control_(control), limits_(std::move(limits)) {}
  int Control() const { return control_; }
  const std::optional<ValueLimits>& Limits() const { return limits_; }

 private:
  int control_;
  std::optional<ValueLimits> limits_;
};

/// The number typed into `control`. Throws FieldError where the text does not convert.
std::int32_t WholeNumberOf(const Controls& controls, int control, WholeRange range = {});
float SingleOf(const Controls& controls, int control);
/// Of a field in which only the beginning has to be a number. Throws FieldError where that is outside `range`, with
/// `told` for the message.
std::int32_t LeadingWholeNumberOf(const Controls& controls, int control, WholeRange range, WholeRange told);

// What a field is to its control: the flag of a check box, or the content of a text box.
void FillField(Controls& controls, int control, bool value);
void FillField(Controls& controls, int control, const std::wstring& value);
void FillField(Controls& controls, int control, std::int32_t value);
void FillField(Controls& controls, int control, float value);
void ReadField(const Controls& controls, int control, bool& value);
void ReadField(const Controls& controls, int control, std::wstring& value);
void ReadField(const Controls& controls, int control, std::int32_t& value);
void ReadField(const Controls& controls, int control, float& value);

// The makers of fields. Each is given the pointer to the member of the record.

template <class Record, class Value>
Record RecordOf(Value Record::*);
template <class Record, class Value>
Value ValueOf(Value Record::*);

/// The member at the end of a path of members.
template <auto Member, auto... Deeper>
constexpr auto& MemberOf(auto& record) {
  if constexpr (sizeof...(Deeper) == 0) {
    return record.*Member;
  } else {
    return MemberOf<Deeper...>(record.*Member);
  }
}

/// A check box or text box: Edits<&GeneralSettings::Header>, or Edits<&ListingFormat::Files, &FileColumns::Name> for a
/// member of a member.
template <auto Member, auto... Deeper>
inline constexpr auto Edits = Field<decltype(RecordOf(Member))>{
    .Fill = [](Controls& controls, int control,
               const auto& record) { FillField(controls, control, MemberOf<Member, Deeper...>(record)); },
    .Read = [](const Controls& controls, int control,
               auto& record) { ReadField(controls, control, MemberOf<Member, Deeper...>(record)); }};

/// A text box with a whole number out of `Range`.
template <auto Member, WholeRange Range>
inline constexpr auto EditsNumber = Field<decltype(RecordOf(Member))>{
    .Fill = Edits<Member>.Fill, .Read = [](const Controls& controls, int control, auto& record) {
      record.*Member = WholeNumberOf(controls, control, Range);
    }};

/// A whole number of which only the beginning has to be one: "80 characters" is 80, "wide" is 0.
template <auto Member, WholeRange Range = WholeRange{}, WholeRange Told = Range>
inline constexpr auto EditsLeadingNumber = Field<decltype(RecordOf(Member))>{
    .Fill = Edits<Member>.Fill, .Read = [](const Controls& controls, int control, auto& record) {
      record.*Member = LeadingWholeNumberOf(controls, control, Range, Told);
    }};

/// A date picker: the midnight of the day that it shows. It has a time of day all the same, the last one that it was
/// given or that of its making.
template <auto Member>
inline constexpr auto EditsDay = Field<decltype(RecordOf(Member))>{
    .Fill = [](Controls& controls, int control,
               const auto& record) { controls.SetDay(control, ToCalendarTime(record.*Member)); },
    .Read =
        [](const Controls& controls, int control, auto& record) {
          const platform::CalendarTime day = controls.DayOf(control);
          record.*Member = ToDateValue({day.Year, day.Month, day.Day});
        }};

/// The mark of a group of option buttons; only its address counts.
template <auto Member>
inline char groupMark = 0;

/// An option button: while it is set the member has `Value`. All buttons with the same member are one group. It is read
/// as the first of its rows whose button is set, and as its last row when none is.
template <auto Member, auto Value>
inline constexpr auto Chooses =
    Field<decltype(RecordOf(Member))>{.Group = &groupMark<Member>,
                                      .IsMeant = [](const auto& record) { return record.*Member == Value; },
                                      .Take = [](auto& record) { record.*Member = Value; }};

/// The same for a record that is nothing but one value.
template <auto Value>
inline constexpr auto Means = Field<decltype(Value)>{.Group = &groupMark<nullptr>,
                                                     .IsMeant = [](const auto& record) { return record == Value; },
                                                     .Take = [](auto& record) { record = Value; }};

/// An item of a list, and the value that the field has while it is selected.
template <class Value>
struct ListItem {
  TextId Name;
  Value Meaning;
};

/// A list with the items of an array. A value without an item selects nothing, and nothing is read as the zero of its
/// type.
template <auto Member, const auto& Items>
inline constexpr auto Lists = Field<decltype(RecordOf(Member))>{
    .AddItems =
        [](Controls& controls, int control, const Messages& texts) {
          for (const auto& item : Items) {
            controls.AddItem(control, texts[item.Name]);
          }
        },
    .Fill =
        [](Controls& controls, int control, const auto& record) {
          const auto item = std::find_if(std::begin(Items), std::end(Items),
                                         [&](const auto& each) { return each.Meaning == record.*Member; });
          controls.Select(control, item == std::end(Items) ? platform::kNothingSelected
                                                           : static_cast<int>(item - std::begin(Items)));
        },
    .Read =
        [](const Controls& controls, int control, auto& record) {
          const int position = controls.Selected(control);
          record.*Member = position == platform::kNothingSelected ? decltype(ValueOf(Member)){}
                                                                  : Items[static_cast<std::size_t>(position)].Meaning;
        }};

/// A list that the dialog itself adds the items to, before filling: the field is the position of the selected one, or
/// kNothingSelected.
template <auto Member>
inline constexpr auto EditsPosition = Field<decltype(RecordOf(Member))>{
    .Fill = [](Controls& controls, int control, const auto& record) { controls.Select(control, record.*Member); },
    .Read = [](const Controls& controls, int control, auto& record) { record.*Member = controls.Selected(control); }};

/// The same, but the field is the text of the selected item, letter by letter; empty when nothing is selected.
template <auto Member>
inline constexpr auto EditsItem = Field<decltype(RecordOf(Member))>{
    .Fill =
        [](Controls& controls, int control, const auto& record) {
          const std::vector<std::wstring> items = controls.ItemsOf(control);
          const auto item = std::find(items.begin(), items.end(), record.*Member);
          controls.Select(control,
                          item == items.end() ? platform::kNothingSelected : static_cast<int>(item - items.begin()));
        },
    .Read =
        [](const Controls& controls, int control, auto& record) {
          const int position = controls.Selected(control);
          record.*Member = position == platform::kNothingSelected
                               ? std::wstring()
                               : controls.ItemsOf(control).at(static_cast<std::size_t>(position));
        }};

}  // namespace folivant
