#include "platform/system/AutomationMembers.h"

#include <variant>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

AutomationObject& Required(const AutomationHandle& object) {
  if (object == nullptr) {
    throw RuntimeError(ErrorNumber::ObjectNotSet);
  }
  return *object;
}

AutomationHandle ObjectIn(const AutomationValue& value) {
  if (std::holds_alternative<std::monostate>(value)) {
    return nullptr;
  }
  const auto* object = std::get_if<AutomationHandle>(&value);
  if (object == nullptr) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  return *object;
}

std::string TextIn(const AutomationValue& value) {
  const auto* text = std::get_if<std::string>(&value);
  if (text == nullptr) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  return *text;
}

bool FlagIn(const AutomationValue& value) {
  const auto* flag = std::get_if<bool>(&value);
  return flag == nullptr ? LongIn(value) != 0 : *flag;
}

Long LongIn(const AutomationValue& value) {
  if (const auto* number = std::get_if<Long>(&value)) {
    return *number;
  }
  if (const auto* number = std::get_if<double>(&value)) {
    return RoundToLong(*number);
  }
  throw RuntimeError(ErrorNumber::TypeMismatch);
}

AutomationValue Member(const AutomationHandle& object, const std::string& member) {
  return Required(object).Get(member);
}

AutomationHandle ObjectMember(const AutomationHandle& object, const std::string& member) {
  return ObjectIn(Member(object, member));
}

void SetMember(const AutomationHandle& object, const std::string& member,
               const AutomationValue& value) {
  Required(object).Set(member, value);
}

AutomationValue CallMember(const AutomationHandle& object, const std::string& member,
                           const std::vector<AutomationValue>& arguments) {
  return Required(object).Call(member, arguments);
}

AutomationHandle CallForObject(const AutomationHandle& object, const std::string& member,
                               const std::vector<AutomationValue>& arguments) {
  return ObjectIn(CallMember(object, member, arguments));
}

}  // namespace trelonit
