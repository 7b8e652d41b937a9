#pragma once

#include <QTranslator>

#include "windows/services/IconOnceShown.h"
#include "windows/services/LayoutsAtRest.h"
#include "windows/services/WheelGuard.h"

namespace trelonit {

/// What the toolkit is told once about this program: its name (by which settings are found), its
/// icon and style, the Russian of its own buttons. Lives as long as the application object.
class Desktop {
 public:
  Desktop();

 private:
  QTranslator buttons_;
  IconOnceShown icon_;
  WheelGuard wheel_;
  LayoutsAtRest layouts_;
};

}  // namespace trelonit
