#include "windows/services/RichTextForms.h"

namespace trelonit {

const QStringList& RichTextForms() {
  // Word processors look for the first alone. The toolkit has a longer name for formats of the
  // system, but by that one it reads only: what it writes is registered by the name as it stands.
  static const QStringList forms{QStringLiteral("Rich Text Format"), QStringLiteral("text/rtf")};
  return forms;
}

}  // namespace trelonit
