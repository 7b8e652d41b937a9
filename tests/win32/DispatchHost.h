#pragma once

#include <string>

#include "tests/win32/CountedObject.h"

namespace trelonit::test {

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
class DispatchHost : public UntypedDispatch {
 public:
  explicit DispatchHost(HostLogHandle log, int number = 0)
      : UntypedDispatch(std::move(log)), number_(number) {}

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

  DISPID IdentifierOf(const std::string& name) const override;
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
