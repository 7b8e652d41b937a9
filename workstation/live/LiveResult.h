#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/text/NumberText.h"
#include "workstation/design/Design.h"
#include "workstation/design/DesignInputs.h"
#include "workstation/results/ResultPicture.h"

namespace trelonit {

// What becomes of a design while it is being entered: calculated on the side, as Calculate and the
// second opinion would, without a word and without a trace.

/// The largest coefficient of a group.
struct LiveGroup {
  GroupOption Group = optionUpPoyas;
  double Told = 0;
  /// By the norm; nothing where there is no second opinion.
  std::optional<double> Opinion;
  std::string Value;  ///< the told one, as it is shown
  std::string Hint;   ///< both, with the checks that rule them

  bool Fails() const { return Told > 1; }
  /// The norm refuses what the calculation passes.
  bool FailsByOpinionOnly() const { return !Fails() && Opinion && *Opinion > 1; }
};

/// A figure of the whole truss.
struct LiveFigure {
  std::string Caption;
  std::string Value;
  std::string Hint;
  bool Fails = false;
};

struct LiveResult {
  /// Why there is none, for the user; then all else is empty.
  std::string Refusal;
  /// In the order of the results; no verticals where the scheme has none.
  std::vector<LiveGroup> Groups;
  std::vector<LiveFigure> Figures;  ///< mass, deflection

  bool HasRefused() const { return !Refusal.empty(); }
  /// Everything in words, for who hears the screen.
  std::string InWords() const;
};

/// The result of these inputs. The state is that of their loads: what own weight they hold already.
/// Never fails.
LiveResult FormLiveResult(const DesignInputs& inputs, const OwnWeightState& ownWeight,
                          const NumberLocale& locale);

}  // namespace trelonit
