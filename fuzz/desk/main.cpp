// The whole desktop program under a random hand: desk_fuzzer SEED ACTS
// Ends with 0 after so many acts or when the hand has closed the program; with another status after
// a failure that a handler raised, at once where memory is misused or nothing happens any more.

#include <QTimer>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <pthread.h>
#include <string>
#include <thread>

#include "apps/trelonit/DesktopSession.h"
#include "fuzz/desk/RandomHand.h"
#include "windows/services/Desktop.h"
#include "windows/services/GuardedApplication.h"

namespace {

using namespace trelonit;

/// Aborts the thread that made it, with its stack, when that has done nothing for half a minute.
class Watch {
 public:
  Watch() : watched_(pthread_self()), watching_([this] { Look(); }) {}
  ~Watch() {
    over_ = true;
    watching_.join();
  }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

  void Alive() { quiet_ = 0; }

 private:
  void Look() {
    constexpr int longest = 60;
    while (!over_) {
      std::this_thread::sleep_for(std::chrono::milliseconds(500));
      if (++quiet_ == longest) {
        std::fprintf(stderr, "nothing happens any more\n");
        pthread_kill(watched_, SIGABRT);
        return;
      }
    }
  }

  std::atomic<bool> over_ = false;
  std::atomic<int> quiet_ = 0;
  pthread_t watched_;
  std::thread watching_;
};

/// Lets the hand act whenever nothing else is to do, in the loops of dialogues too.
class Run {
 public:
  Run(unsigned seed, long acts) : hand_(seed), acts_(acts) {}

  void Go() {
    watch_.Alive();
    if (hand_.Acts() >= acts_) {
      // Without the questions that stand open.
      std::_Exit(status_);
    }
    // Before the act, which may open a dialogue. Now and then timers get their turn.
    constexpr int rest = 40;  // milliseconds
    QTimer::singleShot(hand_.Below(20) == 0 ? rest : 0, qApp, [this] { Go(); });
    constexpr int deepest = 30;
    if (depth_ < deepest) {
      ++depth_;
      hand_.Act();
      --depth_;
    }
  }
  void Fail(const RuntimeError& error) {
    std::fprintf(stderr, "%ld raises %d: %s\n", hand_.Acts(), error.Number(),
                 error.Description().c_str());
    status_ = 1;
  }
  int Status() const { return status_; }

 private:
  fuzz::RandomHand hand_;
  long acts_;
  int depth_ = 0;
  int status_ = 0;
  Watch watch_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "desk_fuzzer SEED ACTS\n");
    return 2;
  }
  Run run(static_cast<unsigned>(std::stoul(argv[1])), std::stol(argv[2]));
  PrepareToolkit();
  GuardedApplication application(argc, argv);
  application.Tell = [&run](const RuntimeError& error) { run.Fail(error); };
  const Desktop desktop;
  DesktopSession session;
  session.Start({}, [] {});
  QTimer::singleShot(0, qApp, [&run] { run.Go(); });
  QApplication::exec();
  return run.Status();
}
