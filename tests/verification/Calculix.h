#pragma once

#include <string>
#include <vector>

#include "analysis/Scheme.h"
#include "opinion/Statics.h"

namespace trelonit::verification {

/// What CalculiX finds for a truss: forces in tonnes by bar, movements in metres by joint.
struct ElasticTruss {
  std::vector<double> Forces;
  std::vector<Displacement> Moved;
};

/// Runs ccx on the truss in this folder. Loads in tonnes by joint, downward; areas in cm2 by bar; E
/// in MPa. Throws std::runtime_error where ccx gives no whole answer.
ElasticTruss RunCalculix(const std::string& folder, const Truss& truss,
                         const std::vector<double>& loads, const std::vector<double>& areas,
                         double E);

}  // namespace trelonit::verification
