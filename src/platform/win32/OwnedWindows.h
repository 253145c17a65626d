// Owners of what windows, drawing, printing and dragging open.
#pragma once

#include "platform/win32/Owned.h"

#include <commctrl.h>
#include <ole2.h>
#include <winspool.h>

namespace folivant::platform {

/// A kind whose empty value is null.
template <class Handle>
struct NullKind {
  using Raw = Handle;
  static Raw Empty() { return nullptr; }
};

struct BitmapKind : NullKind<HBITMAP> {
  static void Close(Raw bitmap) { DeleteObject(bitmap); }
};
using OwnedBitmap = Owned<BitmapKind>;

struct FontKind : NullKind<HFONT> {
  static void Close(Raw font) { DeleteObject(font); }
};
using OwnedFont = Owned<FontKind>;

/// A context that was created: in memory or of a printer. That of a window is a WindowContext.
struct DeviceContextKind : NullKind<HDC> {
  static void Close(Raw dc) { DeleteDC(dc); }
};
using OwnedDeviceContext = Owned<DeviceContextKind>;

struct HookKind : NullKind<HHOOK> {
  static void Close(Raw hook) { UnhookWindowsHookEx(hook); }
};
using OwnedHook = Owned<HookKind>;

struct ImageListKind : NullKind<HIMAGELIST> {
  static void Close(Raw list) { ImageList_Destroy(list); }
};
using OwnedImageList = Owned<ImageListKind>;

struct PrinterKind : NullKind<HANDLE> {
  static void Close(Raw printer) { ClosePrinter(printer); }
};
using OwnedPrinter = Owned<PrinterKind>;

/// What the shell hands out.
struct TaskMemoryKind : NullKind<void*> {
  static void Close(Raw memory) { CoTaskMemFree(memory); }
};
using OwnedTaskMemory = Owned<TaskMemoryKind>;

/// A window that is registered for drops.
struct DropWindowKind : NullKind<HWND> {
  static void Close(Raw window) { RevokeDragDrop(window); }
};
using OwnedDropWindow = Owned<DropWindowKind>;

template <class Interface>
struct InterfaceKind : NullKind<Interface*> {
  static void Close(Interface* object) { object->Release(); }
};
template <class Interface>
using OwnedInterface = Owned<InterfaceKind<Interface>>;

/// The context of a window, or of the screen for null.
class WindowContext {
 public:
  explicit WindowContext(HWND window) : window_(window), dc_(GetDC(window)) {}
  ~WindowContext() { ReleaseDC(window_, dc_); }
  WindowContext(const WindowContext&) = delete;
  WindowContext& operator=(const WindowContext&) = delete;
  HDC Get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

/// What is selected into a device context. At the end the object that was selected before comes back, so that the
/// selected ones can go; the context must still be there then.
class Selection {
 public:
  explicit Selection(HDC dc) : dc_(dc) {}
  Selection(HDC dc, HGDIOBJ object) : dc_(dc) { Select(object); }
  ~Selection() {
    if (before_ != nullptr) {
      SelectObject(dc_, before_);
    }
  }
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;

  /// Takes the place of what was selected last; all objects are of one type.
  void Select(HGDIOBJ object) {
    const HGDIOBJ last = SelectObject(dc_, object);
    if (before_ == nullptr) {
      before_ = last;
    }
  }

 private:
  HDC dc_;
  HGDIOBJ before_ = nullptr;
};

/// What a source of dragged data gave away.
class OwnedMedium {
 public:
  explicit OwnedMedium(const STGMEDIUM& medium) : medium_(medium) {}
  ~OwnedMedium() { ReleaseStgMedium(&medium_); }
  OwnedMedium(const OwnedMedium&) = delete;
  OwnedMedium& operator=(const OwnedMedium&) = delete;
  HGLOBAL Memory() const { return medium_.hGlobal; }

 private:
  STGMEDIUM medium_;
};

/// Global memory that has not been given away yet.
struct GlobalKind : NullKind<HGLOBAL> {
  static void Close(Raw memory) { GlobalFree(memory); }
};
using OwnedGlobal = Owned<GlobalKind>;

/// The clipboard, opened by this thread or not.
struct ClipboardKind {
  using Raw = bool;
  static Raw Empty() { return false; }
  static void Close(Raw) { CloseClipboard(); }
};
using OwnedClipboard = Owned<ClipboardKind>;

/// A window that nobody sees and that is no dialog.
struct HelperKind : NullKind<HWND> {
  static void Close(Raw window) { DestroyWindow(window); }
};
using OwnedHelper = Owned<HelperKind>;

/// A block of global memory, held in its place.
class LockedMemory {
 public:
  explicit LockedMemory(HGLOBAL memory) : memory_(memory), address_(GlobalLock(memory)) {}
  ~LockedMemory() {
    if (address_ != nullptr) {
      GlobalUnlock(memory_);
    }
  }
  LockedMemory(const LockedMemory&) = delete;
  LockedMemory& operator=(const LockedMemory&) = delete;
  /// Null when it cannot be locked.
  void* Address() const { return address_; }

 private:
  HGLOBAL memory_;
  void* address_;
};

}  // namespace folivant::platform
