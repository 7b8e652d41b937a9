#pragma once

#include <QTimer>
#include <QWidget>

#include "workstation/main/frmMain.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace trelonit {

class SectionFigure;

/// The composed section to scale. It follows the form, and so do its figures.
class SectionPanel : public QWidget {
 public:
  explicit SectionPanel(frmMain& form, QWidget* parent = nullptr);
  ~SectionPanel() override;
  SectionPanel(const SectionPanel&) = delete;
  SectionPanel& operator=(const SectionPanel&) = delete;
  /// The figures, to be placed by whoever has made the panel.
  QLabel* Facts() const { return facts_; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void Refresh();

  frmMain& form_;
  SectionFigure* figure_;
  QLabel* facts_;
  /// One change of the user raises several clicks.
  QTimer soon_;
};

/// The button that copies the section of the chosen group to others, with its menu.
QPushButton* NewCopySectionButton(frmMain& form);

/// A box in which a size is searched: what it finds is offered under it, Enter takes the first.
QLineEdit* NewSizeSearch(frmMain& form);

}  // namespace trelonit
