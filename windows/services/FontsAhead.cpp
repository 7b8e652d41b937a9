#include "windows/services/FontsAhead.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QImageReader>
#include <QLibrary>
#include <clocale>

namespace trelonit {

namespace {

using Reading = int (*)();

/// How the library by which freedesktop systems find fonts reads their list. The toolkit loads it
/// too. Null elsewhere: there is nothing to read ahead, and on Windows a thread may not use the
/// toolkit so, because GCC gives what is a thread's own back before it is destroyed there.
Reading FindReading() {
  constexpr int version = 1;
  return reinterpret_cast<Reading>(
      QLibrary::resolve(QStringLiteral("fontconfig"), version, "FcInit"));
}

/// Which fonts step in where one has no letter is found once for each script, and for all threads.
void FindSubstitutes() {
  constexpr QChar latin = u'T';
  constexpr QChar cyrillic = u'Ф';
  const QFontMetrics metrics{QFont()};
  metrics.horizontalAdvance(latin);
  metrics.horizontalAdvance(cyrillic);
}

/// Whatever picture the toolkit reads first, be it the frame of a group, it asks every reader that
/// it has.
void LoadImageReaders() {
  QBuffer nothing;
  nothing.open(QIODevice::ReadOnly);
  QImageReader(&nothing).canRead();
}

}  // namespace

FontsAhead::FontsAhead() {
  // The application would set the locale while the list is being read.
  std::setlocale(LC_ALL, "");
  // The first thread that asks the toolkit for anything counts as its main one: this asks here.
  const Reading read = FindReading();
  if (read == nullptr) {
    listRead_.set_value();
    return;
  }
  reading_ = std::thread([this, read, ready = ready_.get_future()]() mutable {
    read();
    listRead_.set_value();
    if (!ready.get()) {
      return;
    }
    QFontDatabase::families();
    FindSubstitutes();
    LoadImageReaders();
  });
}

FontsAhead::~FontsAhead() {
  TellReady(false);
  Wait();
}

void FontsAhead::TellReady(bool ready) {
  if (!told_) {
    told_ = true;
    ready_.set_value(ready);
  }
}

void FontsAhead::Wait() {
  if (reading_.joinable()) {
    reading_.join();
  }
}

void FontsAhead::WaitForList() {
  listRead_.get_future().wait();
}

FontsAhead::Taken::Taken(FontsAhead& fonts) : fonts_(fonts) {
  fonts_.TellReady(true);
}

FontsAhead::Taken::~Taken() {
  fonts_.Wait();
}

}  // namespace trelonit
