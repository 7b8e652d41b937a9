#include <csignal>
#include <exception>
#include <iostream>

#include "apps/cli/CommandLine.h"
#ifdef _WIN32
#include "platform/win32/Win32Console.h"
#endif

int main(int argc, char** argv) {
#ifdef SIGXFSZ
  // A limit on file sizes is a failed write, told like a full disk, not the end of the program.
  std::signal(SIGXFSZ, SIG_IGN);
#endif
  try {
#ifdef _WIN32
    // The given arguments are in the code page of the system, which not every name fits into.
    trelonit::Utf8Console console;
    argc = console.ArgumentCount();
    argv = console.Arguments();
#endif
    return static_cast<int>(
        trelonit::cli::RunCommandLine(argc, argv, trelonit::cli::MakePaper(argc, argv)));
  } catch (const std::exception& error) {
    std::cerr << "trelonit-cli: " << error.what() << '\n';
    return static_cast<int>(trelonit::cli::Status::Failed);
  }
}
