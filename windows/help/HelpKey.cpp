#include "windows/help/HelpKey.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMainWindow>
#include <QTabWidget>
#include <QVariant>

namespace trelonit {

namespace {

constexpr const char* placeProperty = "helpPlace";
const QString messagePrefix = QStringLiteral("message:");

/// The place of the widget itself or of what it shows in front.
QString OwnPlace(const QWidget* widget) {
  const QVariant place = widget->property(placeProperty);
  if (place.isValid()) {
    return place.toString();
  }
  if (const auto* tabs = qobject_cast<const QTabWidget*>(widget)) {
    return tabs->currentWidget() == nullptr ? QString() : OwnPlace(tabs->currentWidget());
  }
  if (const auto* window = qobject_cast<const QMainWindow*>(widget)) {
    const auto* tabs = window->findChild<const QTabWidget*>();
    return tabs == nullptr ? QString() : OwnPlace(tabs);
  }
  return {};
}

}  // namespace

QString FindingPlace(FindingCode code) {
  return QStringLiteral("finding-") + QLatin1String(KeyOf(code));
}

QString MessagePlace(const ToldMessage& message) {
  return messagePrefix + message.Title + QChar::LineSeparator + message.Text;
}

std::optional<ToldMessage> MessageOf(const QString& place) {
  if (!place.startsWith(messagePrefix)) {
    return std::nullopt;
  }
  const QString told = place.mid(messagePrefix.size());
  return ToldMessage{told.section(QChar::LineSeparator, 0, 0),
                     told.section(QChar::LineSeparator, 1)};
}

void SetHelpPlace(QWidget& widget, const QString& place) {
  widget.setProperty(placeProperty, place);
}

void AskForHelp(QWidget& asking, const QString& place) {
  // The toolkit's own event of a link that leads into a help.
  QWhatsThisClickedEvent link(place);
  QApplication::sendEvent(&asking, &link);
}

QString HelpPlaceOf(const QWidget* widget) {
  // A box without a place belongs to the window that it stands over.
  for (; widget != nullptr; widget = widget->parentWidget()) {
    const QString place = OwnPlace(widget);
    if (!place.isEmpty()) {
      return place;
    }
  }
  return {};
}

HelpKey::HelpKey(std::function<void(const QString& place)> open) : open_(std::move(open)) {
  qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WhatsThisClicked) {
    open_(static_cast<QWhatsThisClickedEvent*>(event)->href());
    return true;
  }
  const bool asked = event->type() == QEvent::ShortcutOverride;
  if ((!asked && event->type() != QEvent::KeyPress) || !watched->isWidgetType()) {
    return false;
  }
  const auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) {
    return false;
  }
  event->accept();
  if (asked || key->isAutoRepeat()) {
    return true;
  }
  const QString place = HelpPlaceOf(static_cast<QWidget*>(watched));
  // An open list or menu would keep the keys from the help.
  while (QWidget* popup = QApplication::activePopupWidget()) {
    if (!popup->close()) {
      break;
    }
  }
  open_(place);
  return true;
}

}  // namespace trelonit
