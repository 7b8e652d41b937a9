#include "platform/win32/ComApartment.h"

#include <atomic>

namespace trelonit {

namespace {

// The interfaces of COM have no destructor, by nature; the object has a virtual one.
#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

/// Waits for a busy host. Otherwise as a thread without such an object.
class Patience : public IMessageFilter {
 public:
  virtual ~Patience() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** object) override {
    if (identifier != IID_IUnknown && identifier != IID_IMessageFilter) {
      *object = nullptr;
      return E_NOINTERFACE;
    }
    *object = static_cast<IMessageFilter*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) {
      delete this;
    }
    return left;
  }

  DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override {
    return SERVERCALL_ISHANDLED;
  }
  DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD waited, DWORD) override {
    constexpr DWORD longest = 10000;  // milliseconds, as both of these
    constexpr DWORD pause = 100;
    constexpr DWORD giveUp = static_cast<DWORD>(-1);
    return waited < longest ? pause : giveUp;
  }
  DWORD STDMETHODCALLTYPE MessagePending(HTASK, DWORD, DWORD) override {
    return PENDINGMSG_WAITDEFPROCESS;
  }

 private:
  std::atomic<ULONG> references_ = 0;
};

#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif

}  // namespace

// A thread that entered COM another way before keeps that way, which serves as well; where COM
// cannot be had at all, every object that is asked for is a missing one.
ComApartment::ComApartment()
    : entered_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {
  const ComPointer<IMessageFilter> patience(new Patience);
  patient_ = CoRegisterMessageFilter(patience.Get(), before_.Place());
}

ComApartment::~ComApartment() {
  if (SUCCEEDED(patient_)) {
    ComPointer<IMessageFilter> own;
    CoRegisterMessageFilter(before_.Get(), own.Place());
    before_ = {};
  }
  if (SUCCEEDED(entered_)) {
    CoUninitialize();
  }
}

}  // namespace trelonit
