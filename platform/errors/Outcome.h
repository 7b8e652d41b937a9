#pragma once

#include <string_view>
#include <utility>

#include "platform/errors/Guard.h"
#include "platform/errors/Message.h"

namespace trelonit {

/// What a routine of the core has come to. It shows nothing itself: whoever has a window does, and
/// whoever calculates on the side does not.
template <class T>
struct Outcome {
  T Value{};
  Messages Told;
};

/// Takes the value of an outcome; what it tells joins the list.
template <class T>
T TakeValue(Outcome<T>&& outcome, Messages& told) {
  for (Message& message : outcome.Told) {
    told.push_back(std::move(message));
  }
  return std::move(outcome.Value);
}

/// Shows what a routine has told and gives its value.
template <class T>
T ShowTold(MessageService& messages, Outcome<T>&& outcome) {
  ShowAll(messages, outcome.Told);
  return std::move(outcome.Value);
}

/// Runs a body that tells into a list and shows the list, also where an error ends the body; the
/// error goes on.
template <class Body>
auto ShowTold(MessageService& messages, Body&& body) -> decltype(body(std::declval<Messages&>())) {
  Messages told;
  try {
    auto value = std::forward<Body>(body)(told);
    ShowAll(messages, told);
    return value;
  } catch (...) {
    ShowAll(messages, told);
    throw;
  }
}

/// The common tail of the core's routines: runs the body, which fills the outcome; a run-time error
/// ends it and is told under the title. What the body had put there before stays.
template <class T, class Body>
Outcome<T> Attempt(std::string_view title, Body&& body) {
  Outcome<T> outcome;
  Ending ending = RunToEnd(title, [&] { std::forward<Body>(body)(outcome); });
  if (ending.Failure) {
    outcome.Told.push_back(std::move(*ending.Failure));
  }
  return outcome;
}

}  // namespace trelonit
