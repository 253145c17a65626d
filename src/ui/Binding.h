// The table of a dialog's controls: one row for each, which binds it to the text that names it and to the field that it
// edits (ui/Fields.h). Setting the texts, filling the controls and reading them back walk the table; ui/frmBase.h puts
// it to work in a window.
#pragma once

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "ui/Fields.h"

namespace folivant {

using platform::kWindow;

inline constexpr TextId kNoCaption = static_cast<TextId>(-1);
/// The last row of a group of option buttons may stand for "none of them".
inline constexpr int kNoControl = -1;

/// A control's number, the text that names it, and the field that it edits, if any. The caption goes to the control's
/// label where there is one (the control with the number LABEL_OF(control)), otherwise to the control itself; that of
/// kWindow is the window's title. A row for cmdHelp makes the button open the help.
template <class Record>
struct Binding {
  int Control;
  TextId Caption = kNoCaption;
  Field<Record> Edits = {};
};

/// For tables that only set captions.
struct NoRecord {};

/// How a message calls the field: its caption without the mnemonic's "&" and without a colon and blanks at the end.
std::wstring FieldNameOf(const Controls& controls, int control);
/// The sentence about what was typed.
std::wstring ProblemOf(const Controls& controls, const FieldError& error, const Messages& texts);
void SetCaption(Controls& controls, int control, const std::wstring& caption);

// The walks over a table. `offset` is added to its numbers where several rows of controls look alike.

/// Captions and the items of lists.
template <class Record>
void SetTexts(Controls& controls, std::span<const Binding<Record>> table, const Messages& texts) {
  for (const Binding<Record>& row : table) {
    if (row.Caption != kNoCaption) {
      SetCaption(controls, row.Control, texts[row.Caption]);
    }
    if (row.Edits.AddItems != nullptr) {
      row.Edits.AddItems(controls, row.Control, texts);
    }
  }
}

/// The rows of a table that share one field: its option buttons.
template <class Record>
using ButtonGroup = std::vector<const Binding<Record>*>;

/// The group to which `row` belongs.
template <class Record>
ButtonGroup<Record> GroupOf(std::span<const Binding<Record>> table, const Binding<Record>& row) {
  ButtonGroup<Record> group;
  for (const Binding<Record>& each : table) {
    if (each.Edits.Group == row.Edits.Group) {
      group.push_back(&each);
    }
  }
  return group;
}

/// Calls `visit` with each group of the table.
template <class Record, class Visit>
void ForEachGroup(std::span<const Binding<Record>> table, Visit visit) {
  for (const Binding<Record>& row : table) {
    if (row.Edits.Group == nullptr) {
      continue;
    }
    const ButtonGroup<Record> group = GroupOf(table, row);
    if (group.front() == &row) {
      visit(group);
    }
  }
}

/// Sets the button `control` alone among those of its group; none of them with kNoControl.
template <class Record>
void ChooseAmong(Controls& controls, const ButtonGroup<Record>& group, int control, int offset) {
  std::vector<int> buttons;
  for (const Binding<Record>* const row : group) {
    if (row->Control != kNoControl) {
      buttons.push_back(row->Control + offset);
    }
  }
  controls.Choose(buttons, control == kNoControl ? kNoControl : control + offset);
}

/// Sets an option button, as a click on it would.
template <class Record>
void ChooseButton(Controls& controls, std::span<const Binding<Record>> table, int button) {
  const auto row =
      std::find_if(table.begin(), table.end(), [=](const Binding<Record>& each) { return each.Control == button; });
  ChooseAmong(controls, GroupOf(table, *row), button, 0);
}

template <class Record>
void Fill(Controls& controls, std::span<const Binding<Record>> table, const Record& record, int offset = 0) {
  for (const Binding<Record>& row : table) {
    if (row.Edits.Fill != nullptr) {
      row.Edits.Fill(controls, row.Control + offset, record);
    }
  }
  ForEachGroup(table, [&](const ButtonGroup<Record>& group) {
    const auto meant =
        std::find_if(group.begin(), group.end(), [&](const auto* each) { return each->Edits.IsMeant(record); });
    ChooseAmong(controls, group, meant == group.end() ? kNoControl : (*meant)->Control, offset);
  });
}

/// Throws FieldError, with `record` partly read: read into a copy.
template <class Record>
void Read(const Controls& controls, std::span<const Binding<Record>> table, Record& record, int offset = 0) {
  for (const Binding<Record>& row : table) {
    if (row.Edits.Read != nullptr) {
      row.Edits.Read(controls, row.Control + offset, record);
    }
  }
  ForEachGroup(table, [&](const ButtonGroup<Record>& group) {
    const auto chosen = std::find_if(group.begin(), group.end() - 1, [&](const auto* each) {
      return each->Control != kNoControl && controls.Checked(each->Control + offset);
    });
    (*chosen)->Edits.Take(record);  // the last one when none is set
  });
}

}  // namespace folivant
