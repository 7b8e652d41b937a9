#include "workstation/report/ReportAppendix.h"

#include <string>

#include "checks/ElementGroups.h"
#include "opinion/FormulaText.h"
#include "workstation/report/ReportWriter.h"

namespace trelonit {

const char* const opinionLimits =
    "Второе мнение не рассматривает: изгиб поясов между узлами от распределенной нагрузки, "
    "эксцентриситеты в узлах, одиночные уголки относительно оси наименьшего момента инерции, сами "
    "узлы, толщину стенок.";

const char* SeverityWord(Severity severity) {
  switch (severity) {
    case Severity::Danger:
      return "Опасно";
    case Severity::Warning:
      return "Внимание";
    case Severity::Note:
      break;
  }
  return "Примечание";
}

namespace {

constexpr int figureDecimals = 3;

class Appendix {
 public:
  Appendix(const CheckResult& check, const SecondOpinion& opinion, const NumberLocale& locale,
           const ReportSink& sink)
      : check_(check), opinion_(opinion), locale_(locale), out_(locale, sink) {}

  void Write() {
    out_.Heading("Приложение. Второе мнение : ");
    out_.Words("Нормы : ", normName);
    if (opinion_.Figures.HasRefused()) {
      out_.Warning(opinion_.Figures.Refusal);
    } else {
      out_.Line(opinionLimits);
      WriteFindings();
      WriteComparison();
    }
    const std::vector<Explanation> all = opinion_.Explanations();
    WriteExplanations(all, ExplanationSource::Told, "Проверки расчета с подстановкой : ");
    WriteExplanations(all, ExplanationSource::Opinion, "Проверки по СНиП с подстановкой : ");
  }

 private:
  std::string Figure(double value) const { return FormatShown(value, figureDecimals, locale_); }

  void WriteFindings() {
    out_.Heading("Замечания : ");
    if (opinion_.Findings.empty()) {
      out_.Line("Замечаний нет");
    }
    for (const Finding& finding : opinion_.Findings) {
      const std::string line = std::string(SeverityWord(finding.Grade)) + ". " + finding.Text;
      if (finding.Grade == Severity::Danger) {
        out_.Warning(line);
      } else {
        out_.Line(line);
      }
    }
  }

  void WriteComparison() {
    out_.Heading("Коэффициенты расчета и по СНиП : ");
    for (const GroupJudgement& group : opinion_.Figures.Groups) {
      const ElementGroupRow& row = RowOf(group.Group);
      for (const MemberCheckRow& check : memberChecks) {
        const double told = check_.*row.Block.*check.Told;
        const double judged = group.Figure(check.Check);
        const std::string caption = std::string(row.Name) + ", " + check.Name + " : ";
        const std::string figures = "расчет " + Figure(told) + ", СНиП " + Figure(judged);
        if (judged > 1) {
          out_.WarningWords(caption, figures);
        } else {
          out_.Words(caption, figures);
        }
      }
    }
  }

  void WriteExplanations(const std::vector<Explanation>& all, ExplanationSource source,
                         const std::string& heading) {
    bool begun = false;
    for (const Explanation& explanation : all) {
      if (explanation.Source == source) {
        if (!begun) {
          out_.Heading(heading);
          begun = true;
        }
        WriteExplanation(explanation);
      }
    }
  }

  void WriteExplanation(const Explanation& explanation) {
    std::string head = explanation.Group ? RowOf(*explanation.Group).Name : "Ферма";
    head += ", " + explanation.CheckName;
    if (explanation.Bar) {
      head += ", стержень " + std::to_string(*explanation.Bar);
    }
    out_.Line(head + " (" + explanation.Clause + ")");
    for (const ExplanationStep& step : explanation.Steps) {
      std::string line = "  " + step.Symbol + " = ";
      if (!step.Formula.empty()) {
        line += FormulaInLine(step.Formula, locale_) + " = " +
                FormulaInLine(step.Substitution, locale_) + " = ";
      }
      out_.Words(line, NumberToText(RoundToDecimals(step.Value, 5), locale_) +
                           (step.Unit.empty() ? "" : " " + step.Unit) +
                           (step.Note.empty() ? "" : " — " + step.Note));
    }
    const std::string caption = "  " + FormulaInLine(explanation.Formula, locale_) + " = " +
                                FormulaInLine(explanation.Substitution, locale_) + " = ";
    const std::string figure = Figure(explanation.Value);
    if (explanation.Passed) {
      out_.Words(caption, figure + " ≤ 1");
    } else {
      out_.WarningWords(caption, figure + " > 1: не выполнено");
    }
    for (const std::string& rule : explanation.OwnRules) {
      out_.Line("  Правило программы. " + rule);
    }
  }

  const CheckResult& check_;
  const SecondOpinion& opinion_;
  const NumberLocale& locale_;
  ReportWriter out_;
};

}  // namespace

void WriteReportAppendix(const CheckResult& check, const SecondOpinion& opinion,
                         const NumberLocale& locale, const ReportSink& sink) {
  Appendix(check, opinion, locale, sink).Write();
}

}  // namespace trelonit
