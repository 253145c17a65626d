// The controls of a window that nobody sees: what a dialog puts into them, and what a user makes of that.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/Controls.h"

namespace folivant::fakes {

class FakeControls final : public platform::Controls {
 public:
  /// Every control is there; of labels only those named here.
  std::set<int> Labels;
  std::map<int, std::wstring> TextsOf;
  std::set<int> CheckedButtons;
  std::vector<int> LastGroup;  ///< the buttons of the group that was chosen from last
  std::map<int, std::vector<std::wstring>> Items;
  std::map<int, int> Positions;
  std::map<int, platform::CalendarTime> Days;

  bool Has(int control) const override { return control < kFirstLabel || Labels.contains(control); }
  std::wstring TextOf(int control) const override {
    const auto found = TextsOf.find(control);
    return found == TextsOf.end() ? std::wstring() : found->second;
  }
  void SetText(int control, const std::wstring& text) override { TextsOf[control] = text; }
  bool Checked(int button) const override { return CheckedButtons.contains(button); }
  void SetChecked(int button, bool checked) override {
    checked ? static_cast<void>(CheckedButtons.insert(button)) : static_cast<void>(CheckedButtons.erase(button));
  }
  void Choose(std::span<const int> buttons, int button) override {
    LastGroup.assign(buttons.begin(), buttons.end());
    for (const int each : buttons) {
      SetChecked(each, each == button);
    }
  }
  void AddItem(int list, const std::wstring& text) override { Items[list].push_back(text); }
  std::vector<std::wstring> ItemsOf(int list) const override {
    const auto found = Items.find(list);
    return found == Items.end() ? std::vector<std::wstring>() : found->second;
  }
  void Select(int list, int position) override {
    const bool there = position >= 0 && position < static_cast<int>(Items[list].size());
    Positions[list] = there ? position : platform::kNothingSelected;
  }
  int Selected(int list) const override {
    const auto found = Positions.find(list);
    return found == Positions.end() ? platform::kNothingSelected : found->second;
  }
  platform::CalendarTime DayOf(int picker) const override { return Days.at(picker); }
  void SetDay(int picker, const platform::CalendarTime& day) override { Days[picker] = day; }

 private:
  static constexpr int kFirstLabel = 5000;  ///< LABEL_OF
};

}  // namespace folivant::fakes
