#include "windows/services/RichTextForms.h"

namespace trelonit {

const QStringList& RichTextForms() {
  static const QStringList forms{QStringLiteral("text/rtf"), QStringLiteral("application/rtf"),
                                 QStringLiteral("text/richtext")};
  return forms;
}

}  // namespace trelonit
