#include "platform/system/Interruption.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

namespace {

// The system calls its handlers in a thread of their own, with nothing handed to them.
std::atomic<bool> interruptionAsked{false};

BOOL WINAPI AskForTheEnd(DWORD event) {
  interruptionAsked = event == CTRL_C_EVENT;
  return interruptionAsked ? TRUE : FALSE;
}

}  // namespace

Interruption::Interruption() {
  interruptionAsked = false;
  SetConsoleCtrlHandler(AskForTheEnd, TRUE);
}

Interruption::~Interruption() {
  SetConsoleCtrlHandler(AskForTheEnd, FALSE);
}

const std::atomic<bool>& Interruption::IsAsked() const {
  return interruptionAsked;
}

}  // namespace trelonit
