#pragma once

#include <string>
#include <vector>

#include "platform/system/Services.h"

namespace trelonit {

// Members of a late-bound object that may be empty, and what their answers hold.

/// The object itself. Raises 91 for an empty reference.
AutomationObject& Required(const AutomationHandle& object);

/// The object in an answer, empty where the host gave nothing. Raises 13 for another kind of value.
AutomationHandle ObjectIn(const AutomationValue& value);

/// Raise 13 for another kind of value.
std::string TextIn(const AutomationValue& value);
/// Any number counts as a flag: 0 is False.
bool FlagIn(const AutomationValue& value);
/// A Double is rounded half to even; raises 6 beyond the range of Long.
Long LongIn(const AutomationValue& value);

// These raise 91 for an empty reference, otherwise what the host raises.
AutomationValue Member(const AutomationHandle& object, const std::string& member);
AutomationHandle ObjectMember(const AutomationHandle& object, const std::string& member);
void SetMember(const AutomationHandle& object, const std::string& member,
               const AutomationValue& value);
AutomationValue CallMember(const AutomationHandle& object, const std::string& member,
                           const std::vector<AutomationValue>& arguments = {});
AutomationHandle CallForObject(const AutomationHandle& object, const std::string& member,
                               const std::vector<AutomationValue>& arguments = {});

}  // namespace trelonit
