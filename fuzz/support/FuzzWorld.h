#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>

#include "platform/errors/Message.h"
#include "platform/errors/RuntimeError.h"
#include "tests/support/TestServices.h"

namespace trelonit::fuzz {

/// A program without resources.
class NoResources : public ResourceService {
 public:
  std::string_view CustomBlock(Integer identifier) override { Raise(identifier); }
  Picture Bitmap(Integer identifier) override { Raise(identifier); }
  Picture Icon(Integer identifier) override { Raise(identifier); }
  std::string String(Integer identifier) override { Raise(identifier); }

 private:
  [[noreturn]] static void Raise(Integer identifier) { throw ResourceNotFoundError(identifier); }
};

/// Something was told that nobody foresaw; empty where there was nothing of the kind.
std::string ComplaintAboutMessages(const Messages& told);

/// A text for the user must not show what is no number.
std::string ComplaintAboutShown(std::string_view text);

/// What the body complains of; an exception that leaves it is a complaint too.
template <class Body>
std::string ComplaintUnless(Body&& body) {
  try {
    return std::forward<Body>(body)();
  } catch (const std::exception& error) {
    return std::string("an exception came out: ") + error.what();
  }
}

/// Runs a step that may fail by a run-time error; whether it ran to its end. Any other exception
/// goes on.
template <class Step>
bool MayFail(Step&& step) {
  try {
    std::forward<Step>(step)();
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace trelonit::fuzz
