#include "apps/cli/Calculation.h"
#include "apps/cli/Commands.h"
#include "apps/cli/OpinionOutput.h"
#include "apps/cli/ResultJson.h"

namespace trelonit::cli {

namespace {

/// What kept the design from being calculated has been told; what the opinion adds to it.
Status Refuse(const AuditOptions& options, ConsoleSession& session) {
  const Design& design = session.Main().Model;
  const CheckNumbers numbers = session.Main().ReadCheckNumbers();
  const Opinion opinion = FormOpinion({.Data = design.TreloData,
                                       .Result = design.TreloResult,
                                       .Check = design.CheckData,
                                       .Sections = design.ElementSection,
                                       .Numbers = numbers});
  std::vector<Message> messages = session.Messages();
  if (opinion.HasRefused()) {
    messages.push_back({.Title = opinionTitle, .Text = opinion.Refusal});
    PrintRefusal(opinion);
  }
  if (options.Json) {
    Print(FailureJson(messages));
  }
  return Status::Failed;
}

}  // namespace

Status RunAudit(const AuditOptions& options) {
  ConsoleSession session;
  if (!Calculate(session, options.Project, &frmMain::cmdCalculate_Click) ||
      session.TheProgram().LastResults()->Opinion.Figures.HasRefused()) {
    return Refuse(options, session);
  }
  const SecondOpinion& opinion = session.TheProgram().LastResults()->Opinion;
  const CheckResult& check = session.Main().Model.CheckData;
  const Status printed =
      Print(options.Json ? OpinionJson(check, opinion) : OpinionText(check, opinion));
  if (printed != Status::Done) {
    return printed;
  }
  return options.Strict && opinion.HasDanger() ? Status::Danger : Status::Done;
}

}  // namespace trelonit::cli
