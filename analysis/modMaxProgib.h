#pragma once

#include "analysis/CheckRecord.h"
#include "analysis/modDatatypes.h"
#include "platform/errors/Outcome.h"

namespace trelonit {

/// The greatest deflection of the joints of one chord, metres, by the unit-load method of
/// structural mechanics, with which no norm interferes: each joint of the chord in turn carries 1
/// tonne alone, and the real bar forces are multiplied with those of that run. Greatest in signed
/// comparison; 0 for a chord without joints.
/// @param res real forces of data
/// @param check areas of the groups, cm2
/// @param upChord joints of the upper chord, else of the lower one
/// @param E elastic modulus, MPa
/// Shows nothing of its own: what fails is passed over, a joint that cannot be computed counts 0.
/// The unit runs show their failures as any analysis does.
Outcome<double> CalcProgib(const TreloData& data, const TreloResult& res, const CheckResult& check,
                           bool upChord, double E);

}  // namespace trelonit
