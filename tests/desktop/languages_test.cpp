// Every window in every language: no caption is wider than its control.
#include <filesystem>

#include "desktop/MainWindow.h"

namespace folivant::desktop {
namespace {

/// The font of all windows of the program: the system's message font.
class MessageFont {
 public:
  MessageFont() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    font_ = CreateFontIndirectW(&metrics.lfMessageFont);
    screen_ = CreateCompatibleDC(nullptr);
    SelectObject(screen_, font_);
  }
  ~MessageFont() {
    DeleteDC(screen_);
    DeleteObject(font_);
  }
  MessageFont(const MessageFont&) = delete;
  MessageFont& operator=(const MessageFont&) = delete;

  LONG WidthOf(const std::wstring& text) const {
    RECT box{};
    DrawTextW(screen_, text.c_str(), -1, &box, DT_CALCRECT | DT_SINGLELINE);
    return box.right;
  }

 private:
  HFONT font_;
  HDC screen_;
};

class Languages : public MainWindowTest, public testing::WithParamInterface<std::wstring> {
 protected:
  /// Captions of buttons and labels, in pages too; labels that shorten or wrap their text are passed over, and so are
  /// bare option buttons.
  void ExpectNothingClipped(Window window, const std::wstring& where) const {
    for (HWND each = GetWindow(window.Handle(), GW_CHILD); each != nullptr; each = GetWindow(each, GW_HWNDNEXT)) {
      const Window control(each);
      const std::wstring kind = control.ClassName();
      if (kind == L"#32770") {
        ExpectNothingClipped(control, where);
      }
      const LONG_PTR style = GetWindowLongPtrW(each, GWL_STYLE);
      const RECT box = control.Rectangle();
      const LONG width = box.right - box.left;
      const bool label = kind == L"Static" && (style & SS_TYPEMASK) <= SS_RIGHT && (style & SS_ELLIPSISMASK) == 0 &&
                         box.bottom - box.top < 25;
      const bool button = kind == L"Button" && width > 22;
      if (label || button) {
        const bool push = (style & BS_TYPEMASK) <= BS_DEFPUSHBUTTON;
        const LONG padding = label ? 0 : push ? 8 : 16;
        EXPECT_LE(font.WidthOf(control.Text()) + padding, width)
            << testing::PrintToString(where) << " " << testing::PrintToString(control.Text());
      }
    }
  }

  MessageFont font;
};

TEST_P(Languages, FitIntoEveryWindow) {
  WriteStore(L"Settings", L"Language", GetParam());
  const Program program(Argument());
  const Window main = Main(program);
  EXPECT_EQ(main.TextOf(cmdBrowse), Message(4, GetParam())) << "the language is in use";
  ExpectNothingClipped(main, L"main window");
  for (const auto& [button, title] : {std::pair(cmdFilter, 200), {cmdFormat, 201}, {cmdOptions, 204}}) {
    main.Press(button);
    const Window dialog = program.WaitForWindow(Message(title, GetParam()), main);
    ExpectNothingClipped(dialog, dialog.Text());
    if (button == cmdFormat) {
      dialog.Press(Command1);
      const Window columns = program.WaitForWindow(Message(202, GetParam()), dialog);
      ExpectNothingClipped(columns, columns.Text());
      columns.Answer(cmdCancel);
    }
    dialog.Answer(cmdCancel);
  }
  Close(program, main);
}

std::vector<std::wstring> LanguageFiles() {
  std::vector<std::wstring> names;
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(path).parent_path())) {
    if (entry.path().extension() == L".ini") {
      names.push_back(entry.path().filename());
    }
  }
  return names;
}

INSTANTIATE_TEST_SUITE_P(All, Languages, testing::ValuesIn(LanguageFiles()),
                         [](const auto& each) { return std::filesystem::path(each.param).stem().string(); });

}  // namespace
}  // namespace folivant::desktop
