#pragma once

#include <string>
#include <vector>

#include "opinion/Findings.h"
#include "platform/text/NumberText.h"
#include "workstation/design/DesignInputs.h"

namespace trelonit {

/// An input of the geometry.
enum class GeometryInput { Span, Height, EndPanel, PanelNum };

/// What is wrong with the truss that the inputs describe, told at the one that is to be mended.
struct GeometryFault {
  GeometryInput At = GeometryInput::Span;
  /// Danger: there is no such truss. Warning: there is, and the geometry check asks for care.
  Severity Grade = Severity::Danger;
  std::string Text;
};

/// The faults of a scheme that is calculated, the graver ones first.
std::vector<GeometryFault> FindGeometryFaults(const DesignInputs& inputs,
                                              const NumberLocale& locale);

/// A length as it was entered: to the millimetre, without zeros at its end.
std::string LengthText(double metres, const NumberLocale& locale);

}  // namespace trelonit
