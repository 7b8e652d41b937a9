#pragma once

#include <algorithm>
#include <optional>
#include <vector>

#include "opinion/Explanation.h"
#include "windows/binding/OnceSettled.h"
#include "windows/results/FormulaView.h"

namespace trelonit {

/// A check by the program's own calculation and by the second opinion.
struct ExplainedCheck {
  std::optional<Explanation> Told;
  std::optional<Explanation> Opinion;

  /// The greater of the figures; 0 where there is none.
  double Greatest() const { return std::max(Told ? Told->Value : 0, Opinion ? Opinion->Value : 0); }
};

/// How figures came about: the program's own calculation and the second opinion side by side, one
/// below the other where it is narrow.
class ExplanationView : public FormulaView {
 public:
  explicit ExplanationView(NumberLocale locale, QWidget* parent = nullptr);

  /// Remarks come before the checks, a paragraph each.
  void Show(QStringList remarks, std::vector<ExplainedCheck> checks);
  /// Whether there is room for two columns.
  bool IsWide() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Rebuild();
  /// The first time that it is seen, and then from its beginning.
  void Build();

  NumberLocale locale_;
  QStringList remarks_;
  std::vector<ExplainedCheck> checks_;
  /// How it was built; not yet before it is shown, when its width is not known.
  std::optional<bool> builtWide_;
  OnceSettled build_;
};

}  // namespace trelonit
