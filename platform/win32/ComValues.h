#pragma once

#include <vector>

#include "platform/system/Services.h"
#include "platform/win32/ComApartment.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

/// Values as COM passes them; what they hold goes with them.
class ComValues {
 public:
  explicit ComValues(std::size_t count);
  ~ComValues();
  ComValues(const ComValues&) = delete;
  ComValues& operator=(const ComValues&) = delete;

  VARIANT& operator[](std::size_t place) { return values_[place]; }
  std::size_t size() const { return values_.size(); }
  VARIANT* Data() { return values_.data(); }

 private:
  std::vector<VARIANT> values_;
};

/// How a list becomes an array. A list that holds nothing but objects is an array of these anyway.
enum class ListForm {
  /// An array of values of any kind.
  Values,
  /// The same, but 16-bit numbers alone become an array of such numbers.
  Codes,
};

/// Puts a value into an empty one of COM: numbers that fit into 16 bits in that width, an object as
/// its dispatch interface, a list of doubles as an array of these. Raises 13 for an object that is
/// none of COM.
void Encode(const AutomationValue& value, VARIANT& place, ListForm form = ListForm::Values);

/// Back again. A whole number beyond 32 bits, an amount of money and a date become a Double, an
/// array that is no list of doubles a list. Raises 13 for other kinds of value and for arrays of
/// several dimensions, 6 for a Double that is no number. The value stays as it is.
AutomationValue Decode(VARIANT& value, const ApartmentHandle& apartment);

}  // namespace trelonit
