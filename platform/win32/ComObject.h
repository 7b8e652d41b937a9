#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/system/Services.h"
#include "platform/win32/ComApartment.h"
#include "platform/win32/ComPointer.h"

namespace trelonit {

class ComValues;

/// An object of another program, by its dispatch interface.
class ComObject : public AutomationObject {
 public:
  /// The interface is not empty.
  ComObject(ApartmentHandle apartment, ComPointer<IDispatch> object)
      : apartment_(std::move(apartment)), object_(std::move(object)) {}

  AutomationValue Get(const std::string& member) override;
  void Set(const std::string& member, const AutomationValue& value) override;
  AutomationValue Call(const std::string& member,
                       const std::vector<AutomationValue>& arguments) override;
  std::vector<AutomationHandle> Enumerate() override;

  IDispatch* Interface() const { return object_.Get(); }

 private:
  DISPID IdentifierOf(const std::string& member);
  void Invoke(DISPID member, WORD kind, ComValues& arguments, ComValues& result);

  // The object goes before the apartment.
  ApartmentHandle apartment_;
  ComPointer<IDispatch> object_;
};

}  // namespace trelonit
