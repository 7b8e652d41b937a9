#include <csignal>

#include "platform/system/Interruption.h"

namespace trelonit {

namespace {

// A handler gets nothing handed to it.
std::atomic<bool> interruptionAsked{false};
struct sigaction withoutInterruption {};

static_assert(std::atomic<bool>::is_always_lock_free);

}  // namespace

Interruption::Interruption() {
  interruptionAsked = false;
  struct sigaction now {};
  now.sa_handler = [](int) { interruptionAsked = true; };
  now.sa_flags = SA_RESTART;
  ::sigaction(SIGINT, &now, &withoutInterruption);
}

Interruption::~Interruption() {
  ::sigaction(SIGINT, &withoutInterruption, nullptr);
}

const std::atomic<bool>& Interruption::IsAsked() const {
  return interruptionAsked;
}

}  // namespace trelonit
