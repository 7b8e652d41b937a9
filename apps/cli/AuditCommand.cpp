#include "apps/cli/Calculation.h"
#include "apps/cli/Commands.h"
#include "apps/cli/OpinionOutput.h"
#include "apps/cli/PrintJson.h"
#include "apps/cli/ResultJson.h"

namespace trelonit::cli {

namespace {

/// What kept the design from being calculated has been told.
Status Fail(const AuditOptions& options, const std::vector<Message>& messages) {
  if (options.Json) {
    Print(FailureJson(messages));
  }
  return Status::Failed;
}

/// The same with what the opinion adds to it.
Status Refuse(const AuditOptions& options, ConsoleSession& session) {
  const Opinion opinion = FormOpinion(Judged(session.Main().Model.Last));
  std::vector<Message> messages = session.Messages();
  if (opinion.HasRefused()) {
    messages.push_back({.Title = opinionTitle, .Text = opinion.Refusal});
    PrintRefusal(opinion);
  }
  return Fail(options, messages);
}

}  // namespace

Status RunAudit(const AuditOptions& options) {
  ConsoleSession session;
  if (!Calculate(session, options.Project, &frmMain::cmdCalculate_Click)) {
    // A run-time error's number says little; a project that is not there or not accepted has been
    // told in words.
    return session.MetRuntimeError() ? Refuse(options, session) : Fail(options, session.Messages());
  }
  if (session.TheProgram().LastResults()->Opinion.Figures.HasRefused()) {
    return Refuse(options, session);
  }
  const SecondOpinion& opinion = session.TheProgram().LastResults()->Opinion;
  const CheckResult& check = session.Main().Model.Last.CheckData;
  const Status printed = options.Json
                             ? PrintJson(session, [&] { return OpinionJson(check, opinion); })
                             : Print(OpinionText(check, opinion));
  if (printed != Status::Done) {
    return printed;
  }
  return options.Strict && opinion.HasDanger() ? Status::Danger : Status::Done;
}

}  // namespace trelonit::cli
