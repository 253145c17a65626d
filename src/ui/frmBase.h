// What all dialogs of the program share on top of platform/win32/Dialog.h: captions from the language's texts, a table
// that binds each control to its caption and its field, errors shown as sentences, and help. For frm*.cpp files only.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "base/Numbers.h"
#include "platform/win32/Dialog.h"
#include "res/Controls.h"
#include "ui/DialogContext.h"
#include "ui/FieldText.h"
#include "ui/Text.h"

namespace folivant {

class frmBase;

/// How a control shows a field and reads it back. Made by Edits.
template <class Record>
struct Field {
  void (*Fill)(frmBase& form, int control, const Record& record) = nullptr;
  void (*Read)(const frmBase& form, int control, Record& record) = nullptr;
};

/// A control's id, the text that names it, and the field that it edits, if any. The caption goes to the control's label
/// where there is one (the control with the id LABEL_OF(control)), otherwise to the control itself.
template <class Record>
struct Binding {
  int Control;
  Text Caption = kNoCaption;
  Field<Record> Edits = {};

  static constexpr Text kNoCaption = static_cast<Text>(-1);
};

/// For windows whose tables only set captions.
struct NoRecord {};

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

/// A dialog that speaks the user's language.
class frmBase : public platform::Dialog {
 public:
  /// `resource` is the number of a dialog template.
  frmBase(int resource, const DialogContext& context) : Dialog(resource), context_(context) {}

  // What a bound field is to its control: a check box or option button's flag, or a text box's content. Reading throws
  // FieldError where the text does not convert.
  void FillField(int control, bool value) { SetChecked(control, value); }
  void FillField(int control, const std::wstring& value) { SetText(control, value); }
  void FillField(int control, std::int32_t value) { SetText(control, WholeText(value)); }
  void FillField(int control, float value) { SetText(control, SingleText(value)); }
  void ReadField(int control, bool& value) const { value = Checked(control); }
  void ReadField(int control, std::wstring& value) const { value = TextOf(control); }
  void ReadField(int control, std::int32_t& value) const { value = WholeNumberOf(control); }
  void ReadField(int control, float& value) const { value = SingleOf(control); }
  /// Of a field in which only the beginning has to be a number. Throws FieldError where that is outside `range`, with
  /// `told` for the message.
  std::int32_t LeadingWholeNumberOf(int control, WholeRange range, WholeRange told) const;

 protected:
  const Messages& Texts() const { return context_.Texts; }
  /// For the dialogs that this one opens.
  const DialogContext& Context() const { return context_; }

  template <class Record>
  void SetCaptions(std::span<const Binding<Record>> table);
  template <class Record>
  void Fill(std::span<const Binding<Record>> table, const Record& record);
  /// Throws FieldError, with `record` partly read: read into a copy.
  template <class Record>
  void Read(std::span<const Binding<Record>> table, Record& record) const;

  /// The number typed into `control`. Throws FieldError.
  std::int32_t WholeNumberOf(int control, WholeRange range = {}) const;
  float SingleOf(int control) const;
  void SetCaption(int control, Text caption);
  /// How a message calls the field.
  std::wstring FieldNameOf(int control) const;
  /// Brings a field into view before it gets the focus; for windows with pages.
  virtual void ShowField(int) {}

  /// The sentence about what was typed.
  std::wstring ProblemOf(const FieldError& error) const;

  void ShowHelp() override;
  /// A FieldError names the field and moves the focus to it; everything else is shown as its sentence.
  void ShowProblem(const std::exception& problem) noexcept override;

 private:
  DialogContext context_;
};

template <class Record, class Value>
Record RecordOf(Value Record::*);

/// The field behind a pointer to member: Edits<&GeneralSettings::Header>.
template <auto Member>
inline constexpr auto Edits = Field<decltype(RecordOf(Member))>{
    [](frmBase& form, int control, const auto& record) { form.FillField(control, record.*Member); },
    [](const frmBase& form, int control, auto& record) { form.ReadField(control, record.*Member); }};

/// A whole number of which only the beginning has to be one: "80 characters" is 80, "wide" is 0.
template <auto Member, WholeRange Range = WholeRange{}, WholeRange Told = Range>
inline constexpr auto EditsLeadingNumber =
    Field<decltype(RecordOf(Member))>{Edits<Member>.Fill, [](const frmBase& form, int control, auto& record) {
                                        record.*Member = form.LeadingWholeNumberOf(control, Range, Told);
                                      }};

template <class Record>
void frmBase::SetCaptions(std::span<const Binding<Record>> table) {
  for (const Binding<Record>& row : table) {
    if (row.Caption != Binding<Record>::kNoCaption) {
      SetCaption(row.Control, row.Caption);
    }
  }
}

template <class Record>
void frmBase::Fill(std::span<const Binding<Record>> table, const Record& record) {
  for (const Binding<Record>& row : table) {
    if (row.Edits.Fill != nullptr) {
      row.Edits.Fill(*this, row.Control, record);
    }
  }
}

template <class Record>
void frmBase::Read(std::span<const Binding<Record>> table, Record& record) const {
  for (const Binding<Record>& row : table) {
    if (row.Edits.Read != nullptr) {
      row.Edits.Read(*this, row.Control, record);
    }
  }
}

}  // namespace folivant
