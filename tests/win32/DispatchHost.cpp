#include "tests/win32/DispatchHost.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <vector>

#include "platform/win32/ComPointer.h"
#include "platform/win32/Utf16.h"

namespace trelonit::test {

namespace {

/// The collection's enumeration of ready values.
class Enumeration : public CountedObject<IEnumVARIANT> {
 public:
  explicit Enumeration(HostLogHandle log) : CountedObject(std::move(log)) {}
  ~Enumeration() override {
    for (VARIANT& item : Items) {
      VariantClear(&item);
    }
  }
  HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* items, ULONG* fetched) override {
    ULONG given = 0;
    while (given < count && next_ < Items.size()) {
      VariantCopy(&items[given++], &Items[next_++]);
    }
    if (fetched != nullptr) {
      *fetched = given;
    }
    return given == count ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reset() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT**) override { return E_NOTIMPL; }
  std::vector<VARIANT> Items;

 private:
  std::size_t next_ = 0;
};

/// A collection, which has nothing but its enumeration.
class Collection : public UntypedDispatch {
 public:
  Collection(HostLogHandle log, bool ofTexts)
      : UntypedDispatch(std::move(log)), ofTexts_(ofTexts) {}
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                   EXCEPINFO*, UINT*) override {
    if (member != DISPID_NEWENUM) {
      return DISP_E_MEMBERNOTFOUND;
    }
    auto* items = new Enumeration(Log());
    items->AddRef();
    for (int number = 1; number <= (ofTexts_ ? 1 : 3); ++number) {
      VARIANT item;
      VariantInit(&item);
      if (ofTexts_) {
        V_VT(&item) = VT_BSTR;
        V_BSTR(&item) = SysAllocString(L"text");
      } else {
        V_VT(&item) = VT_DISPATCH;
        V_DISPATCH(&item) = new DispatchHost(Log(), number);
        V_DISPATCH(&item)->AddRef();
      }
      items->Items.push_back(item);
    }
    V_VT(result) = VT_UNKNOWN;
    V_UNKNOWN(result) = items;
    return S_OK;
  }

 private:
  DISPID IdentifierOf(const std::string&) const override { return DISPID_UNKNOWN; }

  bool ofTexts_;
};

void SetText(VARIANT& place, const std::string& text) {
  V_VT(&place) = VT_BSTR;
  V_BSTR(&place) = SysAllocString(ToWide(text).c_str());
}

void SetObject(VARIANT& place, IDispatch* object) {
  object->AddRef();
  V_VT(&place) = VT_DISPATCH;
  V_DISPATCH(&place) = object;
}

std::string KindOf(const VARIANT& value) {
  static const std::map<VARTYPE, std::string> names{
      {VT_EMPTY, "empty"}, {VT_I2, "short"},  {VT_I4, "long"},         {VT_R8, "double"},
      {VT_BSTR, "text"},   {VT_BOOL, "flag"}, {VT_DISPATCH, "object"}, {VT_VARIANT, "any"}};
  const VARTYPE type = V_VT(&value);
  const auto found = names.find(static_cast<VARTYPE>(type & VT_TYPEMASK));
  std::string name = found == names.end() ? std::to_string(type) : found->second;
  if ((type & VT_ARRAY) != 0) {
    LONG last = 0;
    SafeArrayGetUBound(V_ARRAY(&value), 1, &last);
    name += "[" + std::to_string(last + 1) + "]";
  }
  return (type & VT_BYREF) != 0 ? name + "&" : name;
}

/// The kinds of the arguments in the order of the call, which COM turns round.
std::string KindsOf(const DISPPARAMS& parameters) {
  std::string kinds;
  for (UINT i = parameters.cArgs; i > 0; --i) {
    kinds += (kinds.empty() ? "" : " ") + KindOf(parameters.rgvarg[i - 1]);
  }
  return kinds;
}

template <class Element>
void SetArray(VARIANT& place, VARTYPE type, LONG first, const std::vector<Element>& elements) {
  SAFEARRAYBOUND bound{static_cast<ULONG>(elements.size()), first};
  V_VT(&place) = static_cast<VARTYPE>(VT_ARRAY | type);
  V_ARRAY(&place) = SafeArrayCreate(type, 1, &bound);
  void* data = nullptr;
  SafeArrayAccessData(V_ARRAY(&place), &data);
  std::copy(elements.begin(), elements.end(), static_cast<Element*>(data));
  SafeArrayUnaccessData(V_ARRAY(&place));
}

/// A value of a kind that the program itself never passes.
void SetSpecial(VARIANT& place, const std::string& name) {
  if (name == "null") {
    V_VT(&place) = VT_NULL;
  } else if (name == "byte") {
    V_VT(&place) = VT_UI1;
    V_UI1(&place) = 200;
  } else if (name == "unsigned") {
    V_VT(&place) = VT_UI4;
    V_UI4(&place) = 4000000000U;
  } else if (name == "large") {
    V_VT(&place) = VT_I8;
    V_I8(&place) = -5;
  } else if (name == "single") {
    V_VT(&place) = VT_R4;
    V_R4(&place) = 0.25F;
  } else if (name == "money") {
    V_VT(&place) = VT_CY;
    V_CY(&place).int64 = 12345;  // ten thousandths
  } else if (name == "decimal") {
    VarDecFromR8(2.5, &V_DECIMAL(&place));
    V_VT(&place) = VT_DECIMAL;
  } else if (name == "not a number") {
    V_VT(&place) = VT_R8;
    V_R8(&place) = std::numeric_limits<double>::quiet_NaN();
  } else if (name == "nothing") {
    V_VT(&place) = VT_DISPATCH;
    V_DISPATCH(&place) = nullptr;
  } else if (name == "missing") {
    V_VT(&place) = VT_ERROR;
    V_ERROR(&place) = DISP_E_PARAMNOTFOUND;
  } else if (name == "longs from 5") {
    SetArray<LONG>(place, VT_I4, 5, {7, 70000});
  } else if (name == "doubles from 1") {
    SetArray<double>(place, VT_R8, 1, {1.5, -2.5, 3.5});
  } else if (name == "table") {
    SAFEARRAYBOUND bounds[]{{2, 0}, {2, 0}};
    V_VT(&place) = VT_ARRAY | VT_R8;
    V_ARRAY(&place) = SafeArrayCreate(VT_R8, 2, bounds);
  }
}

void FillData(VARIANT& types, VARIANT& values) {
  SetArray<SHORT>(types, VT_I2, 0, {1001, 1070});
  std::vector<VARIANT> elements(3);
  SetText(elements[0], "Ферма");
  V_VT(&elements[1]) = VT_I2;
  V_I2(&elements[1]) = 5;
  SetArray<double>(elements[2], VT_R8, 0, {1, 2, 3});
  SetArray<VARIANT>(values, VT_VARIANT, 0, elements);
}

HRESULT STDMETHODCALLTYPE FillLater(EXCEPINFO* exception) {
  exception->bstrDescription = SysAllocString(L"told later");
  exception->wCode = 1234;
  return S_OK;
}

HRESULT FailAs(const std::string& how, EXCEPINFO* exception) {
  if (how == "server fault") {
    return RPC_E_SERVERFAULT;
  }
  if (how == "type") {
    return DISP_E_TYPEMISMATCH;
  }
  if (how == "code") {
    exception->wCode = 1004;
    exception->bstrSource = SysAllocString(L"host");
    exception->bstrDescription = SysAllocString(L"Слой уже есть");
    exception->bstrHelpFile = SysAllocString(L"host.chm");
  } else if (how == "numbered") {
    exception->scode = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, 53);
  } else if (how == "own result") {
    exception->scode = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_ITF, 0x222);
    exception->bstrDescription = SysAllocString(L"Key not found");
  } else if (how == "later") {
    exception->pfnDeferredFillIn = FillLater;
  }
  return DISP_E_EXCEPTION;
}

std::string TextIn(const DISPPARAMS& parameters) {
  const VARIANT& first = parameters.rgvarg[parameters.cArgs - 1];
  return FromWide(V_BSTR(&first));
}

}  // namespace

DISPID DispatchHost::IdentifierOf(const std::string& name) const {
  static const std::map<std::string, DISPID> members{{"Kinds", Kinds},
                                                     {"Echo", Echo},
                                                     {"Value", Value},
                                                     {"Fill", Fill},
                                                     {"Fail", Fail},
                                                     {"ByValue", ByValue},
                                                     {"ByReference", ByReference},
                                                     {"Plain", Plain},
                                                     {"Parts", Parts},
                                                     {"Texts", Texts},
                                                     {"Number", Number}};
  const auto found = members.find(name);
  return found == members.end() ? DISPID_UNKNOWN : found->second;
}

HRESULT DispatchHost::Put(DISPID member, WORD kind, const DISPPARAMS& parameters) {
  const bool byReference = (kind & DISPATCH_PROPERTYPUTREF) != 0;
  const bool taken =
      member == Plain ? !byReference : member == (byReference ? ByReference : ByValue);
  if (!taken) {
    return DISP_E_MEMBERNOTFOUND;
  }
  if (parameters.cNamedArgs != 1 || parameters.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT) {
    return DISP_E_PARAMNOTOPTIONAL;
  }
  Log()->Sets.push_back((byReference ? "putref " : "put ") + KindsOf(parameters));
  return S_OK;
}

HRESULT DispatchHost::Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                             VARIANT* result, EXCEPINFO* exception, UINT*) {
  if ((kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
    return Put(member, kind, *parameters);
  }
  switch (member) {
    case Kinds:
      SetText(*result, KindsOf(*parameters));
      return S_OK;
    case Echo:
      return VariantCopy(result, &parameters->rgvarg[0]);
    case Value:
      SetSpecial(*result, TextIn(*parameters));
      return S_OK;
    case Fill:
      // The last argument comes first.
      FillData(*V_VARIANTREF(&parameters->rgvarg[1]), *V_VARIANTREF(&parameters->rgvarg[0]));
      return S_OK;
    case Fail:
      return FailAs(TextIn(*parameters), exception);
    case Parts:
    case Texts:
      SetObject(*result, new Collection(Log(), member == Texts));
      return S_OK;
    case Number:
      V_VT(result) = VT_I4;
      V_I4(result) = number_;
      return S_OK;
    default:
      return DISP_E_MEMBERNOTFOUND;
  }
}

HRESULT HostFactory::CreateInstance(IUnknown* outer, REFIID identifier, void** object) {
  if (outer != nullptr) {
    *object = nullptr;
    return CLASS_E_NOAGGREGATION;
  }
  const ComPointer<DispatchHost> host(new DispatchHost(Log()));
  return host->QueryInterface(identifier, object);
}

}  // namespace trelonit::test
