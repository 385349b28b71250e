#include "ui/win32/mirror/spoken_name.h"

#include <initguid.h>  // the identifiers below become data here
#include <objbase.h>
#include <oleacc.h>

namespace zelvane::win32 {

namespace {

void setProperty(HWND window, const MSAAPROPID& property, const std::wstring& text) {
  IAccPropServices* service = nullptr;
  if (SUCCEEDED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                                 IID_IAccPropServices, reinterpret_cast<void**>(&service)))) {
    service->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, property,
                            text.c_str());
    service->Release();
  }
}

}  // namespace

void setSpokenName(Window& window, const std::wstring& name) {
  window.whenSettled([&window, name] { setProperty(window.handle(), PROPID_ACC_NAME, name); });
}

void setSpokenDescription(HWND window, const std::wstring& description) {
  setProperty(window, PROPID_ACC_DESCRIPTION, description);
}

}  // namespace zelvane::win32
