#pragma once

#include <QStringList>

namespace trelonit {

/// The names under which the programs of this system hand rich text on by the clipboard, the most
/// usual first.
const QStringList& RichTextForms();

}  // namespace trelonit
