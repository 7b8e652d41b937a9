#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "platform/forms/Controls.h"
#include "platform/system/Services.h"
#include "variants/VariantSpace.h"

namespace trelonit {

enum class AxisName {
  Span,
  Height,
  EndPanel,
  Panels,
  Upper,
  Lower,
  Diagonals,
  SupportDiagonals,
  Posts,
  Gap,
  Steel
};
constexpr std::size_t axisCount = 11;

/// An axis as the user writes it. Only one that is ticked takes part.
struct AxisInput {
  const char* Key = "";      ///< in the settings and in the names of its controls
  const char* Caption = "";  ///< with its unit
  const char* Hint = "";
  CheckBox On;
  TextBox Values;
  /// What is wrong with the values of a ticked axis; hidden where nothing is.
  Label Fault;
};

/// What is to be tried, as boxes and texts.
class VariantsAxes {
 public:
  static constexpr Long schemes = 4;

  VariantsAxes();
  VariantsAxes(const VariantsAxes&) = delete;
  VariantsAxes& operator=(const VariantsAxes&) = delete;
  ~VariantsAxes() = default;

  /// For this design: what the user has written before, else what the design suggests.
  void Begin(const DesignInputs& base, const ProfileTypeArray& catalogue,
             SettingsService& settings);
  /// Keeps what the user has written; what the design suggested is not kept.
  void Store(SettingsService& settings) const;
  /// Back to what the design suggests.
  void cmdOffer_Click();

  AxisInput& operator[](AxisName name) { return axes_[static_cast<std::size_t>(name)]; }
  const AxisInput& operator[](AxisName name) const { return axes_[static_cast<std::size_t>(name)]; }
  std::array<AxisInput, axisCount>& All() { return axes_; }
  /// By number from 1. None: as in the project.
  std::array<CheckBox, schemes> chkScheme;

  /// Whether the values of a group's axis name this kind.
  bool HasKind(AxisName name, const SectionKind& kind) const;
  /// Writes it there, or takes it away; the axis is ticked by it.
  void ToggleKind(AxisName name, const SectionKind& kind);

  /// What is ticked. Nothing where values are wrong; their faults are shown then.
  std::optional<VariantAxes> Read();

  /// Called after anything has changed.
  std::function<void()> Changed;

 private:
  struct Offered {
    std::array<std::string, axisCount> Values;
    Long Scheme = 0;
  };
  void MakeOffer(const DesignInputs& base);
  void Put(AxisName name, VariantAxes& axes) const;
  void RequireOffered(const std::vector<SectionKind>& kinds) const;
  void Touch();
  std::string Schemes() const;

  std::array<AxisInput, axisCount> axes_;
  Offered offered_;
  const ProfileTypeArray* catalogue_ = nullptr;
  bool filling_ = false;
};

}  // namespace trelonit
