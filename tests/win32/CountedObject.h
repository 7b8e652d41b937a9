#pragma once

#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "platform/win32/WindowsHeader.h"

namespace trelonit::test {

/// What happened to the objects of one test host.
struct HostLog {
  /// "put" or "putref" and the kinds of value, in order.
  std::vector<std::string> Sets;
  /// Objects that somebody still holds.
  int Alive = 0;
};
using HostLogHandle = std::shared_ptr<HostLog>;

// The interfaces of COM have no destructor, by nature; the objects have a virtual one.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// Counts references and answers for one interface besides IUnknown.
template <class Interface>
class CountedObject : public Interface {
 public:
  explicit CountedObject(HostLogHandle log) : log_(std::move(log)) { ++log_->Alive; }
  virtual ~CountedObject() { --log_->Alive; }
  CountedObject(const CountedObject&) = delete;
  CountedObject& operator=(const CountedObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** object) override {
    if (identifier != __uuidof(IUnknown) && identifier != __uuidof(Interface)) {
      *object = nullptr;
      return E_NOINTERFACE;
    }
    *object = static_cast<Interface*>(this);
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

 protected:
  const HostLogHandle& Log() const { return log_; }

 private:
  HostLogHandle log_;
  std::atomic<ULONG> references_ = 0;
};

#pragma GCC diagnostic pop

/// An object whose members are known by name alone, without a description of their types.
class UntypedDispatch : public CountedObject<IDispatch> {
 public:
  using CountedObject::CountedObject;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* identifiers) override;

 private:
  /// DISPID_UNKNOWN where there is none of this name.
  virtual DISPID IdentifierOf(const std::string& name) const = 0;
};

}  // namespace trelonit::test
