#include "windows/services/Desktop.h"

#include <QApplication>
#include <QLibraryInfo>

#include "platform/system/ProgramNames.h"
#include "windows/services/MenuBarStyle.h"

namespace trelonit {

Desktop::Desktop() {
  QApplication::setOrganizationName(QStringLiteral("Trelonit"));
  QApplication::setApplicationName(QStringLiteral("trelonit"));
  QApplication::setApplicationDisplayName(QString());
  // The main form ends the program; while it is hidden, the last window seen may well be another.
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setApplicationVersion(QLatin1String(applicationVersion));
  QApplication::setDesktopFileName(QStringLiteral("ru.trelonit.Trelonit"));
  MenuBarStyle::Install();
  qApp->installEventFilter(&icon_);
  qApp->installEventFilter(&wheel_);
  qApp->installEventFilter(&layouts_);
  if (buttons_.load(QStringLiteral("qtbase_ru"),
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&buttons_);
  }
}

}  // namespace trelonit
