#include "windows/services/FontsAhead.h"

#include <QFontDatabase>
#include <QLibrary>
#include <clocale>

namespace trelonit {

namespace {

using Reading = int (*)();

/// How the library by which freedesktop systems find fonts reads their list. The toolkit loads it
/// too; null where there is none and so nothing to read ahead.
Reading FindReading() {
  constexpr int version = 1;
  return reinterpret_cast<Reading>(
      QLibrary::resolve(QStringLiteral("fontconfig"), version, "FcInit"));
}

}  // namespace

FontsAhead::FontsAhead() {
  // The application would set the locale while the list is being read.
  std::setlocale(LC_ALL, "");
  // The first thread that asks the toolkit for anything counts as its main one: this asks here.
  reading_ = std::thread([read = FindReading(), ready = ready_.get_future()]() mutable {
    if (read != nullptr) {
      read();
    }
    if (ready.get()) {
      QFontDatabase::families();
    }
  });
}

void FontsAhead::TakeOver() {
  ready_.set_value(true);
  told_ = true;
}

FontsAhead::~FontsAhead() {
  if (!told_) {
    ready_.set_value(false);
  }
  reading_.join();
}

}  // namespace trelonit
