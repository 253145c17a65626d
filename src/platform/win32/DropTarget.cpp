// A window that takes a dropped file or folder.
#include "platform/win32/Shell.h"

#include <shellapi.h>
#include <shlobj.h>

#include <exception>

#ifdef __GNUC__
// Interfaces of the system have no virtual destructor; objects behind them delete themselves.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

namespace folivant::platform {
namespace {

FORMATETC FilesFormat() {
  return {CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

/// The first file-system item of a drop; empty when the object holds none.
std::wstring FirstItem(IDataObject* object) {
  FORMATETC format = FilesFormat();
  STGMEDIUM medium{};
  if (FAILED(object->GetData(&format, &medium))) {
    return {};
  }
  const OwnedMedium owned(medium);
  const LockedMemory locked(owned.Memory());
  std::wstring path;
  if (auto* drop = static_cast<HDROP>(locked.Address()); drop != nullptr) {
    path.resize(DragQueryFileW(drop, 0, nullptr, 0));
    DragQueryFileW(drop, 0, path.data(), static_cast<UINT>(path.size()) + 1);
  }
  return path;
}

}  // namespace

class DropTarget::Target final : public IDropTarget {
 public:
  Target(HWND window, std::function<void(const std::wstring&)> dropped)
      : frame_(GetAncestor(window, GA_ROOT)), dropped_(std::move(dropped)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
    const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDropTarget);
    *out = known ? this : nullptr;
    if (known) {
      AddRef();
    }
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) {
      delete this;
    }
    return left;
  }

  HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* object, DWORD, POINTL, DWORD* effect) override {
    FORMATETC format = FilesFormat();
    accepts_ = object->QueryGetData(&format) == S_OK;
    *effect = Effect();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE DragOver(DWORD, POINTL, DWORD* effect) override {
    *effect = Effect();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE DragLeave() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE Drop(IDataObject* object, DWORD, POINTL, DWORD* effect) override {
    *effect = DROPEFFECT_NONE;
    try {
      if (const std::wstring path = FirstItem(object); !path.empty() && TakesOrders()) {
        dropped_(path);
        *effect = DROPEFFECT_COPY;
      }
    } catch (const std::exception&) {
      // A drop that cannot be read is ignored: the source of the drag is waiting for the answer.
    }
    return S_OK;
  }

 private:
  bool TakesOrders() const { return IsWindowEnabled(frame_) != FALSE; }
  DWORD Effect() const { return accepts_ && TakesOrders() ? DROPEFFECT_COPY : DROPEFFECT_NONE; }

  HWND frame_;
  std::function<void(const std::wstring&)> dropped_;
  ULONG references_ = 1;
  bool accepts_ = false;
};

DropTarget::DropTarget(HWND window, std::function<void(const std::wstring&)> dropped)
    : target_(new Target(window, std::move(dropped))) {
  RegisterDragDrop(window, target_.Get());
  window_ = OwnedDropWindow(window);
}

DropTarget::~DropTarget() = default;

}  // namespace folivant::platform
