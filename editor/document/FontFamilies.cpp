#include "editor/document/FontFamilies.h"

#include <algorithm>

namespace trelonit {

namespace {

constexpr std::array<std::string_view, 10> beginnings{"Lucida Console", "Lucida Sans Typewriter",
                                                      "Courier",        "Consolas",
                                                      "Menlo",          "Monaco",
                                                      "Cascadia",       "Fixedsys",
                                                      "Terminal",       "Cousine"};

}  // namespace

bool IsFixedWidthFamily(std::string_view family) {
  const auto begins = [family](std::string_view beginning) {
    return family.starts_with(beginning);
  };
  // "Mono" as a word of its own: "Monotype Corsiva" is none.
  return std::any_of(beginnings.begin(), beginnings.end(), begins) || family.ends_with(" Mono") ||
         family.find(" Mono ") != std::string_view::npos;
}

}  // namespace trelonit
