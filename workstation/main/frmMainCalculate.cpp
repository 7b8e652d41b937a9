#include <utility>

#include "analysis/modMaxProgib.h"
#include "platform/errors/Guard.h"
#include "workstation/design/OpinionSelection.h"
#include "workstation/design/OwnWeight.h"
#include "workstation/design/RepeatedSelection.h"
#include "workstation/main/frmMain.h"
#include "workstation/report/ReportAppendix.h"

namespace trelonit {

namespace {

constexpr Integer limitOverflowBitmap = 101;
constexpr int progibDecimals = 5;

}  // namespace

void frmMain::cmdCalculate_Click() {
  Guard(services_.Messages, "cmdCalculate_Click", [&] {
    CalculateModel();
    ShowResults();
  });
}

void frmMain::cmdCalcAndSelect_Click() {
  Guard(services_.Messages, "cmdCalcAndSelect_Click", [&] {
    CalculateModel();
    const SelectionOffer offer{
        .Proposal = ShowTold(
            services_.Messages,
            [&](Messages& told) { return SelectSections(Model.Last, Model.ProfileTypes, told); }),
        .ByOpinion = [this] { return ProposeByOpinion(); },
        .Repeated =
            [this] {
              return SelectUntilSettled(Model.ToCalculate(), Model.ProfileTypes, Model.Last.Numbers,
                                        Model.Inputs.OwnWeightOn != 0);
            },
        .Before = Model.Last,
        .Locale = services_.Locale};
    if (openers_.ShowSearch) {
      if (const std::optional<SelectionProposal> taken = openers_.ShowSearch(offer)) {
        TakeProposal(*taken);
      }
    }
    ShowResults();
  });
}

void frmMain::cmdShowResults_Click() {
  Guard(services_.Messages, "cmdShowResults_Click", [&] {
    const Long chosen = cmbKnotNum.ListIndex();
    CalculateModel();
    // Own weight has filled the list anew. Who reads a report goes on where he was.
    if (chosen != ComboBox::noSelection && chosen < static_cast<Long>(cmbKnotNum.List().size())) {
      cmbKnotNum.Select(chosen);
    }
    if (openers_.BeginOtchet) {
      openers_.BeginOtchet(Model.Last);
    }
    if (openers_.AppendOtchet) {
      WriteOtchet(openers_.AppendOtchet);
    }
    if (openers_.ShowOtchet) {
      openers_.ShowOtchet();
    }
  });
}

bool frmMain::MakeReport(const ReportSink& sink) {
  return Guard(services_.Messages, "cmdShowResults_Click", [&] {
    CalculateModel();
    WriteOtchet(sink);
  });
}

void frmMain::WriteOtchet(const ReportSink& sink) {
  const NumberLocale& locale = services_.Locale;
  WriteReport(Model.Last,
              {.SteelName = Model.Inputs.SteelName,
               .ProgibOn = Model.Inputs.ProgibOn != 0,
               .ProgibUpper = Model.Inputs.ProgibUpper != 0,
               .LenLim = Model.Inputs.LenLim},
              locale, sink);
  CalculateProgib();
  if (const std::optional<ProgibResult>& progib = Model.Last.Progib) {
    WriteReportProgib(*progib, locale, sink);
    txtProgib.SetText(FormatShown(progib->Value, progibDecimals, locale));
  }
  WriteReportAdditional(Model.Last, locale, sink);
  if (ReportAppendix) {
    WriteReportAppendix(Model.Last.CheckData, OpinionOfLast(), locale, sink);
  }
}

void frmMain::CalculateModel() {
  const CheckNumbers numbers = CheckNumbersOf(ReadInputs());
  const auto calculate = [&] {
    Model.Last = ShowTold(services_.Messages, Calculate(Model.ToCalculate(), numbers));
  };
  calculate();
  // There is one re-analysis a command: the mass does not depend on the forces.
  if (Model.Inputs.OwnWeightOn != 0 &&
      PutOwnWeight(Model.Inputs.Loads, Model.OwnWeight, OwnWeightPerMetreOf(Model.Last))) {
    calculate();
    RefreshLoadPreview();
  }
}

void frmMain::CalculateProgib() {
  Calculation& last = Model.Last;
  last.Progib.reset();
  const DesignInputs& inputs = Model.Inputs;
  if (inputs.ProgibOn != 0) {
    const double progib =
        ShowTold(services_.Messages, CalcProgib(last.TreloData, last.TreloResult, last.CheckData,
                                                inputs.ProgibUpper != 0, last.Numbers.E));
    last.Progib = JudgeProgib(progib, last.TreloData.LengthF, inputs.LenLim, services_.Locale);
  }
}

std::optional<SelectionProposal> frmMain::ProposeByOpinion() {
  const Opinion opinion = FormOpinion(Judged(Model.Last));
  if (opinion.HasRefused()) {
    services_.Messages.Show(
        {.Title = "Подбор по СНиП", .Text = opinion.Refusal, .Style = MessageStyle::Exclamation});
    return std::nullopt;
  }
  return SelectByOpinion(Model.ToCalculate(), Model.ProfileTypes, Model.Last.Numbers,
                         Model.Inputs.OwnWeightOn != 0);
}

void frmMain::TakeProposal(const SelectionProposal& proposal) {
  if (proposal.Settled) {
    Model.Last = *proposal.Settled;
    Model.Inputs.ElementSection = Model.Last.ElementSection;
    Model.Inputs.Loads = static_cast<const LoadArrays&>(Model.Last.TreloData);
    Model.OwnWeight = Model.Last.OwnWeight;
    RefreshLoadPreview();
  } else {
    // Loads and forces stay: the changed mass reaches them with the next calculation.
    Model.Inputs.ElementSection = proposal.Sections;
    Model.Last.ElementSection = proposal.Sections;
    Model.Last.CheckData = proposal.Check;
  }
  takenSections_ = Model.Inputs.ElementSection;
  ShowTakenSize();
  RefreshSectionSource(SelectedSection());
  for (Long option = 1; option <= groupCount; ++option) {
    lblProfilName[option].SetCaption(
        Model.Inputs.ElementSection[PlaceOfOption(option)].Profile.Name.Trimmed());
  }
}

void frmMain::ShowTakenSize() {
  // Not as a choice of the user: that would take own weight out of the loads, which already is that
  // of the new sizes or becomes it with the next calculation.
  const std::function<void()> click = std::exchange(cmbSectType.Click, nullptr);
  cmbSectType.SetText(SelectedSection().Profile.Name.Trimmed());
  cmbSectType.Click = click;
}

void frmMain::ShowResults() {
  ResultLists lists;
  lists.lstForces = BuildForceList(Model.Last, services_.Locale);
  lists.MSFlexGKoefUse = BuildUtilisationGrid(Model.Last, services_.Locale);
  lists.Picture = {.Bars = BuildBars(Model.Last),
                   .Use = BuildUse(Model.Last),
                   .OverLimit = RowsOverLimit(Model.Last)};
  CalculateProgib();
  if (const std::optional<ProgibResult>& progib = Model.Last.Progib) {
    for (std::string& line : ProgibLines(*progib, services_.Locale)) {
      lists.lstForces.push_back(std::move(line));
    }
    ShowProgib(*progib);
  }
  lists.Opinion = OpinionOfLast();
  lists.Rows = BuildResultRows(Model.Last, lists.Opinion.Figures, services_.Locale);
  lists.Locale = services_.Locale;
  lists.Of = Model.Last;
  if (openers_.ShowKoeffOfUse) {
    openers_.ShowKoeffOfUse(lists);
  }
}

void frmMain::ShowProgib(const ProgibResult& progib) {
  tabMain.SetTab(0);
  txtProgib.SetText(FormatShown(progib.Value, progibDecimals, services_.Locale));
  imgLenLimoverflow.Show(progib.Satisfied ? Picture()
                                          : services_.Resources.Bitmap(limitOverflowBitmap));
}

}  // namespace trelonit
