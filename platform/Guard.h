#pragma once

#include <new>
#include <string_view>
#include <utility>

#include "platform/Message.h"
#include "platform/RuntimeError.h"

namespace trelonit {

/// The common tail of every handler and guarded routine: runs the body; a run-time error ends it,
/// is shown under the title and is cleared. Returns whether the body ran to its end. What the body
/// had changed before stays changed.
template <class Body>
bool Guard(MessageService& messages, std::string_view title, Body&& body) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const RuntimeError& error) {
    // A host may raise a failure without a number: there is nothing to tell then.
    if (error.Number() != 0) {
      messages.Show(ErrorMessage(title, error.Number(), error.Description()));
    }
  } catch (const std::bad_alloc&) {
    const RuntimeError error(ErrorNumber::OutOfMemory);
    messages.Show(ErrorMessage(title, error.Number(), error.Description()));
  }
  return false;
}

/// For routines that run with failures passed over: the failing statement is left and the next one
/// runs. Nothing is shown.
template <class Statement>
bool PassOver(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
    return true;
  } catch (const RuntimeError&) {
    return false;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

}  // namespace trelonit
