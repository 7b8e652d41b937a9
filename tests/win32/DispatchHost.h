#pragma once

#include <atomic>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32/ComPointer.h"
#include "platform/win32/Utf16.h"
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

/// An automation host of the test's own, which tells how it was called. Members:
///   Kinds (any)          the kinds of its arguments, first to last, as text
///   Echo (value)         its argument, unchanged
///   Value (name)         a value of the kind that the name tells
///   Fill (name, a, b)    fills a with two group codes and b with a text, a number and a point
///   Fail (how)           fails in the given way
///   ByValue, ByReference properties of objects that are set in one way only
///   Plain                a property of any value
///   Parts                a collection of three hosts
///   Texts                a collection of a text
///   Number               the host's own number
class DispatchHost : public CountedObject<IDispatch> {
 public:
  explicit DispatchHost(HostLogHandle log, int number = 0)
      : CountedObject(std::move(log)), number_(number) {}

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* identifiers) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT*) override;

 private:
  enum Member : DISPID {
    Items = DISPID_NEWENUM,
    Kinds = 1,
    Echo,
    Value,
    Fill,
    Fail,
    ByValue,
    ByReference,
    Plain,
    Parts,
    Texts,
    Number
  };

  HRESULT Put(DISPID member, WORD kind, const DISPPARAMS& parameters);

  int number_;
};

/// Makes hosts for whoever creates an object of the class.
class HostFactory : public CountedObject<IClassFactory> {
 public:
  using CountedObject::CountedObject;
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID identifier,
                                           void** object) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

}  // namespace trelonit::test
