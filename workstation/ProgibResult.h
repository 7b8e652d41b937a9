#pragma once

namespace trelonit {

/// The deflection and its limit, metres.
struct ProgibResult {
  double Value = 0;
  double Limit = 0;
  /// A deflection equal to the limit satisfies it.
  bool Satisfied = false;
};

}  // namespace trelonit
