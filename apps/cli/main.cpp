#include <csignal>
#include <exception>
#include <iostream>

#include "apps/cli/CommandLine.h"

int main(int argc, char** argv) {
#ifdef SIGXFSZ
  // A limit on file sizes is a failed write, told like a full disk, not the end of the program.
  std::signal(SIGXFSZ, SIG_IGN);
#endif
  try {
    return static_cast<int>(
        trelonit::cli::RunCommandLine(argc, argv, trelonit::cli::MakePaper(argc, argv)));
  } catch (const std::exception& error) {
    std::cerr << "trelonit-cli: " << error.what() << '\n';
    return static_cast<int>(trelonit::cli::Status::Failed);
  }
}
