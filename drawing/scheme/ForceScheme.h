#pragma once

#include "drawing/scheme/SchemeDrawing.h"

namespace trelonit {

// The truss with the force of every bar (tonnes, tension positive) and both reactions. Each routine
// tells its run-time error under schemeErrorTitle and returns; what was drawn stays.

using ForceRoutine = void(const DrawingTools& tools, const TreloData& data,
                          const TreloResult& result, const AutomationHandle& space);

ForceRoutine DrawForceScheme1;
ForceRoutine DrawForceScheme2;
ForceRoutine DrawForceScheme3;
ForceRoutine DrawForceScheme4;

/// For the schemes that have no truss yet: draws nothing.
ForceRoutine DrawReservedForceScheme;

constexpr ForceRoutine* DrawForceScheme5 = DrawReservedForceScheme;
constexpr ForceRoutine* DrawForceScheme6 = DrawReservedForceScheme;
constexpr ForceRoutine* DrawForceScheme7 = DrawReservedForceScheme;
constexpr ForceRoutine* DrawForceScheme8 = DrawReservedForceScheme;
constexpr ForceRoutine* DrawForceScheme9 = DrawReservedForceScheme;
constexpr ForceRoutine* DrawForceScheme10 = DrawReservedForceScheme;

}  // namespace trelonit
