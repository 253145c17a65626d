// What all dialogs of the program share on top of platform/win32/Dialog.h: the table of their controls, errors shown as
// sentences, and help. For frm*.cpp files only.
#pragma once

#include <cstddef>
#include <exception>

#include "platform/win32/Dialog.h"
#include "res/Controls.h"
#include "ui/Binding.h"
#include "ui/DialogContext.h"

namespace folivant {

/// A dialog that speaks the user's language.
class frmBase : public platform::Dialog {
 public:
  /// `resource` is the number of a dialog template.
  frmBase(int resource, const DialogContext& context) : Dialog(resource), context_(context) {}

 protected:
  const Messages& Texts() const { return context_.Texts; }
  /// For the dialogs that this one opens.
  const DialogContext& Context() const { return context_; }

  // The walks of ui/Binding.h over a table of this window's controls.
  template <class Record, std::size_t Rows>
  void SetTexts(const Binding<Record> (&table)[Rows]);
  template <class Record, std::size_t Rows>
  void Fill(const Binding<Record> (&table)[Rows], const Record& record, int offset = 0) {
    folivant::Fill<Record>(*this, table, record, offset);
  }
  /// Throws FieldError, with `record` partly read: read into a copy.
  template <class Record, std::size_t Rows>
  void Read(const Binding<Record> (&table)[Rows], Record& record, int offset = 0) const {
    folivant::Read<Record>(*this, table, record, offset);
  }
  /// Sets an option button, as a click on it would.
  template <class Record, std::size_t Rows>
  void ChooseButton(const Binding<Record> (&table)[Rows], int button) {
    folivant::ChooseButton<Record>(*this, table, button);
  }

  /// Brings a field into view before it gets the focus; for windows with pages.
  virtual void ShowField(int) {}

  void ShowHelp() override;
  /// A FieldError names the field and moves the focus to it; everything else is shown as its sentence.
  void ShowProblem(const std::exception& problem) noexcept override;

 private:
  DialogContext context_;
};

template <class Record, std::size_t Rows>
void frmBase::SetTexts(const Binding<Record> (&table)[Rows]) {
  folivant::SetTexts<Record>(*this, table, Texts());
  for (const Binding<Record>& row : table) {
    if (row.Control == cmdHelp) {
      OnClick(cmdHelp, [this] { ShowHelp(); });
    }
  }
}

}  // namespace folivant
