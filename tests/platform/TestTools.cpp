#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <memory>
#include <rapidcheck.h>
#include <stdexcept>
#include <string>
#include <system_error>

#include "platform/errors/RuntimeError.h"

#ifndef _WIN32
#include <array>
#include <sys/wait.h>
#include <unistd.h>
#else
#include <random>
#endif

// The tools that several files of this program share; each file declares the ones it uses.

namespace trelonit::test {

namespace fs = std::filesystem;

/// Any finite double, down to the smallest; of every exponent with the same chance.
double AnyDouble() {
  const auto bits = *rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<std::uint64_t>());
  double value = 0;
  std::memcpy(&value, &bits, sizeof value);
  RC_PRE(std::isfinite(value));
  return value;
}

/// Number of the run-time error that the body raises, 0 when it raises none.
int ErrorOf(const std::function<void()>& body) {
  try {
    body();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

/// A new empty folder that other users may enter; it goes with the last holder.
std::shared_ptr<const fs::path> TemporaryFolder() {
#ifdef _WIN32
  const fs::path folder = fs::temp_directory_path() / std::to_string(std::random_device()());
  fs::create_directory(folder);
#else
  std::string name = (fs::temp_directory_path() / "trelonit-XXXXXX").string();
  if (::mkdtemp(name.data()) == nullptr) {
    throw std::system_error(errno, std::generic_category(), name);
  }
  const fs::path folder = name;
  fs::permissions(folder, fs::perms(0755));
#endif
  return {new fs::path(folder),
          [](const fs::path* held) {  // NOLINT(cppcoreguidelines-owning-memory)
            std::error_code ignored;
            fs::remove_all(*held, ignored);
            delete held;  // NOLINT(cppcoreguidelines-owning-memory)
          }};
}

#ifndef _WIN32

/// What the body answers in a child process, which takes limits and rights that it gives up with
/// it. "error N" when it raises a run-time error, "died" when it does not come to its end.
std::string InChild(const std::function<std::string()>& body) {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) {
    throw std::runtime_error("no pipe");
  }
  const pid_t child = ::fork();
  if (child < 0) {
    throw std::runtime_error("no child process");
  }
  if (child == 0) {
    std::string answer = "died";
    try {
      answer = body();
    } catch (const RuntimeError& error) {
      answer = "error " + std::to_string(error.Number());
    } catch (const std::exception& error) {
      answer = std::string("exception ") + error.what();
    }
    const ssize_t written = ::write(ends[1], answer.data(), answer.size());
    ::_exit(written == static_cast<ssize_t>(answer.size()) ? 0 : 1);
  }
  ::close(ends[1]);
  std::string answer;
  std::array<char, 256> part{};
  for (ssize_t count = 0; (count = ::read(ends[0], part.data(), part.size())) > 0;) {
    answer.append(part.data(), static_cast<std::size_t>(count));
  }
  ::close(ends[0]);
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? answer : "died";
}

/// For a child process: the rights of a plain user. Root is above the permissions of files.
void DropRights() {
  constexpr unsigned nobody = 65534;
  if (::geteuid() == 0 && (::setgid(nobody) != 0 || ::setuid(nobody) != 0)) {
    throw std::runtime_error("root rights cannot be dropped");
  }
}

#endif

}  // namespace trelonit::test
