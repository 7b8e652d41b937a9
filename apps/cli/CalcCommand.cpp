#include "apps/cli/Calculation.h"
#include "apps/cli/Commands.h"
#include "apps/cli/OpinionOutput.h"
#include "apps/cli/PrintJson.h"
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
  return options.Json
             ? PrintJson(session,
                         [&] { return CalcJson(lists, session.Messages(), options.BarForce); })
             : Print(ListsAsText(lists));
}

}  // namespace trelonit::cli
