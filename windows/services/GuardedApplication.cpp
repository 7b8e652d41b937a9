#include "windows/services/GuardedApplication.h"

#include <cstdio>

#include "platform/errors/Guard.h"

namespace trelonit {

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    const RuntimeError error = ErrorInHand();
    try {
      if (Tell && error.Number() != 0) {
        Tell(error);
      }
    } catch (...) {
      std::fprintf(stderr, "trelonit: %s\n", error.what());
    }
  }
  return false;
}

}  // namespace trelonit
