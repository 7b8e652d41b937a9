#include "windows/editor/FontWindow.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <cstdlib>

#include "windows/binding/Binding.h"
#include "windows/editor/RichDocumentQt.h"

namespace trelonit {

namespace {

/// The toolkit's font dialog as a part of another one, whose keys Enter and Escape are.
class FontLists : public QFontDialog {
 public:
  explicit FontLists(const QFont& font) : QFontDialog(font) {
    setWindowFlags(Qt::Widget);
    setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog);
    setSizeGripEnabled(false);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
};

/// What the lists are to begin with. A missing family gives way to the one that the text is really
/// shown in; the style has the name that this family calls it by, for under another one the lists
/// would begin with any of its styles. A family without italics begins with an upright one.
QFont ShownFont(const CharFormat& format) {
  QFont font = FontFor(format);
  const QString family = QFontInfo(font).family();
  font.setFamilies({family});
  constexpr int otherSlope = QFont::Black;  // further than any weight
  int nearest = 2 * otherSlope;
  for (const QString& style : QFontDatabase::styles(family)) {
    const QFont candidate = QFontDatabase::font(family, style, font.pointSize());
    const int distance = std::abs(candidate.weight() - font.weight()) +
                         (candidate.italic() == font.italic() ? 0 : otherSlope);
    if (distance < nearest) {
      nearest = distance;
      font.setStyleName(style);
    }
  }
  font.setUnderline(format.Underline);
  font.setStrikeOut(format.StrikeThru);
  return font;
}

}  // namespace

FontWindow::FontWindow(const CharFormat& present, QWidget* parent)
    : QDialog(parent), present_(present), color_(present.TextColor) {
  setWindowTitle(QStringLiteral("Шрифт"));
  auto* column = new QVBoxLayout(this);
  fonts_ = new FontLists(ShownFont(present));
  offered_ = fonts_->currentFont();
  // Enter in one of its lists.
  QObject::connect(fonts_, &QDialog::accepted, this, &QDialog::accept);
  column->addWidget(fonts_, 1);
  auto* row = new QHBoxLayout;
  colorButton_ = new QPushButton(QStringLiteral("&Цвет текста..."));
  colorButton_->setObjectName(QStringLiteral("Color"));
  colorButton_->setAutoDefault(false);
  QObject::connect(colorButton_, &QPushButton::clicked, this, [this] { AskColor(); });
  row->addWidget(colorButton_);
  row->addStretch();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Ok)->setDefault(true);
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
  // A family that this machine does not have shows as another one, a style that the family does not
  // have likewise, a broken size as a whole one: whoever does not touch them keeps them.
  const bool sameFamily = font.family() == offered_.family();
  const bool sameStyle =
      sameFamily && font.bold() == offered_.bold() && font.italic() == offered_.italic();
  format.FontName = sameFamily ? present_.FontName : FromQt(font.family());
  format.FontSize =
      font.pointSizeF() == offered_.pointSizeF() ? present_.FontSize : font.pointSizeF();
  format.Bold = sameStyle ? present_.Bold : font.bold();
  format.Italic = sameStyle ? present_.Italic : font.italic();
  format.Underline = font.underline();
  format.StrikeThru = font.strikeOut();
  format.TextColor = color_;
  return format;
}

}  // namespace trelonit
