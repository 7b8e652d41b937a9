#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace trelonit::cli {

/// Keys stay in the order in which they are put in.
using OrderedJson = nlohmann::ordered_json;

inline std::string JsonText(const OrderedJson& object) {
  constexpr int indent = 2;
  // A text that came out of a damaged file may be no valid UTF-8 any more.
  return object.dump(indent, ' ', false, OrderedJson::error_handler_t::replace) + "\n";
}

}  // namespace trelonit::cli
