#include "apps/cli/Calculation.h"

#include "apps/cli/TextTable.h"

namespace trelonit::cli {

bool Restore(ConsoleSession& session, const std::string& project) {
  if (!session.Start()) {
    return false;
  }
  frmMain& form = session.Main();
  if (!session.OpenProject(project) || session.MetRuntimeError()) {
    return false;
  }
  form.tabMain.SetTab(calculateTab);
  return form.tabMain.Tab() == calculateTab && !session.MetRuntimeError();
}

bool Calculate(ConsoleSession& session, const std::string& project, void (frmMain::*command)()) {
  if (!Restore(session, project)) {
    return false;
  }
  (session.Main().*command)();
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

}  // namespace trelonit::cli
