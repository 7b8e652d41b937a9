#pragma once

#include <rapidcheck.h>

#include "tests/support/ExtremeNumbers.h"

namespace trelonit::test {

/// Any finite Double: every exponent alike, the ends of the range, zeros and tame numbers.
rc::Gen<double> AnyNumber();

}  // namespace trelonit::test
