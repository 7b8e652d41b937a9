#include "analysis/Scheme.h"
#include "apps/cli/Calculation.h"
#include "apps/cli/Commands.h"
#include "apps/cli/OpinionOutput.h"
#include "apps/cli/PrintJson.h"
#include "apps/cli/ResultJson.h"
#include "apps/cli/TextTable.h"

namespace trelonit::cli {

namespace {

/// A row a group, in the order in which they are searched; scheme 3 has no verticals.
std::vector<SelectionRow> RowsOf(const SelectionProposal& proposal, Long treloType) {
  std::vector<SelectionRow> rows;
  const auto add = [&](const char* block, GroupOption option) {
    const SectionRec& section = proposal.Sections[PlaceOfOption(option)];
    rows.push_back({.Group = block,
                    .Caption = GroupName(option),
                    .Name = section.Profile.Name.Trimmed(),
                    .SizeIdx = section.SizeIdx,
                    .Gdist = section.Gdist,
                    .Possible = proposal.Impossible.count(option) == 0});
  };
  add("UpPoyas", optionUpPoyas);
  add("DwnPoyas", optionDwnPoyas);
  add("Raskos", optionRaskos);
  if (HasVerticals(treloType)) {
    add("Stoyka", optionStoyka);
  }
  add("OpornRaskos", optionOpornRaskos);
  return rows;
}

std::string RowsAsText(const std::vector<SelectionRow>& selection) {
  std::vector<Grid::Row> rows{{"Группа", "Профиль", ""}};
  for (const SelectionRow& row : selection) {
    rows.push_back({row.Caption, row.Name, row.Possible ? "" : "Подбор невозможен"});
  }
  return TextTable(rows) + '\n';
}

/// Of a selection by both.
std::string RoundsAsText(int rounds) {
  return rounds == 0 ? std::string()
                     : "Кругов подбора до неизменности: " + std::to_string(rounds) + "\n\n";
}

}  // namespace

Status RunSelect(const SelectOptions& options) {
  ConsoleSession session(options.Force ? MessageAnswer::Yes : MessageAnswer::No,
                         {.ShowSearch = [&options](frmSearch& form) {
                           form.chkOpinion.SetChecked(options.Opinion);
                           form.cmdApply_Click();
                         }});
  const auto fail = [&] {
    if (options.Json) {
      Print(FailureJson(session.Messages()));
    }
    return Status::Failed;
  };
  if (!Calculate(session, options.Project, &frmMain::cmdCalcAndSelect_Click)) {
    return fail();
  }
  frmMain& form = session.Main();
  const ResultLists& lists = *session.TheProgram().LastResults();
  const SelectionProposal& proposal = *session.TheProgram().LastProposal();
  if (options.Opinion && proposal.Rounds == 0) {
    // Told why by then; the sizes would not be what was asked for.
    return fail();
  }
  const std::vector<SelectionRow> selection = RowsOf(proposal, form.Model.Inputs.TreloType);
  PrintDangers(lists.Opinion);
  if (!options.Output.empty()) {
    if (options.Opinion) {
      form.WithdrawOwnWeightFromLoads();
    }
    if (!session.SaveProject(options.Output)) {
      return fail();
    }
  }
  if (options.Json) {
    return PrintJson(
        session, [&] { return SelectJson(lists, session.Messages(), selection, proposal.Rounds); });
  }
  return Print(RowsAsText(selection) + RoundsAsText(proposal.Rounds) + ListsAsText(lists));
}

}  // namespace trelonit::cli
