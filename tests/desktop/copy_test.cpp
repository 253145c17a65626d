// Copying from the main window: the listing and the directory, by keys and from the system menu.
#include "desktop/MainWindow.h"
#include "platform/win32/OwnedWindows.h"

namespace folivant::desktop {
namespace {

constexpr UINT kShowSystemMenu = 0x313;  // what the task bar sends for it

class Copying : public MainWindowTest {
 protected:
  Copying() { Put(L"before"); }

  /// The clipboard, held for as long as the result lives.
  static platform::OwnedClipboard Hold(HWND owner = nullptr) {
    EXPECT_TRUE(WaitUntil([owner] { return OpenClipboard(owner) != 0; }));
    return platform::OwnedClipboard(true);
  }
  static std::wstring Copied() {
    const platform::OwnedClipboard held = Hold();
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    if (memory == nullptr) {
      return {};
    }
    const platform::LockedMemory locked(memory);
    return static_cast<const wchar_t*>(locked.Address());
  }
  static void ExpectStays(std::wstring_view text) {
    EXPECT_FALSE(WaitUntil([text] { return Copied() != text; }, 1'000)) << testing::PrintToString(Copied());
  }
  /// But for letter case, which listings change.
  static void ExpectCopied(const std::wstring& expected) {
    EXPECT_TRUE(WaitUntil([] { return Copied() != L"before"; }));
    EXPECT_EQ(lstrcmpiW(Copied().c_str(), expected.c_str()), 0) << testing::PrintToString(Copied());
  }
  static void PressCopy(bool shift = false) { PressKey('C', false, shift, true); }

  /// A folder with one file whose name no code page holds, listed as full paths.
  std::wstring FewArgument() const {
    scratch.File(L"Few\\" + kName);
    return L"/f " + scratch.FilterFile(L"few.fvf", {"Format=4"}) + L" /d " + scratch.Path() + L"\\Few";
  }
  std::wstring FewListing() const { return scratch / L"Few\\" + kName + L"\r\n"; }
  const std::wstring kName = L"\u03A9 \u65E5\u672C \U0001D11E.txt";

 private:
  static void Put(std::wstring_view text) {
    const platform::OwnedHelper owner(
        CreateWindowExW(0, L"Static", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr));
    platform::OwnedGlobal memory(GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t)));
    {
      const platform::LockedMemory locked(memory.Get());
      auto* const target = static_cast<wchar_t*>(locked.Address());
      target[text.copy(target, text.size())] = L'\0';
    }
    const platform::OwnedClipboard held = Hold(owner.Get());
    EmptyClipboard();
    EXPECT_NE(SetClipboardData(CF_UNICODETEXT, memory.Release()), nullptr);
  }
};

TEST_F(Copying, ControlCCopiesTheListingWithEveryCharacterAndDoesNothingElse) {
  wchar_t temporary[MAX_PATH];
  GetTempPathW(MAX_PATH, temporary);
  const std::wstring screenFile = std::wstring(temporary) + L"~fv00001.tmp";
  DeleteFileW(screenFile.c_str());
  const Program program(FewArgument());
  const Window main = Main(program);
  main.Click(optScreen);
  main.Activate();
  PressCopy();
  ExpectCopied(FewListing());
  EXPECT_TRUE(main.StaysReady()) << "the window stays";
  EXPECT_TRUE(WaitUntil([&] { return program.Windows().size() == 1; })) << "without a message";
  EXPECT_FALSE(Exists(screenFile)) << "nothing is written for the viewer";
  EXPECT_TRUE(main.IsChecked(optScreen));
  EXPECT_EQ(ReadStore(L"Settings", L"TextWidth"), std::nullopt) << "no setting is saved";
  Close(program, main);
  EXPECT_EQ(lstrcmpiW(Copied().c_str(), FewListing().c_str()), 0) << "outlives the program";
}

TEST_F(Copying, TheLastEntryOfTheSystemMenuDoesTheSame) {
  const Program program(FewArgument());
  const Window main = Main(program);
  main.Activate();
  const RECT frame = main.Rectangle();
  PostMessageW(main.Handle(), kShowSystemMenu, 0, MAKELPARAM(frame.left, frame.top));
  ASSERT_TRUE(WaitUntil([&] {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(main.Handle(), nullptr), &info);
    return (info.flags & GUI_INMENUMODE) != 0;
  }));
  PressKey(VK_UP);
  PressKey(VK_RETURN);
  ExpectCopied(FewListing());
  Close(program, main);
}

TEST_F(Copying, ControlShiftCCopiesTheDirectory) {
  const Program program(Argument());
  const Window main = Main(program);
  main.Activate();
  PressCopy(true);
  ExpectCopied(Data());
  Close(program, main);
}

TEST_F(Copying, ACancelledOneLeavesTheClipboardAsItIs) {
  const Program program(LargeTree());
  const Window main = Main(program);
  main.Activate();
  PressCopy();
  const Window progress = program.WaitForWindow(Message(203), main);
  EXPECT_FALSE(main.IsEnabled()) << "inert during the run";
  progress.Press(cmdCancel);
  program.WaitForBox(progress).Answer(IDYES);
  EXPECT_TRUE(progress.WaitUntilGone());
  EXPECT_TRUE(main.StaysReady());
  EXPECT_TRUE(WaitUntil([&] { return program.Windows().size() == 1; })) << "without a message";
  EXPECT_EQ(Copied(), L"before");
  Close(program, main);
}

TEST_F(Copying, InATextBoxOfADialogTheKeysCopyTheSelectedText) {
  const Program program(Argument());
  const Window main = Main(program);
  const Window filter = Open(program, main, cmdFilter, 200);
  filter.SetText(txtName, L"*.selected");
  filter.Activate();
  filter.Control(txtName).ClickInside();  // which selects all of it
  EXPECT_TRUE(
      WaitUntil([&] { return SendMessageW(filter.Control(txtName).Handle(), EM_GETSEL, 0, 0) == MAKELONG(0, 10); }));
  PressCopy();
  ExpectCopied(L"*.selected");
  ExpectStays(L"*.selected");
  filter.Answer(cmdCancel);
  Close(program, main);
}

TEST_F(Copying, AClipboardThatIsHeldIsToldOnceAndMayBeTriedAgain) {
  const Program program(FewArgument());
  const Window main = Main(program);
  main.Activate();
  {
    const platform::OwnedClipboard held = Hold();
    PressCopy();
    const Window box = program.WaitForWindow(L"Folivant", main);  // the progress window may still be there
    const std::wstring sentence = Message(163);
    EXPECT_EQ(box.BoxText().substr(0, sentence.find(L"%2")), sentence.substr(0, sentence.find(L"%2")));
    box.Answer(IDOK);
  }
  EXPECT_TRUE(main.StaysReady());
  EXPECT_EQ(program.Windows().size(), 1U);
  EXPECT_EQ(Copied(), L"before");
  main.Activate();
  PressCopy();
  ExpectCopied(FewListing());
  Close(program, main);
}

}  // namespace
}  // namespace folivant::desktop
