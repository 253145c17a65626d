// The controls of a window as texts, marks and choices, each named by its number. Dialogs answer it; tests play it
// without a window.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/Clock.h"

namespace folivant::platform {

/// The window itself, where a control's text is meant.
inline constexpr int kWindow = 0;
/// The position in a list in which nothing is selected; others count from 0.
inline constexpr int kNothingSelected = -1;

class Controls {
 public:
  virtual ~Controls() = default;
  virtual bool Has(int control) const = 0;
  virtual std::wstring TextOf(int control) const = 0;
  virtual void SetText(int control, const std::wstring& text) = 0;

  // Check boxes and option buttons
  virtual bool Checked(int button) const = 0;
  virtual void SetChecked(int button, bool checked) = 0;
  /// Checks `button` alone among `buttons`, or none of them when it is not one.
  virtual void Choose(std::span<const int> buttons, int button) = 0;

  // Drop-down lists and list boxes
  virtual void AddItem(int list, const std::wstring& text) = 0;
  virtual std::vector<std::wstring> ItemsOf(int list) const = 0;
  /// A position without an item selects nothing.
  virtual void Select(int list, int position) = 0;
  virtual int Selected(int list) const = 0;

  // Date pickers, whose time of day means nothing
  virtual platform::CalendarTime DayOf(int picker) const = 0;
  virtual void SetDay(int picker, const platform::CalendarTime& day) = 0;
};

}  // namespace folivant::platform
