#include "desktop/DragSource.h"

#include <shlobj.h>

#include <thread>

#ifdef __GNUC__
// Interfaces of the system have no virtual destructor.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

namespace folivant::desktop {
namespace {

class Source final : public IDropSource {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
    *out = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDropSource) ? this : nullptr;
    return *out != nullptr ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escape, DWORD keys) override {
    return escape ? DRAGDROP_S_CANCEL : (keys & MK_LBUTTON) == 0 ? DRAGDROP_S_DROP : S_OK;
  }
  HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD) override { return DRAGDROP_S_USEDEFAULTCURSORS; }
};

IDataObject* ObjectOf(const std::wstring& path) {
  PIDLIST_ABSOLUTE list = nullptr;
  IShellFolder* folder = nullptr;
  PCUITEMID_CHILD child = nullptr;
  IDataObject* object = nullptr;
  if (SUCCEEDED(SHParseDisplayName(path.c_str(), nullptr, &list, 0, nullptr)) &&
      SUCCEEDED(SHBindToParent(list, IID_IShellFolder, reinterpret_cast<void**>(&folder), &child))) {
    folder->GetUIObjectOf(nullptr, 1, &child, IID_IDataObject, nullptr, reinterpret_cast<void**>(&object));
    folder->Release();
  }
  CoTaskMemFree(list);
  return object;
}

struct Drag {
  IDataObject* Object = nullptr;
  DWORD Effect = DROPEFFECT_NONE;
  bool Done = false;
};

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* drag = reinterpret_cast<Drag*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (message == WM_LBUTTONDOWN && drag != nullptr) {
    Source source;
    DWORD effect = DROPEFFECT_NONE;
    const HRESULT result = DoDragDrop(drag->Object, &source, DROPEFFECT_COPY | DROPEFFECT_MOVE, &effect);
    drag->Effect = result == DRAGDROP_S_DROP ? effect : DWORD{DROPEFFECT_NONE};
    drag->Done = true;
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

/// As a hand would: press, move in steps, let go.
void DragMouse(Window source, POINT to) {
  const POINT from = source.BringMouseOver().value_or(POINT{});
  MoveMouse(from, MOUSEEVENTF_LEFTDOWN);
  constexpr int kSteps = 8;
  for (int step = 1; step <= kSteps; ++step) {
    Sleep(100);
    MoveMouse({from.x + (to.x - from.x) * step / kSteps, from.y + (to.y - from.y) * step / kSteps});
  }
  Sleep(300);
  MoveMouse(to, MOUSEEVENTF_LEFTUP);
}

}  // namespace

DWORD DragTo(const std::wstring& path, Window target) {
  const POINT aim = target.BringMouseOver().value_or(POINT{});  // at rest before anything is dragged to it
  OleInitialize(nullptr);
  Drag drag{ObjectOf(path)};
  EXPECT_NE(drag.Object, nullptr);
  WNDCLASSW kind{};
  kind.lpfnWndProc = Procedure;
  kind.lpszClassName = L"FolivantDragSource";
  RegisterClassW(&kind);
  const HWND window = CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, kind.lpszClassName, L"Drag",
                                      WS_POPUP | WS_VISIBLE, 20, 20, 80, 80, nullptr, nullptr, nullptr, nullptr);
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&drag));
  std::thread mouse([&] { DragMouse(Window(window), aim); });
  WaitUntil([&] {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
      DispatchMessageW(&message);
    }
    return drag.Done;
  });
  mouse.join();
  DestroyWindow(window);
  drag.Object->Release();
  OleUninitialize();
  return drag.Effect;
}

}  // namespace folivant::desktop
