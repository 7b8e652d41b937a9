#pragma once

#include "platform/errors/RuntimeError.h"

namespace trelonit {

// Failures that only a drawing host has, with numbers in its manner.

/// A name that is not in the drawing.
RuntimeError KeyNotFound();
/// A name that no record may have.
RuntimeError InvalidName();
/// A selection set of this name is there already.
RuntimeError SetExists();
/// A set that was deleted.
RuntimeError ObjectErased();
/// There is no document to be the active one.
RuntimeError NoDocument();
/// A system variable that the host does not know.
RuntimeError UnknownVariable();
/// An object of a document that was closed, or of a host that is gone.
RuntimeError Disconnected();

}  // namespace trelonit
