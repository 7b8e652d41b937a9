#include "platform/win32/ComValues.h"

#include <algorithm>
#include <utility>

#include "platform/values/Arithmetic.h"
#include "platform/win32/ComErrors.h"
#include "platform/win32/ComObject.h"
#include "platform/win32/Utf16.h"

namespace trelonit {

namespace {

RuntimeError TypeMismatch() {
  return RuntimeError(ErrorNumber::TypeMismatch);
}

/// The elements of a one-dimensional array, at hand while this is there.
template <class Element>
class ArrayElements {
 public:
  explicit ArrayElements(SAFEARRAY* array) : array_(array) {
    RequireResult(SafeArrayAccessData(array, reinterpret_cast<void**>(&elements_)));
  }
  ~ArrayElements() { SafeArrayUnaccessData(array_); }
  ArrayElements(const ArrayElements&) = delete;
  ArrayElements& operator=(const ArrayElements&) = delete;
  Element& operator[](std::size_t place) { return elements_[place]; }

 private:
  SAFEARRAY* array_;
  Element* elements_ = nullptr;
};

/// Makes the empty value an array with the subscripts 0 to size - 1.
SAFEARRAY* MakeArray(VARIANT& place, VARTYPE type, std::size_t size) {
  SAFEARRAY* array = SafeArrayCreateVector(type, 0, static_cast<ULONG>(size));
  if (array == nullptr) {
    throw RuntimeError(ErrorNumber::OutOfMemory);
  }
  V_VT(&place) = static_cast<VARTYPE>(VT_ARRAY | type);
  V_ARRAY(&place) = array;
  return array;
}

bool IsShortNumber(const AutomationItem& item) {
  const auto* number = std::get_if<Long>(&item.Value);
  return number != nullptr && std::in_range<Integer>(*number);
}

bool IsObject(const AutomationItem& item) {
  return std::holds_alternative<AutomationHandle>(item.Value);
}

/// The reference is the receiver's own.
IDispatch* InterfaceOf(const AutomationHandle& object) {
  if (object == nullptr) {
    return nullptr;
  }
  const auto own = std::dynamic_pointer_cast<ComObject>(object);
  if (own == nullptr) {
    throw TypeMismatch();
  }
  own->Interface()->AddRef();
  return own->Interface();
}

template <class Element, class Convert>
void FillArray(VARIANT& place, VARTYPE type, const AutomationList& list, Convert&& convert) {
  ArrayElements<Element> elements(MakeArray(place, type, list.size()));
  for (std::size_t i = 0; i < list.size(); ++i) {
    convert(list[i].Value, elements[i]);
  }
}

void EncodeList(const AutomationList& list, VARIANT& place, ListForm form) {
  const auto all = [&list](auto&& is) {
    return !list.empty() && std::all_of(list.begin(), list.end(), is);
  };
  if (all(IsObject)) {
    FillArray<IDispatch*>(place, VT_DISPATCH, list, [](const AutomationValue& value, auto& into) {
      into = InterfaceOf(std::get<AutomationHandle>(value));
    });
  } else if (form == ListForm::Codes && all(IsShortNumber)) {
    FillArray<SHORT>(place, VT_I2, list, [](const AutomationValue& value, auto& into) {
      into = static_cast<SHORT>(std::get<Long>(value));
    });
  } else {
    FillArray<VARIANT>(place, VT_VARIANT, list,
                       [](const AutomationValue& value, auto& into) { Encode(value, into); });
  }
}

/// Each kind of value into an empty place.
class Encoder {
 public:
  Encoder(VARIANT& place, ListForm form) : place_(place), form_(form) {}

  void operator()(std::monostate) {}
  void operator()(bool flag) {
    V_VT(&place_) = VT_BOOL;
    V_BOOL(&place_) = flag ? VARIANT_TRUE : VARIANT_FALSE;
  }
  void operator()(Long number) {
    // A script's own numbers have this width, and the drawing program takes its whole variables
    // in no other.
    if (std::in_range<Integer>(number)) {
      V_VT(&place_) = VT_I2;
      V_I2(&place_) = static_cast<SHORT>(number);
    } else {
      V_VT(&place_) = VT_I4;
      V_I4(&place_) = number;
    }
  }
  void operator()(double number) {
    V_VT(&place_) = VT_R8;
    V_R8(&place_) = number;
  }
  void operator()(const std::string& text) {
    const std::wstring wide = ToWide(text);
    BSTR copy = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    if (copy == nullptr) {
      throw RuntimeError(ErrorNumber::OutOfMemory);
    }
    V_VT(&place_) = VT_BSTR;
    V_BSTR(&place_) = copy;
  }
  void operator()(const std::vector<double>& numbers) {
    ArrayElements<double> elements(MakeArray(place_, VT_R8, numbers.size()));
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      elements[i] = numbers[i];
    }
  }
  void operator()(const AutomationHandle& object) {
    V_DISPATCH(&place_) = InterfaceOf(object);
    V_VT(&place_) = VT_DISPATCH;
  }
  void operator()(const AutomationList& list) { EncodeList(list, place_, form_); }

 private:
  VARIANT& place_;
  ListForm form_;
};

template <class Whole>
AutomationValue WholeNumber(Whole number) {
  if (std::in_range<Long>(number)) {
    return static_cast<Long>(number);
  }
  return static_cast<double>(number);
}

AutomationValue ObjectFrom(IUnknown* object, const ApartmentHandle& apartment) {
  if (object == nullptr) {
    return AutomationHandle();
  }
  ComPointer<IDispatch> interface_ = QueryFor<IDispatch>(object);
  if (!interface_) {
    throw TypeMismatch();
  }
  return AutomationHandle(std::make_shared<ComObject>(apartment, std::move(interface_)));
}

template <class Convert, class Source>
AutomationValue ConvertedNumber(Convert&& convert, Source source) {
  double number = 0;
  RequireResult(convert(source, &number));
  return number;
}

/// How many elements a one-dimensional array has; none where it is not there.
std::size_t CountOf(SAFEARRAY* array) {
  const UINT dimensions = SafeArrayGetDim(array);
  if (dimensions == 0) {
    return 0;
  }
  if (dimensions != 1) {
    throw TypeMismatch();
  }
  LONG first = 0;
  LONG last = 0;
  RequireResult(SafeArrayGetLBound(array, 1, &first));
  RequireResult(SafeArrayGetUBound(array, 1, &last));
  return static_cast<std::size_t>(LONGLONG{last} - first + 1);
}

AutomationList DecodeItems(SAFEARRAY* array, VARTYPE type, const ApartmentHandle& apartment) {
  AutomationList list;
  const std::size_t count = CountOf(array);
  // Only elements that fit into the value's own field can be taken out one by one.
  if (count > 0 && type != VT_VARIANT &&
      (type == VT_RECORD || SafeArrayGetElemsize(array) > sizeof(LONGLONG))) {
    throw TypeMismatch();
  }
  LONG first = 0;
  if (count > 0) {
    RequireResult(SafeArrayGetLBound(array, 1, &first));
  }
  for (std::size_t i = 0; i < count; ++i) {
    ComValues element(1);
    LONG subscript = first + static_cast<LONG>(i);
    if (type == VT_VARIANT) {
      RequireResult(SafeArrayGetElement(array, &subscript, element.Data()));
    } else {
      RequireResult(SafeArrayGetElement(array, &subscript, &V_I8(element.Data())));
      V_VT(element.Data()) = type;
    }
    list.push_back({Decode(element[0], apartment)});
  }
  return list;
}

AutomationValue DecodeArray(SAFEARRAY* array, VARTYPE type, const ApartmentHandle& apartment) {
  if (type != VT_R8) {
    return DecodeItems(array, type, apartment);
  }
  std::vector<double> numbers(CountOf(array));
  if (!numbers.empty()) {
    ArrayElements<double> elements(array);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      numbers[i] = Finite(elements[i]);
    }
  }
  return numbers;
}

}  // namespace

ComValues::ComValues(std::size_t count) : values_(count) {
  for (VARIANT& value : values_) {
    VariantInit(&value);
  }
}

ComValues::~ComValues() {
  for (VARIANT& value : values_) {
    VariantClear(&value);
  }
}

void Encode(const AutomationValue& value, VARIANT& place, ListForm form) {
  std::visit(Encoder(place, form), value);
}

AutomationValue Decode(VARIANT& value, const ApartmentHandle& apartment) {
  const VARTYPE type = V_VT(&value);
  if ((type & VT_BYREF) != 0) {
    ComValues copy(1);
    RequireResult(VariantCopyInd(copy.Data(), &value));
    return Decode(copy[0], apartment);
  }
  if ((type & VT_ARRAY) != 0) {
    return DecodeArray(V_ARRAY(&value), static_cast<VARTYPE>(type & VT_TYPEMASK), apartment);
  }
  switch (type) {
    case VT_EMPTY:
    case VT_NULL:
      return {};
    case VT_BOOL:
      return V_BOOL(&value) != VARIANT_FALSE;
    case VT_I1:
      return WholeNumber(static_cast<signed char>(V_I1(&value)));
    case VT_UI1:
      return WholeNumber(V_UI1(&value));
    case VT_I2:
      return WholeNumber(V_I2(&value));
    case VT_UI2:
      return WholeNumber(V_UI2(&value));
    case VT_I4:
    case VT_INT:
      return WholeNumber(V_I4(&value));
    case VT_UI4:
    case VT_UINT:
      return WholeNumber(V_UI4(&value));
    case VT_I8:
      return WholeNumber(V_I8(&value));
    case VT_UI8:
      return WholeNumber(V_UI8(&value));
    case VT_R4:
      return Finite(V_R4(&value));
    case VT_R8:
    case VT_DATE:
      return Finite(V_R8(&value));
    case VT_CY:
      return ConvertedNumber(VarR8FromCy, V_CY(&value));
    case VT_DECIMAL:
      return ConvertedNumber(VarR8FromDec, &V_DECIMAL(&value));
    case VT_BSTR:
      return FromWide({V_BSTR(&value), SysStringLen(V_BSTR(&value))});
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return ObjectFrom(V_UNKNOWN(&value), apartment);
    default:
      throw TypeMismatch();
  }
}

}  // namespace trelonit
