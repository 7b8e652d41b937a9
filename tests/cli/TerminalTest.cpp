#ifndef _WIN32

#include <array>
#include <atomic>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <termios.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "tests/cli/ProgramFiles.h"

namespace trelonit::test {

namespace {

/// A terminal of the test's own: what a program writes to it comes as it is.
class Terminal {
 public:
  Terminal() : screen_(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    termios raw{};
    if (screen_ < 0 || ::grantpt(screen_) != 0 || ::unlockpt(screen_) != 0 ||
        ::tcgetattr(screen_, &raw) != 0) {
      throw std::runtime_error("no terminal");
    }
    ::cfmakeraw(&raw);
    ::tcsetattr(screen_, TCSANOW, &raw);
    // Without an open end its text would be gone with the program.
    end_ = ::open(Name().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  ~Terminal() {
    ::close(end_);
    ::close(screen_);
  }
  std::string Name() const { return ::ptsname(screen_); }
  /// All that is written from now on, while the program runs: a terminal holds a few lines only.
  Outcome Watch(const Launch& launch, std::string& shown) const {
    std::atomic<bool> ended{false};
    std::thread reader([&] {
      std::array<char, 4096> part{};
      pollfd ready{screen_, POLLIN, 0};
      for (bool last = false; !last;) {
        last = ended;
        while (::poll(&ready, 1, 20) > 0) {
          const ssize_t count = ::read(screen_, part.data(), part.size());
          if (count <= 0) {
            return;
          }
          shown.append(part.data(), static_cast<std::size_t>(count));
        }
      }
    });
    const Outcome outcome = RunProgram(launch);
    ended = true;
    reader.join();
    return outcome;
  }

 private:
  int screen_;
  int end_ = -1;
};

class OnATerminal : public ProgramFiles {
 protected:
  OnATerminal() {
    // Designations and names of the steel come from files that anybody may have made.
    Put("odd.tsav", WithLine(ExampleBytes(1), 9, steel));
  }
  std::string Shown(const std::vector<std::string>& arguments) {
    const Terminal terminal;
    Launch launch = Command(arguments);
    launch.OutputTo = terminal.Name();
    std::string text;
    const Outcome outcome = terminal.Watch(launch, text);
    EXPECT_EQ(outcome.Status, done) << outcome.Err;
    return text;
  }
  // The fourth one is a control character of eight bits where it stands for itself.
  const std::string steel = "S\x1B]0;x\x07\x7F\x98Z";
  const std::string raw = "S\x1B]0;x\x07\x7F\xC2\x98Z";
  const std::string shown = "S\xE2\x90\x9B]0;x\xE2\x90\x87\xE2\x90\xA1\\x98Z";
};

TEST_F(OnATerminal, AReportShowsControlCharactersAsSymbols) {
  const std::string report = Shown({"report", "odd.tsav", "-o", "-"});
  EXPECT_NE(report.find(shown), std::string::npos) << report.substr(0, 2000);
  EXPECT_EQ(report.find('\x1B'), std::string::npos);
}

TEST_F(OnATerminal, AReportIsOtherwiseTheSame) {
  Put("a.tsav", ExampleBytes(1));
  EXPECT_EQ(Shown({"report", "a.tsav", "-o", "-"}), Run({"report", "a.tsav", "-o", "-"}).Out);
}

TEST_F(OnATerminal, OnlyShowsThemAsSymbolsThere) {
  EXPECT_NE(Run({"report", "odd.tsav", "-o", "-"}).Out.find(raw), std::string::npos);
}

TEST_F(OnATerminal, TheCatalogueShowsControlCharactersAsSymbols) {
  Unpack();
  std::string index = FileBytes(ProgramFolder() / indexName);
  index[3] = '\x1B';
  std::ofstream(ProgramFolder() / indexName, std::ios::binary) << index;
  const std::string table = Shown({"catalogue", "show", "1"});
  EXPECT_NE(table.find("\xE2\x90\x9B"), std::string::npos) << table.substr(0, 300);
  EXPECT_EQ(table.find('\x1B'), std::string::npos);
}

}  // namespace

}  // namespace trelonit::test

#endif
