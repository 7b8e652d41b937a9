#pragma once

#include <QProxyStyle>

namespace trelonit {

/// The style of the application, but for one mark: a menu bar asks for that of its extension as
/// soon as it is made, and the style reads it from a file, for which the toolkit loads its readers
/// of pictures, all of them. This one is painted when it is seen.
class MenuBarStyle : public QProxyStyle {
 public:
  /// Takes the application's style for its own. Styles that take their marks from the system stay.
  static void Install();

  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override;

 private:
  using QProxyStyle::QProxyStyle;
};

}  // namespace trelonit
