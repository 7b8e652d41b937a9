// Loaded before a program's own libraries (LD_PRELOAD), this fails one of its calls for files, so
// that a script can find out what becomes of the files. Only calls for files below one folder are
// counted: those of the loader, of the toolkit and of locales do not matter. Orders come by
// variables:
//   FAULTS_BELOW   the folder, or one file: an absolute path without links
//   FAULTS_AT      the number of the call that fails, counted from 1; with "+" behind it all from
//                  this one on fail, as on a disk that stays full
//   FAULTS_AS      the number of the error; "tear": half of what is to be written is, then the disk
//                  is full, and of what is to be read half is; "kill": the process is killed before
//                  the call; "tear-kill": in the middle of what it writes
//   FAULTS_SEEN    a file that gets the names of all calls that were counted, a line each, at exit
//   FAULTS_NAMED   not empty: the file system knows no files without names
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

enum class Way { Error, Tear, Kill, TearKill };

std::string_view Variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

struct Orders {
  std::string_view Below = Variable("FAULTS_BELOW");
  std::string_view As = Variable("FAULTS_AS");
  long At = std::atol(Variable("FAULTS_AT").data());
  bool AllFromThere = Variable("FAULTS_AT").ends_with('+');
  bool NoNameless = !Variable("FAULTS_NAMED").empty();
  Way How = As == "tear"        ? Way::Tear
            : As == "kill"      ? Way::Kill
            : As == "tear-kill" ? Way::TearKill
                                : Way::Error;
  int Error = std::atoi(As.data());
};

/// Made at the first call, which may come before any constructor of this library.
const Orders& TheOrders() {
  static const Orders orders;
  return orders;
}

// No allocation: calls come from everywhere.
constexpr long mostNoted = 65536;
std::array<const char*, mostNoted> seen{};
std::atomic<long> count{0};
/// After a torn write the disk is full, once.
std::atomic<bool> fullNow{false};

/// Its text and length; links are not followed.
struct Path {
  Path(int folder, const char* name) {
    if (name == nullptr || name[0] != '/') {
      OfDescriptor(folder);
      Append("/");
    }
    Append(name != nullptr ? name : "");
  }
  explicit Path(int descriptor) { OfDescriptor(descriptor); }

  bool IsMeant() const {
    const std::string_view path(text_.data(), length_);
    const std::string_view below = TheOrders().Below;
    return !below.empty() && path.starts_with(below) &&
           (path.size() == below.size() || path[below.size()] == '/');
  }

 private:
  void OfDescriptor(int descriptor) {
    // "/proc/self/fd/" and a number, without an allocation.
    std::array<char, 32> link{"/proc/self/fd/"};
    if (descriptor == AT_FDCWD) {
      std::strcpy(link.data(), "/proc/self/cwd");
    } else {
      std::array<char, 12> digits{};
      std::size_t place = digits.size() - 1;
      for (unsigned rest = static_cast<unsigned>(descriptor); place > 0; rest /= 10) {
        digits[--place] = static_cast<char>('0' + rest % 10);
        if (rest < 10) {
          break;
        }
      }
      std::strcat(link.data(), digits.data() + place);
    }
    const ssize_t size = ::readlink(link.data(), text_.data(), text_.size());
    length_ = size > 0 ? static_cast<std::size_t>(size) : 0;
  }
  void Append(const char* name) {
    const std::size_t size = std::min(std::strlen(name), text_.size() - length_);
    std::memcpy(text_.data() + length_, name, size);
    length_ += size;
  }

  std::array<char, PATH_MAX> text_{};
  std::size_t length_ = 0;
};

[[noreturn]] void Die() {
  ::kill(::getpid(), SIGKILL);
  std::abort();
}

/// Counts a call that is meant; what is to happen to it, if anything.
std::optional<Way> Planted(const char* name, const Path& path) {
  if (!path.IsMeant()) {
    return std::nullopt;
  }
  const long number = ++count;
  if (number <= mostNoted) {
    seen[static_cast<std::size_t>(number - 1)] = name;
  }
  const Orders& orders = TheOrders();
  const bool now =
      orders.At > 0 && (number == orders.At || (orders.AllFromThere && number > orders.At));
  return now ? std::optional(orders.How) : std::nullopt;
}

/// A call that happens or does not.
template <class Result, class Call>
Result Whole(const char* name, const Path& path, Result failed, Call call) {
  const std::optional<Way> way = Planted(name, path);
  if (way == Way::Kill || way == Way::TearKill) {
    Die();
  }
  if (way == Way::Error) {
    errno = TheOrders().Error;
    return failed;
  }
  return call();
}

template <class Call>
ssize_t Read(const char* name, int file, std::size_t size, Call call) {
  const std::optional<Way> way = Planted(name, Path(file));
  if (way == Way::Kill || way == Way::TearKill) {
    Die();
  }
  if (way == Way::Error) {
    errno = TheOrders().Error;
    return -1;
  }
  return call(way == Way::Tear && size > 1 ? size / 2 : size);
}

template <class Call>
ssize_t Write(const char* name, int file, std::size_t size, Call call) {
  const std::optional<Way> way = Planted(name, Path(file));
  if (way == Way::Kill) {
    Die();
  }
  if (way == Way::Error) {
    errno = TheOrders().Error;
    return -1;
  }
  if (fullNow.exchange(false)) {
    errno = ENOSPC;
    return -1;
  }
  if (!way) {
    return call(size);
  }
  const ssize_t written = call(size / 2);
  if (way == Way::TearKill) {
    Die();
  }
  fullNow = true;
  return written;
}

mode_t ModeOf(int flags, va_list& more) {
  return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(more, mode_t) : 0;
}

template <class Call>
int Open(const char* name, int folder, const char* file, int flags, Call call) {
  const Path path(folder, file);
  if ((flags & O_TMPFILE) == O_TMPFILE && TheOrders().NoNameless && path.IsMeant()) {
    errno = EOPNOTSUPP;
    return -1;
  }
  return Whole(name, path, -1, call);
}

void TellSeen() {
  const char* const file = std::getenv("FAULTS_SEEN");
  if (file == nullptr) {
    return;
  }
  const int out = static_cast<int>(
      ::syscall(SYS_openat, AT_FDCWD, file, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
  for (long number = 0; number < std::min(count.load(), mostNoted); ++number) {
    const std::string_view name = seen[static_cast<std::size_t>(number)];
    static_cast<void>(::syscall(SYS_write, out, name.data(), name.size()));
    static_cast<void>(::syscall(SYS_write, out, "\n", 1));
  }
  ::syscall(SYS_close, out);
}

[[gnu::destructor]] void AtExit() {
  TellSeen();
}

}  // namespace

// The routine that a program would have called without this library.
#define NEXT(name) reinterpret_cast<decltype(&::name)>(::dlsym(RTLD_NEXT, #name))

// Each routine and its double for large files are the same here.
#define OPEN(name)                                                                            \
  int name(const char* file, int flags, ...) {                                                \
    va_list more;                                                                             \
    va_start(more, flags);                                                                    \
    const mode_t mode = ModeOf(flags, more);                                                  \
    va_end(more);                                                                             \
    return Open(#name, AT_FDCWD, file, flags, [&] { return NEXT(name)(file, flags, mode); }); \
  }
#define OPENAT(name)                                                    \
  int name(int folder, const char* file, int flags, ...) {              \
    va_list more;                                                       \
    va_start(more, flags);                                              \
    const mode_t mode = ModeOf(flags, more);                            \
    va_end(more);                                                       \
    return Open(#name, folder, file, flags,                             \
                [&] { return NEXT(name)(folder, file, flags, mode); }); \
  }
#define MKOSTEMP(name)                                                                            \
  int name(char* pattern, int flags) {                                                            \
    return Whole(#name, Path(AT_FDCWD, pattern), -1, [&] { return NEXT(name)(pattern, flags); }); \
  }
#define PREAD(name, place)                                                         \
  ssize_t name(int file, void* bytes, size_t size, place from) {                   \
    return Read(#name, file, size,                                                 \
                [&](size_t part) { return NEXT(name)(file, bytes, part, from); }); \
  }
#define PWRITE(name, place)                                                       \
  ssize_t name(int file, const void* bytes, size_t size, place to) {              \
    return Write(#name, file, size,                                               \
                 [&](size_t part) { return NEXT(name)(file, bytes, part, to); }); \
  }
#define FTRUNCATE(name, length)                                                  \
  int name(int file, length size) noexcept {                                     \
    return Whole(#name, Path(file), -1, [&] { return NEXT(name)(file, size); }); \
  }
#define OF_DESCRIPTOR(name)                                                \
  int name(int file) {                                                     \
    return Whole(#name, Path(file), -1, [&] { return NEXT(name)(file); }); \
  }
#define STATUS(name, record)                                                                 \
  int name(const char* file, record* status) noexcept {                                      \
    return Whole(#name, Path(AT_FDCWD, file), -1, [&] { return NEXT(name)(file, status); }); \
  }
#define STATUS_OF_DESCRIPTOR(name, record)                                         \
  int name(int file, record* status) noexcept {                                    \
    return Whole(#name, Path(file), -1, [&] { return NEXT(name)(file, status); }); \
  }

extern "C" {

OPEN(open)
OPEN(open64)
OPENAT(openat)
OPENAT(openat64)
MKOSTEMP(mkostemp)
MKOSTEMP(mkostemp64)
PREAD(pread, off_t)
PREAD(pread64, off64_t)
PWRITE(pwrite, off_t)
PWRITE(pwrite64, off64_t)
FTRUNCATE(ftruncate, off_t)
FTRUNCATE(ftruncate64, off64_t)
OF_DESCRIPTOR(fsync)
OF_DESCRIPTOR(fdatasync)
STATUS(stat, struct stat)
STATUS(stat64, struct stat64)
STATUS(lstat, struct stat)
STATUS(lstat64, struct stat64)
STATUS_OF_DESCRIPTOR(fstat, struct stat)
STATUS_OF_DESCRIPTOR(fstat64, struct stat64)

ssize_t read(int file, void* bytes, size_t size) {
  return Read("read", file, size, [&](size_t part) { return NEXT(read)(file, bytes, part); });
}

ssize_t write(int file, const void* bytes, size_t size) {
  return Write("write", file, size, [&](size_t part) { return NEXT(write)(file, bytes, part); });
}

/// Closed all the same, as the system does it.
int close(int file) {
  const Path path(file);
  const int result = NEXT(close)(file);
  const int error = errno;
  return Whole("close", path, -1, [&] {
    errno = error;
    return result;
  });
}

int access(const char* file, int mode) noexcept {
  return Whole("access", Path(AT_FDCWD, file), -1, [&] { return NEXT(access)(file, mode); });
}

int unlink(const char* file) noexcept {
  return Whole("unlink", Path(AT_FDCWD, file), -1, [&] { return NEXT(unlink)(file); });
}

int rename(const char* from, const char* to) noexcept {
  return Whole("rename", Path(AT_FDCWD, to), -1, [&] { return NEXT(rename)(from, to); });
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
  return Whole("linkat", Path(toFolder, to), -1,
               [&] { return NEXT(linkat)(fromFolder, from, toFolder, to, flags); });
}

int mkdir(const char* folder, mode_t mode) noexcept {
  return Whole("mkdir", Path(AT_FDCWD, folder), -1, [&] { return NEXT(mkdir)(folder, mode); });
}

int fchmod(int file, mode_t mode) noexcept {
  return Whole("fchmod", Path(file), -1, [&] { return NEXT(fchmod)(file, mode); });
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
  return Whole("fchown", Path(file), -1, [&] { return NEXT(fchown)(file, owner, group); });
}

DIR* opendir(const char* folder) {
  return Whole("opendir", Path(AT_FDCWD, folder), static_cast<DIR*>(nullptr),
               [&] { return NEXT(opendir)(folder); });
}

}  // extern "C"
