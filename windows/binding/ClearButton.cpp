#include "windows/binding/ClearButton.h"

#include <QAction>
#include <QLineEdit>

#include "windows/binding/PictureIcon.h"

namespace trelonit {

void AddClearButton(QLineEdit& edit) {
  QAction* clear = edit.addAction(PictureIcon(QStringLiteral(":/pictures/tool-clear.svg")),
                                  QLineEdit::TrailingPosition);
  clear->setObjectName(QStringLiteral("ClearText"));
  clear->setToolTip(QStringLiteral("Очистить"));
  clear->setVisible(!edit.text().isEmpty());
  QObject::connect(&edit, &QLineEdit::textChanged, clear,
                   [clear](const QString& text) { clear->setVisible(!text.isEmpty()); });
  QObject::connect(clear, &QAction::triggered, &edit, [&edit] {
    edit.clear();
    // As if the text had been deleted by keys.
    emit edit.textEdited({});
  });
}

}  // namespace trelonit
