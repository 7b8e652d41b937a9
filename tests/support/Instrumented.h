#pragma once

namespace trelonit::test {

// Sanitizers watch no tests, so that the compiler cannot tell.

/// Whether the program is built with sanitizers, which take memory and time.
#ifdef TRELONIT_SANITIZED
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif

/// Whether the program counts which of its lines the tests take.
#ifdef TRELONIT_COUNTED
constexpr bool counted = true;
#else
constexpr bool counted = false;
#endif

/// How many times longer the program may take where it counts: nothing is optimised there.
constexpr int countingSlowness = counted ? 10 : 1;

}  // namespace trelonit::test
