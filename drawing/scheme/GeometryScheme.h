#pragma once

#include "drawing/scheme/SchemeDrawing.h"

namespace trelonit {

// The working scheme of a truss: every bar with its length and section name, and the dimensions.
// Each routine tells its run-time error under schemeErrorTitle and returns; what was drawn stays.

using GeometryRoutine = void(const DrawingTools& tools, const TreloData& data,
                             const TreloResult& result, const SectionArray& sections,
                             const AutomationHandle& space);

GeometryRoutine DrawGeometryScheme1;
GeometryRoutine DrawGeometryScheme2;
GeometryRoutine DrawGeometryScheme3;
GeometryRoutine DrawGeometryScheme4;

/// For the schemes that have no truss yet: draws nothing.
GeometryRoutine DrawReservedGeometryScheme;

constexpr GeometryRoutine* DrawGeometryScheme5 = DrawReservedGeometryScheme;
constexpr GeometryRoutine* DrawGeometryScheme6 = DrawReservedGeometryScheme;
constexpr GeometryRoutine* DrawGeometryScheme7 = DrawReservedGeometryScheme;
constexpr GeometryRoutine* DrawGeometryScheme8 = DrawReservedGeometryScheme;
constexpr GeometryRoutine* DrawGeometryScheme9 = DrawReservedGeometryScheme;
constexpr GeometryRoutine* DrawGeometryScheme10 = DrawReservedGeometryScheme;

}  // namespace trelonit
