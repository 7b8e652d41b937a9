#include "windows/services/MenuBarStyle.h"

#include <QApplication>

#include "windows/binding/PictureIcon.h"

namespace trelonit {

void MenuBarStyle::Install() {
  if (QStyle* style = QApplication::style(); style->name() == QLatin1String("fusion")) {
    QApplication::setStyle(new MenuBarStyle(style));
  }
}

QIcon MenuBarStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const {
  return icon == SP_ToolBarHorizontalExtensionButton
             ? PictureIcon(QStringLiteral(":/pictures/menu-more.svg"))
             : QProxyStyle::standardIcon(icon, option, widget);
}

}  // namespace trelonit
