#pragma once

class QLineEdit;

namespace trelonit {

/// A cross at the end of the box while there is a text in it, which it takes away. The toolkit's
/// own searches every folder of icons of the system when the first of it is made.
void AddClearButton(QLineEdit& edit);

}  // namespace trelonit
