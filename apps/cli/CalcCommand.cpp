#include "apps/cli/Commands.h"
#include "apps/cli/ResultJson.h"
#include "apps/cli/TextTable.h"

namespace trelonit::cli {

namespace {

constexpr Integer calculateTab = 2;

/// Does what a user does; false as soon as something kept it from a result.
bool Calculate(ConsoleSession& session, const std::string& project) {
  if (!session.Start()) {
    return false;
  }
  session.SetOpenName(project);
  if (!session.Main().Restore_Click() || session.MetRuntimeError()) {
    return false;
  }
  session.Main().tabMain.SetTab(calculateTab);
  if (session.Main().tabMain.Tab() != calculateTab || session.MetRuntimeError()) {
    return false;
  }
  session.Main().cmdCalculate_Click();
  return session.TheProgram().LastResults().has_value() && !session.MetRuntimeError();
}

std::string ListsAsText(const ResultLists& lists) {
  std::string text;
  for (const std::string& line : lists.lstForces) {
    text += line + '\n';
  }
  std::vector<Grid::Row> rows{{"Проверка", "Коэффициент"}};
  rows.insert(rows.end(), lists.MSFlexGKoefUse.begin(), lists.MSFlexGKoefUse.end());
  return text + '\n' + TextTable(rows);
}

}  // namespace

Status RunCalc(const CalcOptions& options) {
  ConsoleSession session;
  if (!Calculate(session, options.Project)) {
    if (options.Json) {
      Print(FailureJson(session.Messages()));
    }
    return Status::Failed;
  }
  const ResultLists& lists = *session.TheProgram().LastResults();
  return Print(options.Json ? CalcJson(session.Main().Model, lists, session.Messages(),
                                       options.BarForce)
                            : ListsAsText(lists));
}

}  // namespace trelonit::cli
