#pragma once

#include <functional>

namespace trelonit::test {

/// Calls of this program for the system that a test can make fail.
enum class SystemCall {
  Flock,
  Fsetxattr,
  Fstat,
  Fsync,
  Ftruncate,
  Gethostname,
  Linkat,
  Pread,
  Pwrite,
  Read,
  Stat
};

/// While it lives, every such call of this thread is asked about first: the answer is the number of
/// the system's error with which it fails, or 0 where it is to happen. There is one at a time.
class WatchedCall {
 public:
  WatchedCall(SystemCall call, std::function<int()> answer);
  WatchedCall(const WatchedCall&) = delete;
  WatchedCall& operator=(const WatchedCall&) = delete;
  ~WatchedCall();
};

/// An answer: the first call fails so, the others happen.
std::function<int()> FailsOnce(int error);

}  // namespace trelonit::test
