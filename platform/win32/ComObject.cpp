#include "platform/win32/ComObject.h"

#include <algorithm>
#include <variant>

#include "platform/win32/ComErrors.h"
#include "platform/win32/ComValues.h"
#include "platform/win32/Utf16.h"

namespace trelonit {

namespace {

/// As scripts ask: a member that is read may be a routine, and one that is called a property.
constexpr WORD callOrRead = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

bool IsEmpty(const AutomationValue& value) {
  return std::holds_alternative<std::monostate>(value);
}

bool IsList(const AutomationValue& value) {
  return std::holds_alternative<AutomationList>(value);
}

}  // namespace

DISPID ComObject::IdentifierOf(const std::string& member) {
  std::wstring name = ToWide(member);
  wchar_t* names = name.data();
  DISPID identifier = DISPID_UNKNOWN;
  RequireResult(object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &identifier));
  return identifier;
}

void ComObject::Invoke(DISPID member, WORD kind, ComValues& arguments, ComValues& result) {
  const bool isPut = (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  DISPID newValue = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{.rgvarg = arguments.Data(),
                        .rgdispidNamedArgs = isPut ? &newValue : nullptr,
                        .cArgs = static_cast<UINT>(arguments.size()),
                        .cNamedArgs = isPut ? 1U : 0U};
  ExceptionInfo exception;
  const HRESULT done = object_->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                                       isPut ? nullptr : result.Data(), exception.Place(), nullptr);
  if (done == DISP_E_EXCEPTION) {
    throw exception.Error();
  }
  RequireResult(done);
}

AutomationValue ComObject::Get(const std::string& member) {
  return Call(member, {});
}

void ComObject::Set(const std::string& member, const AutomationValue& value) {
  const DISPID identifier = IdentifierOf(member);
  ComValues arguments(1);
  ComValues none(0);
  Encode(value, arguments[0]);
  if (std::holds_alternative<AutomationHandle>(value)) {
    // A property of objects takes them by reference, or by value as any other.
    try {
      Invoke(identifier, DISPATCH_PROPERTYPUTREF, arguments, none);
      return;
    } catch (const RuntimeError& error) {
      if (error.Number() != static_cast<int>(ErrorNumber::PropertyNotSupported)) {
        throw;
      }
    }
  }
  Invoke(identifier, DISPATCH_PROPERTYPUT, arguments, none);
}

AutomationValue ComObject::Call(const std::string& member,
                                const std::vector<AutomationValue>& arguments) {
  const DISPID identifier = IdentifierOf(member);
  const std::size_t count = arguments.size();
  ComValues filled(count);
  ComValues passed(count);
  // The first list may be one of group codes, whose values stand in a second one.
  const auto firstList = std::find_if(arguments.begin(), arguments.end(), IsList);
  for (std::size_t i = 0; i < count; ++i) {
    // COM counts them from the last one on.
    VARIANT& place = passed[count - 1 - i];
    if (IsEmpty(arguments[i])) {
      V_VT(&place) = VT_BYREF | VT_VARIANT;
      V_VARIANTREF(&place) = &filled[i];
    } else {
      const bool mayBeCodes = firstList == arguments.begin() + static_cast<std::ptrdiff_t>(i);
      Encode(arguments[i], place, mayBeCodes ? ListForm::Codes : ListForm::Values);
    }
  }
  ComValues result(1);
  Invoke(identifier, callOrRead, passed, result);
  if (std::none_of(arguments.begin(), arguments.end(), IsEmpty)) {
    return Decode(result[0], apartment_);
  }
  AutomationList answers;
  for (std::size_t i = 0; i < count; ++i) {
    if (IsEmpty(arguments[i])) {
      answers.push_back({Decode(filled[i], apartment_)});
    }
  }
  return answers;
}

std::vector<AutomationHandle> ComObject::Enumerate() {
  ComValues none(0);
  ComValues result(1);
  Invoke(DISPID_NEWENUM, callOrRead, none, result);
  if (V_VT(result.Data()) != VT_UNKNOWN && V_VT(result.Data()) != VT_DISPATCH) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  const ComPointer<IEnumVARIANT> items = QueryFor<IEnumVARIANT>(V_UNKNOWN(result.Data()));
  if (!items) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  std::vector<AutomationHandle> objects;
  for (;;) {
    ComValues item(1);
    ULONG fetched = 0;
    RequireResult(items->Next(1, item.Data(), &fetched));
    if (fetched == 0) {
      return objects;
    }
    const AutomationValue value = Decode(item[0], apartment_);
    const auto* object = std::get_if<AutomationHandle>(&value);
    if (object == nullptr) {
      throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    objects.push_back(*object);
  }
}

}  // namespace trelonit
