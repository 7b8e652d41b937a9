#include "apps/cli/Commands.h"

namespace trelonit::cli {

Status RunNew(const NewOptions& options) {
  ConsoleSession session(options.Force ? MessageAnswer::Yes : MessageAnswer::No);
  if (!session.Start()) {
    return Status::Failed;
  }
  return session.SaveProject(options.Output) ? Status::Done : Status::Failed;
}

}  // namespace trelonit::cli
