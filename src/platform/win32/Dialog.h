// The base of every window: one dialog procedure that finds its object and calls what the window registered for a
// control, an edge that no exception crosses, and the care that each window would otherwise repeat (system font, sizes
// that fit the texts, pictures for the screen's resolution, selection on focus, F1). Texts, records and the wording of
// errors belong to ui/frmBase.h.
#pragma once

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/Controls.h"
#include "platform/win32/OwnedWindows.h"
#include "platform/win32/Win32.h"

#include <commctrl.h>

namespace folivant::platform {

class Dialog : public Controls {
 public:
  /// `resource` is the number of a dialog template.
  explicit Dialog(int resource);
  ~Dialog() override;
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;

  HWND Window() const { return window_; }

  /// Runs the window until Close; `owner` is disabled meanwhile. Returns what Close was given.
  int ShowModal(HWND owner);
  /// Makes the window, hidden or visible as its template says, and returns at once.
  void Create(HWND owner);
  /// Ends either kind of window. A modeless one is destroyed; its object lives on.
  void Close(int result = 0);

  // Controls are named by their id and looked for in the window and in its pages.
  HWND Item(int control) const;
  bool Has(int control) const override;
  std::wstring TextOf(int control) const override;
  void SetText(int control, const std::wstring& text) override;
  bool Checked(int button) const override;
  void SetChecked(int button, bool checked) override;
  void Choose(std::span<const int> buttons, int button) override;
  void AddItem(int list, const std::wstring& text) override;
  std::vector<std::wstring> ItemsOf(int list) const override;
  void Select(int list, int position) override;
  int Selected(int list) const override;
  CalendarTime DayOf(int picker) const override;
  void SetDay(int picker, const CalendarTime& day) override;
  void Enable(int control, bool enabled);
  void SetFocusTo(int control);
  LRESULT Send(int control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  void SetToolTip(int control, const std::wstring& text);
  /// Shows a bitmap resource; the numbers 1000 and 2000 above it hold the same picture for 150 and 200 percent. In
  /// Form_Load a control that is too small for its picture grows.
  void SetPicture(int control, int resource);
  /// A length given for 96 dots per inch, in pixels of this window's screen.
  int Scaled(int length) const;
  /// The width of `text` in this window's font, in pixels; "&" is a letter like any other.
  int WidthOfText(const std::wstring& text) const;

 protected:
  using Handler = std::function<void()>;

  /// Fills the controls. Notifications before and during it are ignored.
  virtual void Form_Load() = 0;
  /// The close box, Alt+F4 or Escape without a cancel button.
  virtual void Form_QueryClose() { Close(); }
  virtual void Form_Timer(UINT_PTR) {}
  /// A key pressed in the window or one of its pages, as a virtual-key code, before its control gets it. True when it
  /// is used up. Must not throw.
  virtual bool Form_KeyDown(WPARAM) { return false; }
  /// The screen's resolution changed; called after the system has scaled the controls.
  virtual void Form_DpiChanged() {}
  /// Messages that the base does not know. True when handled, with the answer in `result`.
  virtual bool Form_Message(UINT, WPARAM, LPARAM, LRESULT&) { return false; }
  /// F1.
  virtual void ShowHelp() = 0;
  /// Tells the user about an error of a handler; called inside a catch clause with that exception. Must not throw.
  virtual void ShowProblem(const std::exception& problem) noexcept = 0;

  /// Calls `handler` when `control` reports `code` (BN_CLICKED, CBN_SELCHANGE, EN_CHANGE ... or, as negative numbers,
  /// the codes of WM_NOTIFY).
  void On(int control, int code, Handler handler);
  void OnClick(int control, Handler handler) { On(control, BN_CLICKED, std::move(handler)); }
  void OnDoubleClick(int control, Handler handler) { On(control, BN_DOUBLECLICKED, std::move(handler)); }

  /// A child dialog whose controls count as this window's own: a page of a tab strip. Hidden at first. Called in
  /// Form_Load before the controls are filled.
  HWND AddPage(int resource);
  /// Widens controls, and the window with them, until every caption fits. Done after Form_Load anyway; a window that
  /// needs its final sizes earlier calls it itself. The design keeps its columns: everything to the right of a widened
  /// control moves.
  void FitToTexts();
  /// The same for one page; returns its size in pixels.
  SIZE FitPageToTexts(HWND page);
  /// Makes a control larger by so many pixels, and moves or widens everything around it.
  void Grow(int control, SIZE by);
  /// Moves the window into the middle of its owner, or of the screen without one.
  void Centre();

 private:
  friend bool LetWindowEventsThrough();
  class KeyWatch;
  class Page;
  struct Picture {
    int Resource = 0;
    OwnedBitmap Bitmap;
  };
  static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  /// `window` was made by Create or ShowModal; null when it is not made yet, or gone.
  static Dialog* Of(HWND window);
  /// Whether the message is a key for this window that it uses up.
  bool UsesKey(const MSG& message);
  INT_PTR Dispatch(UINT message, WPARAM wParam, LPARAM lParam);
  void Load();
  void Remove();
  bool Notify(int control, int code, HWND sender);
  void SetIcons();
  void GrowToPicture(int control, SIZE picture);
  static void GrowWindow(HWND window, SIZE by);
  void ShowPicture(int control, Picture& picture);
  void ShowPicturesAnew();

  int resource_;
  HWND window_ = nullptr;
  HWND toolTips_ = nullptr;
  bool modal_ = false;
  bool filled_ = false;
  bool focusGiven_ = false;  ///< by Form_Load; otherwise the first control gets it
  std::map<std::pair<int, int>, Handler> handlers_;
  std::vector<std::unique_ptr<Page>> pages_;
  std::map<int, Picture> pictures_;  ///< by their controls
};

/// Lets pending events of all windows run and returns when none is left; false when the program has been asked to end.
bool LetWindowEventsThrough();
/// Runs events until `window` is destroyed or the program is asked to end.
void RunUntilClosed(const Dialog& window);

}  // namespace folivant::platform
