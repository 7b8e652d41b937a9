#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/errors/RuntimeError.h"
#include "platform/system/Services.h"
#include "platform/text/Text.h"

namespace trelonit {

// A small way to make automation objects: a class lists its members in one constant table, and
// every other name raises 438. Names are compared without regard to case, as by a late-bound call.

using HostArguments = std::vector<AutomationValue>;

/// One member; what it cannot do stays null and raises 438. The routines get the object itself.
template <class Self>
struct HostMember {
  std::string_view Name;
  AutomationValue (*Get)(Self&) = nullptr;
  void (*Set)(Self&, const AutomationValue&) = nullptr;
  AutomationValue (*Call)(Self&, const HostArguments&) = nullptr;
  std::size_t FewestArguments = 0;
  std::size_t MostArguments = 0;
};

inline bool SameMemberName(std::string_view name1, std::string_view name2) {
  return std::equal(name1.begin(), name1.end(), name2.begin(), name2.end(),
                    [](char a, char b) { return UpperLatin(a) == UpperLatin(b); });
}

/// Two tables in one.
template <class Member, std::size_t Count1, std::size_t Count2>
constexpr std::array<Member, Count1 + Count2> Joined(const std::array<Member, Count1>& table1,
                                                     const std::array<Member, Count2>& table2) {
  std::array<Member, Count1 + Count2> joined{};
  std::copy(table2.begin(), table2.end(), std::copy(table1.begin(), table1.end(), joined.begin()));
  return joined;
}

/// Base of an object whose class has a static Members(), the range of its HostMembers.
template <class Self>
class HostObject : public AutomationObject {
 public:
  AutomationValue Get(const std::string& member) override {
    const HostMember<Self>& found = Find(member);
    Require(found.Get != nullptr);
    return found.Get(static_cast<Self&>(*this));
  }
  void Set(const std::string& member, const AutomationValue& value) override {
    const HostMember<Self>& found = Find(member);
    Require(found.Set != nullptr);
    found.Set(static_cast<Self&>(*this), value);
  }
  /// Raises 5 for too few or too many arguments.
  AutomationValue Call(const std::string& member, const HostArguments& arguments) override {
    const HostMember<Self>& found = Find(member);
    Require(found.Call != nullptr);
    if (arguments.size() < found.FewestArguments || arguments.size() > found.MostArguments) {
      throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    }
    return found.Call(static_cast<Self&>(*this), arguments);
  }
  /// An object that is no collection raises 438.
  std::vector<AutomationHandle> Enumerate() override {
    throw RuntimeError(ErrorNumber::PropertyNotSupported);
  }

 private:
  static void Require(bool supported) {
    if (!supported) {
      throw RuntimeError(ErrorNumber::PropertyNotSupported);
    }
  }
  static const HostMember<Self>& Find(std::string_view name) {
    const auto& members = Self::Members();
    const auto found = std::find_if(members.begin(), members.end(), [&](const auto& member) {
      return SameMemberName(member.Name, name);
    });
    Require(found != members.end());
    return *found;
  }
};

}  // namespace trelonit
