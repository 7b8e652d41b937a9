#pragma once

#include <QObject>
#include <map>

#include "workstation/main/frmMain.h"

class QAction;
class QLabel;
class QWidget;

namespace trelonit {

/// What is wrong with the geometry, at the box that is to be mended: a mark, red figures and, in a
/// line under the boxes, the words.
class GeometryMarks : public QObject {
 public:
  GeometryMarks(frmMain& form, QObject* parent);

  /// The box of an input; marks show from the next refresh on.
  void Add(GeometryInput input, QWidget* box);
  /// The line with the words of the gravest fault; it keeps its place while there is none.
  QLabel* Words() const { return words_; }
  void Refresh();

 private:
  struct Box {
    QWidget* Widget = nullptr;
    QAction* Mark = nullptr;  ///< in a line edit
    QString Description;      ///< what is read aloud of it while nothing is wrong
  };
  static void Show(Box& box, const GeometryFault* fault);

  frmMain& form_;
  QLabel* words_;
  std::map<GeometryInput, Box> boxes_;
};

}  // namespace trelonit
