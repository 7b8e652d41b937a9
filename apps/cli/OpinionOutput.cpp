#include "apps/cli/OpinionOutput.h"

#include <vector>

#include "apps/cli/ConsoleSession.h"
#include "apps/cli/OpinionJson.h"
#include "apps/cli/TextTable.h"
#include "checks/ElementGroups.h"
#include "platform/text/NumberText.h"
#include "workstation/report/ReportAppendix.h"

namespace trelonit::cli {

namespace {

std::string Checks(const CheckResult& check, const Opinion& opinion) {
  // Asking the system takes longer than forming the opinion: once for all figures.
  const NumberLocale locale = SystemNumberLocale();
  const auto shown = [&locale](double value) {
    constexpr int decimals = 5;
    return FormatShown(value, decimals, locale);
  };
  std::vector<std::vector<std::string>> rows{{"Группа, проверка", "Расчет", "СНиП", ""}};
  for (const GroupJudgement& group : opinion.Groups) {
    const ElementGroupRow& row = RowOf(group.Group);
    for (const MemberCheckRow& member : memberChecks) {
      const double judged = group.Figure(member.Check);
      rows.push_back({std::string(row.Name) + ", " + member.Name,
                      shown(check.*row.Block.*member.Told), shown(judged),
                      judged > 1 ? "не выполнено" : ""});
    }
  }
  return TextTable(std::move(rows));
}

}  // namespace

std::string OpinionText(const CheckResult& check, const SecondOpinion& opinion) {
  std::string text = std::string(opinionTitle) + " (" + normName + ")\n\n";
  if (opinion.Findings.empty()) {
    text += "Замечаний нет.\n";
  }
  for (const Finding& finding : opinion.Findings) {
    text += std::string(SeverityWord(finding.Grade)) + ": " + finding.Text + " [" +
            KeyOf(finding.Code) + "]\n";
  }
  return text + '\n' + Checks(check, opinion.Figures) + '\n' + opinionLimits + '\n';
}

void PrintDangers(const SecondOpinion& opinion) {
  for (const Finding& finding : opinion.Findings) {
    if (finding.Grade == Severity::Danger) {
      Tell(std::string(opinionTitle) + ": " + finding.Text);
    }
  }
}

void PrintRefusal(const Opinion& opinion) {
  Tell(std::string(opinionTitle) + ": " + opinion.Refusal);
}

}  // namespace trelonit::cli
