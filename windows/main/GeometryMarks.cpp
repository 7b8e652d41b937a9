#include "windows/main/GeometryMarks.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>

#include "windows/binding/Binding.h"
#include "windows/binding/PictureIcon.h"
#include "windows/main/NoticeViews.h"

namespace trelonit {

namespace {

/// The colour of a box's figures.
void InkBox(QWidget& box, const QColor& color) {
  QPalette palette = box.palette();
  // A list that cannot be edited is drawn as a button.
  for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, color);
  }
  box.setPalette(palette);
}

}  // namespace

GeometryMarks::GeometryMarks(frmMain& form, QObject* parent)
    : QObject(parent), form_(form), words_(new ElidedLabel({})) {
  words_->setObjectName(QStringLiteral("GeometryFault"));
  words_->setMinimumHeight(words_->fontMetrics().height());
}

void GeometryMarks::Add(GeometryInput input, QWidget* box) {
  Box added{.Widget = box, .Description = box->accessibleDescription()};
  if (auto* edit = qobject_cast<QLineEdit*>(box)) {
    added.Mark = edit->addAction(QIcon(), QLineEdit::TrailingPosition);
    added.Mark->setVisible(false);
  }
  boxes_[input] = added;
}

void GeometryMarks::Show(Box& box, const GeometryFault* fault) {
  const QString text = fault == nullptr ? QString() : ToQt(fault->Text);
  const QColor ordinary = QPalette().color(QPalette::Text);
  InkBox(*box.Widget,
         fault == nullptr ? ordinary : SeverityColor(fault->Grade, box.Widget->palette()));
  box.Widget->setAccessibleDescription(text.isEmpty() ? box.Description
                                                      : text + QLatin1Char('\n') + box.Description);
  if (box.Mark == nullptr) {
    return;
  }
  if (fault != nullptr) {
    box.Mark->setIcon(PictureIcon(
        QStringLiteral(":/pictures/severity-%1.svg").arg(QLatin1String(KeyOf(fault->Grade)))));
  }
  box.Mark->setToolTip(text);
  box.Mark->setVisible(fault != nullptr);
}

void GeometryMarks::Refresh() {
  const std::vector<GeometryFault> faults = form_.GeometryFaults();
  for (auto& [input, box] : boxes_) {
    const GeometryFault* found = nullptr;
    for (const GeometryFault& fault : faults) {
      if (fault.At == input && found == nullptr) {
        found = &fault;
      }
    }
    Show(box, found);
  }
  if (faults.empty()) {
    // Clearing it would lay out and paint the whole page again with every key, empty or not.
    words_->setText({});
    words_->setToolTip({});
    return;
  }
  const GeometryFault& gravest = faults.front();
  QPalette palette = words_->palette();
  palette.setColor(QPalette::WindowText, SeverityColor(gravest.Grade, palette));
  words_->setPalette(palette);
  words_->setText(ToQt(gravest.Text));
  words_->setToolTip(words_->text().toHtmlEscaped());
}

}  // namespace trelonit
