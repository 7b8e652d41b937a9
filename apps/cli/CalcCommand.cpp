#include "apps/cli/Calculation.h"
#include "apps/cli/Commands.h"
#include "apps/cli/OpinionOutput.h"
#include "apps/cli/ResultJson.h"

namespace trelonit::cli {

Status RunCalc(const CalcOptions& options) {
  ConsoleSession session;
  if (!Calculate(session, options.Project, &frmMain::cmdCalculate_Click)) {
    if (options.Json) {
      Print(FailureJson(session.Messages()));
    }
    return Status::Failed;
  }
  const ResultLists& lists = *session.TheProgram().LastResults();
  PrintDangers(lists.Opinion);
  return Print(options.Json ? CalcJson(lists, session.Messages(), options.BarForce)
                            : ListsAsText(lists));
}

}  // namespace trelonit::cli
