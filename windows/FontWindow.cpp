#include "windows/FontWindow.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QPushButton>
#include <QVBoxLayout>

#include "windows/Binding.h"
#include "windows/RichDocumentQt.h"

namespace trelonit {

FontWindow::FontWindow(const CharFormat& present, QWidget* parent)
    : QDialog(parent), color_(present.TextColor) {
  setWindowTitle(QStringLiteral("Шрифт"));
  auto* column = new QVBoxLayout(this);
  QFont font = FontFor(present);
  font.setUnderline(present.Underline);
  font.setStrikeOut(present.StrikeThru);
  fonts_ = new QFontDialog(font);
  fonts_->setWindowFlags(Qt::Widget);
  fonts_->setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog);
  column->addWidget(fonts_, 1);
  auto* row = new QHBoxLayout;
  colorButton_ = new QPushButton(QStringLiteral("&Цвет текста..."));
  colorButton_->setObjectName(QStringLiteral("Color"));
  colorButton_->setAutoDefault(false);
  QObject::connect(colorButton_, &QPushButton::clicked, this, [this] { AskColor(); });
  row->addWidget(colorButton_);
  row->addStretch();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QObject::connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  row->addWidget(buttons);
  column->addLayout(row);
  ShowColor();
}

void FontWindow::AskColor() {
  const QColor chosen = QColorDialog::getColor(ToQt(color_), this);
  if (chosen.isValid()) {
    color_ = ColorOf(chosen);
    ShowColor();
  }
}

void FontWindow::ShowColor() {
  constexpr int side = 16;
  QPixmap sample(side, side);
  sample.fill(ToQt(color_));
  colorButton_->setIcon(sample);
}

CharFormat FontWindow::Chosen() const {
  const QFont font = fonts_->currentFont();
  CharFormat format;
  format.FontName = FromQt(font.family());
  format.FontSize = font.pointSizeF();
  format.Bold = font.bold();
  format.Italic = font.italic();
  format.Underline = font.underline();
  format.StrikeThru = font.strikeOut();
  format.TextColor = color_;
  return format;
}

}  // namespace trelonit
