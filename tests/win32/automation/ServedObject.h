#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/system/Services.h"
#include "platform/win32/ComApartment.h"
#include "tests/win32/CountedObject.h"

namespace trelonit::test {

/// What the objects of one server have in common.
struct ServedWorld {
  ApartmentHandle Apartment = std::make_shared<const ComApartment>();
  HostLogHandle Counts = std::make_shared<HostLog>();
  /// Run before each use of a member and after it, whatever came of it.
  std::function<void()> Using;
  std::function<void()> Used;
};

/// An object of this process for other ones: what they ask of its members by COM is asked of it,
/// and what it gives goes back, objects in their turn as served ones. Properties of objects are put
/// by value alone, as those of the drawing program are.
class ServedObject : public UntypedDispatch {
 public:
  ServedObject(const ServedWorld& world, AutomationHandle inner)
      : UntypedDispatch(world.Counts), world_(world), inner_(std::move(inner)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** object) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT*) override;

 private:
  DISPID IdentifierOf(const std::string& name) const override;
  void Use(const std::string& member, WORD kind, const DISPPARAMS& parameters, VARIANT* result);
  AutomationValue Inward(VARIANT& value) const;
  void Outward(const AutomationValue& value, VARIANT& place) const;

  const ServedWorld& world_;
  AutomationHandle inner_;
};

/// Gives one object to whoever creates one of the class.
class ServedClass : public CountedObject<IClassFactory> {
 public:
  ServedClass(const ServedWorld& world, AutomationHandle application)
      : CountedObject(world.Counts), world_(world), application_(std::move(application)) {}

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID identifier,
                                           void** object) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  const ServedWorld& world_;
  AutomationHandle application_;
};

}  // namespace trelonit::test
