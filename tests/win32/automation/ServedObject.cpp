#include "tests/win32/automation/ServedObject.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/errors/RuntimeError.h"
#include "platform/win32/ComObject.h"
#include "platform/win32/ComPointer.h"
#include "platform/win32/ComValues.h"
#include "platform/win32/Utf16.h"

namespace trelonit::test {

namespace {

/// By which an object that comes back as an argument is known for one of ours.
constexpr IID servedHere{
    0x9D1C7E52, 0x2B8F, 0x4C57, {0xA4, 0x2D, 0x31, 0x5E, 0x0B, 0x66, 0x90, 0xC4}};

/// All members of the hosts, the routines without arguments first: these look like properties to
/// whoever is called by name.
constexpr std::array routines{"Add", "ZoomExtents", "Copy", "Paste", "Quit"};
constexpr std::array others{"Documents",      "ActiveDocument",
                            "Version",        "Visible",
                            "Open",           "Application",
                            "Layers",         "TextStyles",
                            "DimStyles",      "ModelSpace",
                            "ActiveLayer",    "ActiveTextStyle",
                            "ActiveDimStyle", "SetVariable",
                            "Document",       "AddLine",
                            "AddText",        "AddDimRotated",
                            "Freeze",         "LayerOn",
                            "Linetype",       "Lineweight",
                            "Lock",           "Plottable",
                            "ObliqueAngle",   "Width",
                            "Layer",          "Alignment",
                            "Rotation",       "TextAlignmentPoint",
                            "TextStyle",      "ArrowheadSize",
                            "TextGap",        "TextHeight",
                            "ScaleFactor",    "TextInsideAlign",
                            "TextInside",     "PrimaryUnitsPrecision",
                            "Content",        "SaveAs"};

std::string NameOf(DISPID member) {
  const auto place = static_cast<std::size_t>(member - 1);
  if (member < 1 || place >= routines.size() + others.size()) {
    return {};
  }
  return place < routines.size() ? routines.at(place) : others.at(place - routines.size());
}

/// What a host answers that raises the error: its result where the number is one, otherwise an
/// exception with the text.
HRESULT ResultOf(const RuntimeError& error, EXCEPINFO* exception) {
  if (error.Number() == static_cast<int>(ErrorNumber::PropertyNotSupported)) {
    return DISP_E_MEMBERNOTFOUND;
  }
  if (error.Number() < 0) {
    return static_cast<HRESULT>(error.Number());
  }
  exception->wCode = static_cast<WORD>(error.Number());
  exception->bstrDescription = SysAllocString(ToWide(error.Description()).c_str());
  return DISP_E_EXCEPTION;
}

}  // namespace

HRESULT ServedObject::QueryInterface(REFIID identifier, void** object) {
  return UntypedDispatch::QueryInterface(identifier == servedHere ? IID_IDispatch : identifier,
                                         object);
}

DISPID ServedObject::IdentifierOf(const std::string& name) const {
  for (DISPID member = 1; !NameOf(member).empty(); ++member) {
    if (NameOf(member) == name) {
      return member;
    }
  }
  return DISPID_UNKNOWN;
}

HRESULT ServedObject::Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                             VARIANT* result, EXCEPINFO* exception, UINT*) {
  const std::string name = NameOf(member);
  if (name.empty() || kind == DISPATCH_PROPERTYPUTREF) {
    return DISP_E_MEMBERNOTFOUND;
  }
  world_.Using();
  HRESULT told = S_OK;
  try {
    Use(name, kind, *parameters, result);
  } catch (const RuntimeError& error) {
    told = ResultOf(error, exception);
  }
  world_.Used();
  return told;
}

void ServedObject::Use(const std::string& member, WORD kind, const DISPPARAMS& parameters,
                       VARIANT* result) {
  std::vector<AutomationValue> arguments;
  for (UINT i = parameters.cArgs; i > 0; --i) {
    arguments.push_back(Inward(parameters.rgvarg[i - 1]));
  }
  if (kind == DISPATCH_PROPERTYPUT) {
    inner_->Set(member, arguments.at(0));
    return;
  }
  const bool isRoutine =
      !arguments.empty() || std::find(routines.begin(), routines.end(), member) != routines.end();
  Outward(isRoutine ? inner_->Call(member, arguments) : inner_->Get(member), *result);
}

AutomationValue ServedObject::Inward(VARIANT& value) const {
  AutomationValue inward = Decode(value, world_.Apartment);
  if (V_VT(&value) == VT_DISPATCH && V_DISPATCH(&value) != nullptr) {
    ComPointer<IDispatch> own;
    if (SUCCEEDED(V_DISPATCH(&value)->QueryInterface(servedHere,
                                                     reinterpret_cast<void**>(own.Place())))) {
      return static_cast<ServedObject*>(own.Get())->inner_;
    }
  }
  return inward;
}

void ServedObject::Outward(const AutomationValue& value, VARIANT& place) const {
  const auto* object = std::get_if<AutomationHandle>(&value);
  if (object == nullptr || *object == nullptr) {
    Encode(value, place);
    return;
  }
  V_DISPATCH(&place) = new ServedObject(world_, *object);
  V_DISPATCH(&place)->AddRef();
  V_VT(&place) = VT_DISPATCH;
}

HRESULT ServedClass::CreateInstance(IUnknown* outer, REFIID identifier, void** object) {
  if (outer != nullptr) {
    *object = nullptr;
    return CLASS_E_NOAGGREGATION;
  }
  const ComPointer<ServedObject> served(new ServedObject(world_, application_));
  return served->QueryInterface(identifier, object);
}

}  // namespace trelonit::test
