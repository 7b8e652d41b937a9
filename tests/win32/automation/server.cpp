// A drawing program or a word processor of the tests' own, in a process of its own, which COM
// starts as it starts the real ones:
//   automation_server FOLDER
// which holds its orders and takes its log: a line for the process, for each call that is turned
// away and for each use of a member.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "platform/files/Files.h"
#include "platform/files/Paths.h"
#include "platform/win32/ComPointer.h"
#include "platform/win32/Utf16.h"
#include "platform/win32/Win32Console.h"
#include "tests/drawing/RecordingHost.h"
#include "tests/win32/automation/Orders.h"
#include "tests/win32/automation/ServedObject.h"
#include "tests/win32/automation/ServerLog.h"
#include "tests/win32/automation/SystemClipboard.h"
#include "tests/win32/automation/WordModel.h"

namespace trelonit::test {

namespace {

class CallLog {
 public:
  explicit CallLog(const std::filesystem::path& file) : stream_(file, std::ios::app) {}
  void Write(const std::string& line) { stream_ << line << std::endl; }

 private:
  std::ofstream stream_;
};

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// Turns calls away as a program that is busy with itself does.
class Busyness : public CountedObject<IMessageFilter> {
 public:
  Busyness(HostLogHandle counts, int milliseconds, CallLog& log)
      : CountedObject(std::move(counts)), rest_(milliseconds), callLog_(log) {}

  DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override {
    if (first_ == 0) {
      first_ = GetTickCount64();
    }
    if (GetTickCount64() - first_ >= rest_) {
      return SERVERCALL_ISHANDLED;
    }
    callLog_.Write(turnedAway);
    return SERVERCALL_RETRYLATER;
  }
  DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD, DWORD) override {
    return static_cast<DWORD>(-1);
  }
  DWORD STDMETHODCALLTYPE MessagePending(HTASK, DWORD, DWORD) override {
    return PENDINGMSG_WAITDEFPROCESS;
  }

 private:
  ULONGLONG first_ = 0;
  ULONGLONG rest_;
  CallLog& callLog_;
};

#pragma GCC diagnostic pop

/// Ends AnswerCalls.
void QuitAfter(UINT milliseconds) {
  SetTimer(nullptr, 0, milliseconds, [](HWND, UINT, UINT_PTR, DWORD) { PostQuitMessage(0); });
}

/// Answers until the program is ended, at the latest after some minutes: a test that has gone away
/// must not leave it behind.
void AnswerCalls() {
  constexpr UINT longest = 180000;
  QuitAfter(longest);
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    DispatchMessageW(&message);
  }
}

/// Does not come back unless the class cannot be registered.
int Serve(const Orders& orders, CallLog& log) {
  ServedWorld world;
  RecordingHost drawing;
  drawing.FailingMembers = orders.Failures;
  SystemClipboard clipboard;
  DiskFiles files;
  WordModel word(orders, clipboard, files);
  // Not at once: the caller is to have its answer.
  word.Ended = [] { QuitAfter(100); };
  const bool draws = orders.Program.starts_with("AutoCAD");
  const std::vector<std::string>& calls = draws ? drawing.Calls : word.Calls;
  std::size_t uses = 0;
  std::size_t written = 0;
  world.Using = [&] {
    if (++uses == orders.Death) {
      TerminateProcess(GetCurrentProcess(), 1);
    }
  };
  world.Used = [&] {
    for (; written < calls.size(); ++written) {
      log.Write(calls[written]);
    }
  };

  CLSID identifier{};
  CLSIDFromString(ToWide(orders.Class).c_str(), &identifier);
  const ComPointer<IMessageFilter> busyness(new Busyness(world.Counts, orders.Busy, log));
  if (orders.Busy > 0) {
    CoRegisterMessageFilter(busyness.Get(), nullptr);
  }
  const AutomationHandle application =
      draws ? AutomationHandle(drawing.Application()) : word.Application();
  const ComPointer<IClassFactory> factory(new ServedClass(world, application));
  DWORD made = 0;
  DWORD running = 0;
  if (FAILED(CoRegisterClassObject(identifier, factory.Get(), CLSCTX_LOCAL_SERVER,
                                   REGCLS_MULTIPLEUSE, &made))) {
    return 1;
  }
  if (orders.Runs) {
    const ComPointer<IUnknown> served(new ServedObject(world, application));
    RegisterActiveObject(served.Get(), identifier, ACTIVEOBJECT_STRONG, &running);
  }
  log.Write(processLine + std::to_string(GetCurrentProcessId()));
  AnswerCalls();
  if (running != 0) {
    RevokeActiveObject(running, nullptr);
  }
  CoRevokeClassObject(made);
  // Without leaving COM, which wine 8 does not always come back from: it waits for a call to be
  // over that it has forgotten to count off. Each line of the log is written through.
  std::_Exit(0);
}

}  // namespace

}  // namespace trelonit::test

int main() {
  using namespace trelonit;
  Utf8Console console;
  // Who starts it by COM puts "-Embedding" behind the folder.
  if (console.ArgumentCount() < 2) {
    return 2;
  }
  const std::filesystem::path folder = PathOfUtf8(console.Arguments()[1]);
  test::CallLog log(folder / test::logName);
  return test::Serve(test::ReadOrders(folder / test::ordersName), log);
}
