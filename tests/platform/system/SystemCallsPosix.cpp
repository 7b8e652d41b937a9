#ifdef __linux__

#include <array>
#include <cerrno>
#include <cstddef>
#include <dlfcn.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <utility>

#include "tests/platform/system/SystemCalls.h"

namespace trelonit::test {
namespace {

// What is called before anything of this program is made must find no object here.
thread_local const std::function<int()>* answerNow = nullptr;
thread_local SystemCall callNow{};
thread_local std::function<int()> answerHeld;

bool Fails(SystemCall call) {
  if (answerNow == nullptr || callNow != call) {
    return false;
  }
  // The answer may call the system itself.
  const auto* const answer = std::exchange(answerNow, nullptr);
  const int error = (*answer)();
  answerNow = answer;
  errno = error;
  return error != 0;
}

/// The system's own behind that of this program.
template <class Call>
Call* Real(const char* name) {
  return reinterpret_cast<Call*>(::dlsym(RTLD_NEXT, name));
}

}  // namespace

WatchedCall::WatchedCall(SystemCall call, std::function<int()> answer) {
  answerHeld = std::move(answer);
  callNow = call;
  answerNow = &answerHeld;
}

WatchedCall::~WatchedCall() {
  answerNow = nullptr;
}

std::function<int()> FailsOnce(int error) {
  return [error]() mutable { return std::exchange(error, 0); };
}

}  // namespace trelonit::test

// The program's own stand before those of the libraries that it loads.

using trelonit::test::Fails;
using trelonit::test::Real;
using trelonit::test::SystemCall;

extern "C" {

int flock(int file, int operation) noexcept {
  return Fails(SystemCall::Flock) ? -1 : Real<int(int, int)>("flock")(file, operation);
}

int fsetxattr(int file, const char* name, const void* value, std::size_t size, int flags) noexcept {
  return Fails(SystemCall::Fsetxattr) ? -1
                                      : Real<int(int, const char*, const void*, std::size_t, int)>(
                                            "fsetxattr")(file, name, value, size, flags);
}

int fstat(int file, struct stat* status) noexcept {
  return Fails(SystemCall::Fstat) ? -1 : Real<int(int, struct stat*)>("fstat")(file, status);
}

int fsync(int file) {
  return Fails(SystemCall::Fsync) ? -1 : Real<int(int)>("fsync")(file);
}

int ftruncate(int file, off_t size) noexcept {
  return Fails(SystemCall::Ftruncate) ? -1 : Real<int(int, off_t)>("ftruncate")(file, size);
}

int gethostname(char* name, std::size_t size) noexcept {
  return Fails(SystemCall::Gethostname) ? -1
                                        : Real<int(char*, std::size_t)>("gethostname")(name, size);
}

int linkat(int folder, const char* from, int other, const char* to, int flags) noexcept {
  return Fails(SystemCall::Linkat) ? -1
                                   : Real<int(int, const char*, int, const char*, int)>("linkat")(
                                         folder, from, other, to, flags);
}

ssize_t pread(int file, void* bytes, std::size_t size, off_t place) {
  return Fails(SystemCall::Pread)
             ? -1
             : Real<ssize_t(int, void*, std::size_t, off_t)>("pread")(file, bytes, size, place);
}

ssize_t pwrite(int file, const void* bytes, std::size_t size, off_t place) {
  return Fails(SystemCall::Pwrite) ? -1
                                   : Real<ssize_t(int, const void*, std::size_t, off_t)>("pwrite")(
                                         file, bytes, size, place);
}

ssize_t read(int file, void* bytes, std::size_t size) {
  return Fails(SystemCall::Read)
             ? -1
             : Real<ssize_t(int, void*, std::size_t)>("read")(file, bytes, size);
}

int stat(const char* path, struct stat* status) noexcept {
  return Fails(SystemCall::Stat) ? -1 : Real<int(const char*, struct stat*)>("stat")(path, status);
}
}

#endif
