#pragma once

#include <exception>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/errors/Message.h"
#include "platform/errors/RuntimeError.h"

namespace trelonit {

/// How a body came to its end.
struct Ending {
  bool Whole = true;  ///< it ran to its end
  /// What is to be told of the failure; a host may raise one without a number, of which there is
  /// nothing to tell.
  std::optional<Message> Failure;
};

/// The run-time error of the exception that is being handled, whatever was thrown: 7 where memory
/// ran out, 57 where a stream failed, 51 with its own words for what nobody foresaw. To be called
/// from a catch clause.
RuntimeError ErrorInHand();

/// Runs the body; whatever is thrown ends it and is cleared. What the body had changed before stays
/// changed.
template <class Body>
Ending RunToEnd(std::string_view title, Body&& body) {
  try {
    std::forward<Body>(body)();
    return {};
  } catch (...) {
    const RuntimeError error = ErrorInHand();
    if (error.Number() == 0) {
      return {.Whole = false};
    }
    return {.Whole = false, .Failure = ErrorMessage(title, error.Number(), error.Description())};
  }
}

/// The common tail of every handler: runs the body and shows what ended it under the title. Returns
/// whether the body ran to its end.
template <class Body>
bool Guard(MessageService& messages, std::string_view title, Body&& body) {
  const Ending ending = RunToEnd(title, std::forward<Body>(body));
  if (ending.Failure) {
    messages.Show(*ending.Failure);
  }
  return ending.Whole;
}

/// For routines that run with failures passed over: the failing statement is left and the next one
/// runs. Nothing is shown.
template <class Statement>
bool PassOver(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace trelonit
