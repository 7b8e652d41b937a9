#include "apps/cli/Commands.h"

namespace trelonit::cli {

Status RunNew(const NewOptions& options) {
  ConsoleSession session(options.Force ? MessageAnswer::Yes : MessageAnswer::No);
  if (!session.Start()) {
    return Status::Failed;
  }
  session.SetSaveName(options.Output);
  return session.Main().SaveParam_Click() ? Status::Done : Status::Failed;
}

}  // namespace trelonit::cli
