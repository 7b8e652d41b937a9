#pragma once

#include <QTranslator>

#include "windows/services/LayoutsAtRest.h"
#include "windows/services/WheelGuard.h"

namespace trelonit {

/// What the toolkit is told once about this program: its name (by which settings are found), the
/// Russian of its own buttons. Lives as long as the application object.
class Desktop {
 public:
  Desktop();

 private:
  QTranslator buttons_;
  WheelGuard wheel_;
  LayoutsAtRest layouts_;
};

}  // namespace trelonit
