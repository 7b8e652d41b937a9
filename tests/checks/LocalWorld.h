#pragma once

#include "tests/support/TestServices.h"

namespace trelonit::test {

/// A world of this locale from its beginning: a form takes the locale over when it is made.
struct LocalWorld : World {
  LocalWorld(ResourceService& resources, const NumberLocale& locale) : World(resources) {
    Locale = locale;
  }
};

}  // namespace trelonit::test
