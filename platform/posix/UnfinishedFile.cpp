#include "platform/posix/UnfinishedFile.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <unistd.h>

namespace trelonit {

namespace {

// A handler gets nothing handed to it, so what it looks at stands here, in atoms and in a buffer
// that only changes while the atom beside it says that it holds nothing.

constexpr std::array interruptions{SIGINT, SIGTERM, SIGHUP};

std::atomic<bool> roomTaken{false};
std::atomic<bool> nameWhole{false};
std::array<char, PATH_MAX> unfinishedName{};
std::atomic<int> holders{0};
std::atomic<int> waitingSignal{0};

static_assert(std::atomic<bool>::is_always_lock_free && std::atomic<int>::is_always_lock_free);

/// Only what is safe in a handler.
void EndBy(int signal) {
  if (nameWhole) {
    ::unlink(unfinishedName.data());
  }
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

void OnInterruption(int signal) {
  const int before = errno;
  if (holders > 0) {
    waitingSignal = signal;
  } else {
    EndBy(signal);
  }
  errno = before;
}

}  // namespace

void TakeUnfinishedFileAlongWhenInterrupted() {
  for (const int signal : interruptions) {
    struct sigaction now {};
    if (::sigaction(signal, nullptr, &now) != 0 || now.sa_handler != SIG_DFL) {
      continue;
    }
    now.sa_handler = OnInterruption;
    now.sa_flags = SA_RESTART;
    ::sigaction(signal, &now, nullptr);
  }
}

UnfinishedFile::UnfinishedFile(const std::filesystem::path& path)
    : holdsTheRoom_(path.native().size() < unfinishedName.size() && !roomTaken.exchange(true)) {
  if (holdsTheRoom_) {
    *std::copy(path.native().begin(), path.native().end(), unfinishedName.begin()) = '\0';
    nameWhole = true;
  }
}

UnfinishedFile::~UnfinishedFile() {
  if (holdsTheRoom_) {
    nameWhole = false;
    roomTaken = false;
  }
}

HeldInterruption::HeldInterruption() {
  ++holders;
}

HeldInterruption::~HeldInterruption() {
  if (--holders == 0) {
    if (const int signal = waitingSignal.exchange(0); signal != 0) {
      EndBy(signal);
    }
  }
}

}  // namespace trelonit
