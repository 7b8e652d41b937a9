#pragma once

#include <QTextBrowser>
#include <cstddef>
#include <functional>
#include <vector>

#include "windows/help/HelpPages.h"

namespace trelonit {

/// A page of the guide with its marks. Whatever way leads to a page, one that is none of the guide
/// is refused.
class HelpPageView : public QTextBrowser {
 public:
  HelpPageView();

  void Go(const QString& page);
  /// A refusal, in words.
  std::function<void(const QString& text)> Refused;

  /// Marks every place of the words; the former marks go.
  void Mark(const QStringList& words);
  /// Selects the first marked place and brings it into sight.
  void GoToFirstMark();

  /// Which place of a text was found, from 1 on, and of how many; nothing found is 0 of 0.
  struct Found {
    std::size_t Place = 0;
    std::size_t Places = 0;
  };
  /// Marks the text and goes to its next place from the present one, round the page.
  Found FindNext(const QString& text, bool forward);
  /// The next search begins with the present place itself, for a text that is still being typed.
  void StayAtPlace();

  /// 0 is the usual size of the letters; too large a step counts as the largest.
  void ZoomTo(int step);
  int Zoom() const { return zoom_; }

 private:
  void Follow(const QUrl& link);
  void GoTo(const HelpSpan& span);

  std::vector<HelpSpan> marked_;
  int zoom_ = 0;
};

}  // namespace trelonit
