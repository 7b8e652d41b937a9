#pragma once

namespace trelonit::test {

/// Whether the program is built with sanitizers, which take memory and time. The tests themselves
/// are not, so that the compiler cannot tell.
#ifdef TRELONIT_SANITIZED
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif

}  // namespace trelonit::test
