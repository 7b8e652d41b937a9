#pragma once

#include <string>

#include "drawing/host/Drawing.h"
#include "platform/system/AutomationMembers.h"
#include "platform/system/Services.h"

namespace trelonit {

// Arguments of the built-in host's members. Another kind of value raises 13, a value out of range
// raises 5. Texts, flags and whole numbers are read as the callers of a host read them.

/// A finite number.
double NumberIn(const AutomationValue& value);
/// Above zero: sizes.
double SizeIn(const AutomationValue& value);
/// Zero or more.
double DistanceIn(const AutomationValue& value);
/// Three finite coordinates.
PlacePoint PointIn(const AutomationValue& value);
/// Not empty, at most 255 bytes, none of the characters that the drawing format forbids in names.
std::string NameIn(const AutomationValue& value);

// Values as the host hands them out.
AutomationValue ValueOf(bool flag);
AutomationValue ValueOf(Long number);
AutomationValue ValueOf(double number);
AutomationValue ValueOf(const std::string& text);
AutomationValue ValueOf(const PlacePoint& point);
AutomationValue ValueOf(TextAlignment alignment);
AutomationValue CountIn(std::size_t items);

}  // namespace trelonit
