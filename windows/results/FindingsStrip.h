#pragma once

#include "windows/main/NoticeViews.h"
#include "workstation/design/SecondOpinion.h"

class QScrollArea;
class QToolButton;
class QVBoxLayout;

namespace trelonit {

/// One line on what the second opinion found, the gravest first. It opens to all findings, each
/// with the way to its page of the guide.
class FindingsStrip : public NoticeFrame {
 public:
  explicit FindingsStrip(const SecondOpinion& opinion, QWidget* parent = nullptr);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// As high as its findings, up to a limit beyond which it scrolls.
  void FitList();
  /// A line without a list behind it.
  void AddStatement(const QString& text, std::optional<Severity> severity);
  void AddSummary(const std::vector<Finding>& findings);
  void AddList();
  void FillList(const std::vector<Finding>& findings);
  QToolButton* AddHelp(QHBoxLayout& row, const QString& about, const QString& place);

  QVBoxLayout* column_;
  QHBoxLayout* row_;
  QScrollArea* list_ = nullptr;
};

}  // namespace trelonit
