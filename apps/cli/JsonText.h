#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace trelonit::cli {

/// Keys stay in the order in which they are put in.
using OrderedJson = nlohmann::ordered_json;

/// Raises 6 where a number in it is infinite or none at all, which JSON cannot tell: the
/// description names it.
std::string JsonText(const OrderedJson& object);

}  // namespace trelonit::cli
