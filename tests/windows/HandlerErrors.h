#pragma once

#include <gtest/gtest.h>

#include "windows/services/GuardedApplication.h"

namespace trelonit::test {

/// What a handler throws would go by unseen: no test waits for it.
inline void FailOnHandlerErrors(GuardedApplication& application) {
  application.Tell = [](const RuntimeError& error) {
    ADD_FAILURE() << "a handler raises " << error.Number() << ": " << error.Description();
  };
}

}  // namespace trelonit::test
