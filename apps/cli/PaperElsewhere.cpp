#include "apps/cli/Paper.h"
#include "platform/system/Process.h"

namespace trelonit::cli {

namespace {

Status RunBeside(char** argv) {
  const std::string program = ProgramFileName("trelonit-paper");
  const HandedOver handedOver = HandOverTo(program, argv);
  if (handedOver.Status) {
    return static_cast<Status>(*handedOver.Status);
  }
  std::cerr << "trelonit-cli: для этого вида файла нужна программа " << program
            << " в той же папке";
  if (!handedOver.Reason.empty()) {
    std::cerr << ": " << handedOver.Reason;
  }
  std::cerr << '\n';
  return Status::Failed;
}

}  // namespace

Paper MakePaper(int /*argc*/, char** argv) {
  return {.HandOver = [argv] { return RunBeside(argv); }};
}

}  // namespace trelonit::cli
