#include "platform/win32/ComAutomation.h"

#include <optional>
#include <utility>

#include "platform/win32/ComApartment.h"
#include "platform/win32/ComObject.h"
#include "platform/win32/ComPointer.h"
#include "platform/win32/Utf16.h"

namespace trelonit {

namespace {

std::optional<CLSID> ClassOf(const std::string& programIdentifier) {
  CLSID identifier{};
  const HRESULT found = CLSIDFromProgID(ToWide(programIdentifier).c_str(), &identifier);
  return SUCCEEDED(found) ? std::optional(identifier) : std::nullopt;
}

/// The object that the call hands out, by its dispatch interface; empty where it has none or fails.
template <class Reach>
AutomationHandle Reached(const std::string& programIdentifier, const ApartmentHandle& apartment,
                         Reach&& reach) {
  const std::optional<CLSID> identifier = ClassOf(programIdentifier);
  ComPointer<IUnknown> object;
  if (!identifier || FAILED(reach(*identifier, object.Place()))) {
    return nullptr;
  }
  ComPointer<IDispatch> members = QueryFor<IDispatch>(object.Get());
  return members ? std::make_shared<ComObject>(apartment, std::move(members)) : nullptr;
}

}  // namespace

ComAutomation::ComAutomation(AutomationService* next)
    : apartment_(std::make_shared<const ComApartment>()), next_(next) {}

AutomationHandle ComAutomation::Create(const std::string& programIdentifier) {
  AutomationHandle object =
      Reached(programIdentifier, apartment_, [](const CLSID& identifier, IUnknown** place) {
        return CoCreateInstance(identifier, nullptr, CLSCTX_SERVER, IID_IUnknown,
                                reinterpret_cast<void**>(place));
      });
  return object ? object : Next().Create(programIdentifier);
}

AutomationHandle ComAutomation::GetRunning(const std::string& programIdentifier) {
  AutomationHandle object =
      Reached(programIdentifier, apartment_, [](const CLSID& identifier, IUnknown** place) {
        return GetActiveObject(identifier, nullptr, place);
      });
  return object ? object : Next().GetRunning(programIdentifier);
}

AutomationService& ComAutomation::Next() const {
  if (next_ == nullptr) {
    throw RuntimeError(ErrorNumber::CannotCreateObject);
  }
  return *next_;
}

}  // namespace trelonit
