#pragma once

#include <QAbstractButton>
#include <QObject>
#include <vector>

namespace trelonit {

/// Buttons of which one is chosen, as one stop of Tab: it comes to the chosen one, and arrows go on
/// from there to the next one by its place, Home and End to the first and the last.
class OneTabStop : public QObject {
 public:
  /// Whether an arrow chooses the button that it leads to, as with options, or leaves that to
  /// Space, where a choice costs the user something.
  enum class Arrows { Choose, Lead };

  /// The buttons live as long as their parent, which owns this too.
  OneTabStop(QWidget* parent, std::vector<QAbstractButton*> buttons, Arrows arrows);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakeKey(const QAbstractButton& from, int key);
  QAbstractButton* Beside(const QAbstractButton& from, int key) const;
  /// The next one in the row of all.
  QAbstractButton* Next(const QAbstractButton& from, int step) const;
  void Stop(QAbstractButton* button);
  /// Where the present stop is gone, the chosen button is it, or else the first.
  void Refresh();

  std::vector<QAbstractButton*> buttons_;
  Arrows arrows_;
  QAbstractButton* stop_ = nullptr;
};

}  // namespace trelonit
