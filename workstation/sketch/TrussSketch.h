#pragma once

#include "platform/text/NumberText.h"
#include "workstation/design/DesignInputs.h"
#include "workstation/sketch/SketchList.h"

namespace trelonit {

/// A truss to scale with its dimensions, as the inputs have it.
struct TrussSketch : SketchList {
  /// Points of the canvas a metre has; 0 where no truss is drawn.
  double Scale = 0;
  /// The same in words, for who hears the screen.
  std::string Words;
};

/// Draws the truss with its span, height, panels and the slopes of its diagonals. Where there is
/// none, what is wrong stands in the place of it; a scheme that is not calculated has no picture.
TrussSketch SketchTruss(const DesignInputs& inputs, const SketchCanvas& canvas,
                        const NumberLocale& locale);

}  // namespace trelonit
