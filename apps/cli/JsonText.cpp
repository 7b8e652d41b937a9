#include "apps/cli/JsonText.h"

#include <cmath>

#include "platform/errors/RuntimeError.h"

namespace trelonit::cli {

namespace {

/// The way to a value: keys, and the numbers of elements from 1, as the user counts.
void RequireNumbers(const OrderedJson& value, const std::string& way, const std::string& owner) {
  if (value.is_number_float() && !std::isfinite(value.get<double>())) {
    throw RuntimeError(
        static_cast<int>(ErrorNumber::Overflow),
        "результат не выведен: «" + way + "»" + owner + " — бесконечность или не число");
  }
  if (!value.is_structured()) {
    return;
  }
  // Of a section it is worth knowing which one.
  const std::string named = value.is_object() && value.contains("Name") && value["Name"].is_string()
                                ? " (" + value["Name"].get<std::string>() + ")"
                                : owner;
  std::size_t number = 0;
  for (const auto& item : value.items()) {
    const std::string step = value.is_array() ? std::to_string(++number) : item.key();
    std::string there = way.empty() ? way : way + '/';
    there += step;
    RequireNumbers(item.value(), there, named);
  }
}

}  // namespace

std::string JsonText(const OrderedJson& object) {
  RequireNumbers(object, "", "");
  constexpr int indent = 2;
  // A text that came out of a damaged file may be no valid UTF-8 any more.
  return object.dump(indent, ' ', false, OrderedJson::error_handler_t::replace) + "\n";
}

}  // namespace trelonit::cli
