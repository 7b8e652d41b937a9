#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>
#include <random>

namespace trelonit::fuzz {

/// A user who clicks, types, drags and chooses at random, in whatever windows the program shows.
/// Tells on standard error what it is about to do, so that the last line is the cause.
class RandomHand {
 public:
  explicit RandomHand(unsigned seed) : random_(seed) {}

  /// One act. Returns when a dialogue that it has opened is closed.
  void Act();
  long Acts() const { return acts_; }
  /// From 0, below the count; 0 for none.
  int Below(int count);

 private:
  QWidget* Window();
  QWidget& Place(QWidget& window);
  QPoint Point(const QWidget& widget);
  void Tell(const char* what, const QWidget& widget, const QString& how = {}) const;

  void Click(QWidget& window);
  void Drag(QWidget& window);
  void Type(QWidget& window);
  void Press(QWidget& window);
  void Turn(QWidget& window);
  void AskForMenu(QWidget& window);
  void Choose(QWidget& window);
  void Resize(QWidget& window);
  void FillClipboard();
  void Close(QWidget& window);

  std::mt19937 random_;
  long acts_ = 0;
};

}  // namespace trelonit::fuzz
