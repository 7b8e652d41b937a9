#include <exception>
#include <iostream>

#include "apps/cli/CommandLine.h"
#include "platform/system/Process.h"

int main(int argc, char** argv) {
  try {
    return trelonit::RunConsoleProgram(argc, argv, [](int count, char** arguments) {
      return static_cast<int>(trelonit::cli::RunCommandLine(
          count, arguments, trelonit::cli::MakePaper(count, arguments)));
    });
  } catch (const std::exception& error) {
    std::cerr << "trelonit-cli: " << error.what() << '\n';
    return static_cast<int>(trelonit::cli::Status::Failed);
  }
}
