#pragma once

namespace trelonit {

/// Tonnes of force per cm2 to MPa: 1 t = 9.81 kN and 1 cm2 = 100 mm2.
constexpr double megapascals = 98.1;

}  // namespace trelonit
