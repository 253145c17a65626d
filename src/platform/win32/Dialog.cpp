// The window side of a dialog: creation, messages, pages, and texts in and out of its controls.
#include "platform/win32/Dialog.h"

#include <uxtheme.h>

#include <algorithm>

#include "platform/win32/DialogFit.h"
#include "platform/win32/DialogTemplate.h"
#include "platform/win32/OwnedWindows.h"
#include "platform/win32/WindowSystem.h"

namespace folivant::platform {
namespace {

constexpr int kProgramIcon = 1;  // number of the icon resource

std::vector<HWND>& ModelessWindows() {
  static std::vector<HWND> windows;
  return windows;
}

HINSTANCE Program() {
  return GetModuleHandleW(nullptr);
}

bool IsEdit(HWND control) {
  wchar_t name[16] = {};
  GetClassNameW(control, name, 16);
  return lstrcmpiW(name, L"Edit") == 0;
}

}  // namespace

/// The window of a page; everything that its controls report goes to the dialog.
class Dialog::Page {
 public:
  Page(Dialog& dialog, int resource) : dialog_(dialog) {
    const std::vector<DWORD> made = TemplateWithSystemFont(resource);
    window_ = CreateDialogIndirectParamW(Program(), AsTemplate(made), dialog.window_, Procedure,
                                         reinterpret_cast<LPARAM>(this));
  }
  HWND Window() const { return window_; }

 private:
  static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
      SetWindowLongPtrW(window, DWLP_USER, lParam);
      EnableThemeDialogTexture(window, ETDT_ENABLETAB);
      return FALSE;
    }
    const auto* page = reinterpret_cast<const Page*>(GetWindowLongPtrW(window, DWLP_USER));
    if (page != nullptr && (message == WM_COMMAND || message == WM_NOTIFY)) {
      return page->dialog_.Dispatch(message, wParam, lParam);
    }
    return FALSE;
  }

  Dialog& dialog_;
  HWND window_ = nullptr;
};

/// Shows a modal window the keys before its controls get them; the system runs its loop.
class Dialog::KeyWatch {
 public:
  explicit KeyWatch(Dialog& dialog)
      : outer_(std::exchange(current_, &dialog)),
        hook_(SetWindowsHookExW(WH_MSGFILTER, Procedure, nullptr, GetCurrentThreadId())) {}
  ~KeyWatch() { current_ = outer_; }
  KeyWatch(const KeyWatch&) = delete;
  KeyWatch& operator=(const KeyWatch&) = delete;

 private:
  static LRESULT CALLBACK Procedure(int code, WPARAM wParam, LPARAM lParam) {
    const auto& message = *reinterpret_cast<const MSG*>(lParam);
    if (code == MSGF_DIALOGBOX && current_->UsesKey(message)) {
      return TRUE;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }

  static inline Dialog* current_ = nullptr;
  Dialog* outer_;
  OwnedHook hook_;
};

Dialog::Dialog(int resource) : resource_(resource) {}

Dialog::~Dialog() {
  if (window_ != nullptr) {
    SetWindowLongPtrW(window_, DWLP_USER, 0);
    DestroyWindow(window_);
    Remove();
  }
}

int Dialog::ShowModal(HWND owner) {
  PrepareWindows();
  modal_ = true;
  const std::vector<DWORD> made = TemplateWithSystemFont(resource_);
  const KeyWatch watch(*this);
  const INT_PTR result =
      DialogBoxIndirectParamW(Program(), AsTemplate(made), owner, Procedure, reinterpret_cast<LPARAM>(this));
  if (result == -1) {
    ThrowNoWindow();
  }
  return static_cast<int>(result);
}

void Dialog::Create(HWND owner) {
  PrepareWindows();
  modal_ = false;
  const std::vector<DWORD> made = TemplateWithSystemFont(resource_);
  CreateDialogIndirectParamW(Program(), AsTemplate(made), owner, Procedure, reinterpret_cast<LPARAM>(this));
  if (window_ == nullptr) {
    ThrowNoWindow();
  }
  ModelessWindows().push_back(window_);
}

void Dialog::Close(int result) {
  if (modal_) {
    EndDialog(window_, result);
  } else if (window_ != nullptr) {
    DestroyWindow(window_);
  }
}

void Dialog::Remove() {
  std::erase(ModelessWindows(), window_);
  window_ = nullptr;
  toolTips_ = nullptr;
  filled_ = false;
  focusGiven_ = false;
  handlers_.clear();
  pages_.clear();
  pictures_.clear();
}

HWND Dialog::Item(int control) const {
  if (control == kWindow) {
    return window_;
  }
  if (const HWND own = GetDlgItem(window_, control); own != nullptr) {
    return own;
  }
  for (const auto& page : pages_) {
    if (const HWND onPage = GetDlgItem(page->Window(), control); onPage != nullptr) {
      return onPage;
    }
  }
  return nullptr;
}

void Dialog::On(int control, int code, Handler handler) {
  handlers_[{control, code}] = std::move(handler);
}

HWND Dialog::AddPage(int resource) {
  pages_.push_back(std::make_unique<Page>(*this, resource));
  return pages_.back()->Window();
}

Dialog* Dialog::Of(HWND window) {
  return reinterpret_cast<Dialog*>(GetWindowLongPtrW(window, DWLP_USER));
}

bool Dialog::UsesKey(const MSG& message) {
  return message.message == WM_KEYDOWN && filled_ && GetAncestor(message.hwnd, GA_ROOT) == window_ &&
         Form_KeyDown(message.wParam);
}

INT_PTR CALLBACK Dialog::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    auto* created = reinterpret_cast<Dialog*>(lParam);
    created->window_ = window;
    SetWindowLongPtrW(window, DWLP_USER, lParam);
    created->Load();
    return created->focusGiven_ ? FALSE : TRUE;
  }
  Dialog* const dialog = Of(window);
  if (dialog == nullptr) {
    return FALSE;
  }
  if (message == WM_NCDESTROY) {
    dialog->Remove();
    return FALSE;
  }
  return dialog->Dispatch(message, wParam, lParam);
}

/// For the title bar, the task bar and the list of windows.
void Dialog::SetIcons() {
  for (const auto& [size, metric] : {std::pair(ICON_BIG, SM_CXICON), std::pair(ICON_SMALL, SM_CXSMICON)}) {
    const int side = GetSystemMetrics(metric);
    const HANDLE icon =
        LoadImageW(Program(), MAKEINTRESOURCEW(kProgramIcon), IMAGE_ICON, side, side, LR_DEFAULTCOLOR | LR_SHARED);
    SendMessageW(window_, WM_SETICON, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(icon));
  }
}

void Dialog::Load() {
  try {
    SetIcons();
    Form_Load();
    if (pages_.empty()) {
      FitToTexts();
    }
    Centre();
    filled_ = true;
  } catch (const std::exception& problem) {
    ShowProblem(problem);
    PostMessageW(window_, WM_CLOSE, 0, 0);
  }
}

INT_PTR Dialog::Dispatch(UINT message, WPARAM wParam, LPARAM lParam) {
  try {
    LRESULT result = 0;
    if (filled_ && Form_Message(message, wParam, lParam, result)) {
      SetWindowLongPtrW(window_, DWLP_MSGRESULT, result);
      return TRUE;
    }
    switch (message) {
      case WM_COMMAND:
        return Notify(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
      case WM_NOTIFY: {
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        Notify(static_cast<int>(header->idFrom), static_cast<int>(header->code), header->hwndFrom);
        return FALSE;
      }
      case WM_TIMER:
        Form_Timer(wParam);
        return TRUE;
      case WM_HELP:
        ShowHelp();
        return TRUE;
      case WM_CLOSE:
        filled_ ? Form_QueryClose() : Close();
        return TRUE;
      case WM_DPICHANGED:
        // The system scales window and controls after this; pictures follow then.
        PostMessageW(window_, WM_APP, 0, 0);
        return FALSE;
      case WM_APP:
        ShowPicturesAnew();
        return TRUE;
      default:
        return FALSE;
    }
  } catch (const std::exception& problem) {
    ShowProblem(problem);
    return TRUE;
  }
}

bool Dialog::Notify(int control, int code, HWND sender) {
  if (code == EN_SETFOCUS && sender != nullptr && IsEdit(sender)) {
    // Posted, because a mouse click places the caret after this notification.
    PostMessageW(sender, EM_SETSEL, 0, -1);
  }
  if (!filled_ || (sender != nullptr && !IsWindowEnabled(sender))) {
    return false;
  }
  if (const auto found = handlers_.find({control, code}); found != handlers_.end()) {
    const Handler handler = found->second;  // a copy: the handler may end the window and with it the table
    handler();
    return true;
  }
  if (control == IDCANCEL && code == BN_CLICKED) {
    Form_QueryClose();
    return true;
  }
  return false;
}

bool LetWindowEventsThrough() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return false;
    }
    const auto takes = [&message](HWND window) {
      Dialog* const dialog = Dialog::Of(window);
      return (dialog != nullptr && dialog->UsesKey(message)) || IsDialogMessageW(window, &message) != 0;
    };
    const auto windows = ModelessWindows();  // a copy: handlers open and close windows
    if (std::none_of(windows.begin(), windows.end(), takes)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  return true;
}

void RunUntilClosed(const Dialog& window) {
  while (window.Window() != nullptr && WaitMessage() != 0 && LetWindowEventsThrough()) {
  }
}

}  // namespace folivant::platform
