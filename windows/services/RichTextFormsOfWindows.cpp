#include "windows/services/RichTextForms.h"

namespace trelonit {

const QStringList& RichTextForms() {
  // Word processors look for this one alone. The toolkit takes a name of this kind for that of a
  // registered format, both ways.
  static const QStringList forms{
      QStringLiteral("application/x-qt-windows-mime;value=\"Rich Text Format\""),
      QStringLiteral("text/rtf")};
  return forms;
}

}  // namespace trelonit
