#include "platform/Guard.h"
#include "workstation/CalculationChain.h"
#include "workstation/OpinionSelection.h"
#include "workstation/ReportAppendix.h"
#include "workstation/frmMain.h"

namespace trelonit {

namespace {

constexpr Integer limitOverflowBitmap = 101;
constexpr int progibDecimals = 5;

}  // namespace

CheckNumbers frmMain::ReadCheckNumbers() const {
  return {.Ry = Number(txtRy),
          .E = Number(txtModulYung),
          .Yc = Number(txtUsloviyaRabot),
          .Gn = Number(txtNadegnost),
          .Density = Number(txtDensitSteel),
          .Dynamic = chkDinloadEnable.Checked(),
          .LimitUser = Number(txtLimitFlex)};
}

void frmMain::cmdCalculate_Click() {
  Guard(services_.Messages, "cmdCalculate_Click", [&] {
    const CheckNumbers numbers = ReadCheckNumbers();
    AnalyseWithOwnWeight(numbers);
    ShowResults(numbers);
  });
}

void frmMain::cmdCalcAndSelect_Click() {
  Guard(services_.Messages, "cmdCalcAndSelect_Click", [&] {
    const CheckNumbers numbers = ReadCheckNumbers();
    AnalyseWithOwnWeight(numbers);
    const SelectionOffer offer{.Proposal = SelectSections(Model, numbers, services_.Messages),
                               .ByOpinion = [this, &numbers] { return ProposeByOpinion(numbers); }};
    if (openers_.ShowSearch) {
      if (const std::optional<SelectionProposal> taken = openers_.ShowSearch(offer)) {
        TakeProposal(*taken);
      }
    }
    ShowResults(numbers);
  });
}

void frmMain::cmdShowResults_Click() {
  Guard(services_.Messages, "cmdShowResults_Click", [&] {
    const CheckNumbers numbers = ReadCheckNumbers();
    AnalyseWithOwnWeight(numbers);
    if (openers_.BeginOtchet) {
      openers_.BeginOtchet({.TreloData = Model.TreloData,
                            .TreloResult = Model.TreloResult,
                            .CheckData = Model.CheckData,
                            .ElementSection = Model.ElementSection});
    }
    if (openers_.AppendOtchet) {
      FillOtchet(numbers);
    }
    if (openers_.ShowOtchet) {
      openers_.ShowOtchet();
    }
  });
}

void frmMain::FillOtchet(const CheckNumbers& numbers) {
  const NumberLocale& locale = services_.Locale;
  WriteReport(Model,
              {.SteelName = lblStillName.Caption(),
               .Numbers = numbers,
               .ProgibOn = chkProgib.Checked(),
               .ProgibUpper = optBP.Value(),
               .LenLim = cmbLenlim.Text()},
              locale, openers_.AppendOtchet);
  const std::optional<ProgibResult> progib = Progib(numbers);
  if (progib) {
    WriteReportProgib(*progib, locale, openers_.AppendOtchet);
    txtProgib.SetText(FormatShown(progib->Value, progibDecimals, locale));
  }
  WriteReportAdditional(Model, locale, openers_.AppendOtchet);
  if (ReportAppendix) {
    WriteReportAppendix(Model.CheckData, OpinionOf(numbers, progib), locale, openers_.AppendOtchet);
  }
}

std::optional<ProgibResult> frmMain::Progib(const CheckNumbers& numbers) {
  if (!chkProgib.Checked()) {
    return std::nullopt;
  }
  return CheckProgib(Model, optBP.Value(), numbers.E, cmbLenlim.Text(), services_.Locale,
                     services_.Messages);
}

std::optional<SelectionProposal> frmMain::ProposeByOpinion(const CheckNumbers& numbers) {
  const SecondOpinion opinion = OpinionOf(numbers, std::nullopt);
  if (opinion.Figures.HasRefused()) {
    services_.Messages.Show({.Title = "Подбор по СНиП",
                             .Text = opinion.Figures.Refusal,
                             .Style = MessageStyle::Exclamation});
    return std::nullopt;
  }
  return SelectByOpinion(Model, numbers, chkOwnWeight.Checked());
}

void frmMain::AnalyseWithOwnWeight(const CheckNumbers& numbers) {
  AnalyseAndCheck(Model, numbers, services_.Messages);
  if (chkOwnWeight.Checked() && ApplyOwnWeight(Model, numbers, services_.Messages)) {
    RefreshLoadPreview();
  }
}

void frmMain::TakeProposal(const SelectionProposal& proposal) {
  if (proposal.Settled) {
    static_cast<Design&>(Model) = *proposal.Settled;
    RefreshLoadPreview();
  } else {
    // Loads and forces stay: the changed mass reaches them with the next calculation.
    Model.ElementSection = proposal.Sections;
    Model.CheckData = proposal.Check;
  }
  takenSections_ = Model.ElementSection;
  RefreshSectionSource(SelectedSection());
  for (Long option = 1; option <= groupCount; ++option) {
    lblProfilName[option].SetCaption(
        Model.ElementSection[PlaceOfOption(option)].Profile.Name.Trimmed());
  }
}

void frmMain::ShowResults(const CheckNumbers& numbers) {
  const Long scheme = Model.TreloData.TreloType;
  ResultLists lists{
      .lstForces =
          BuildForceList(scheme, Model.TreloResult, Model.CheckData.Mass, services_.Locale),
      .MSFlexGKoefUse = BuildUtilisationGrid(scheme, Model.CheckData, services_.Locale),
      .Picture = {.Bars = BuildBars(Model.TreloData, Model.TreloResult),
                  .Use = BuildUse(scheme, Model.CheckData),
                  .OverLimit = RowsOverLimit(scheme, Model.CheckData)}};
  lists.Progib = Progib(numbers);
  if (lists.Progib) {
    for (std::string& line : ProgibLines(*lists.Progib, services_.Locale)) {
      lists.lstForces.push_back(std::move(line));
    }
    ShowProgib(*lists.Progib);
  }
  lists.Opinion = OpinionOf(numbers, lists.Progib);
  lists.Locale = services_.Locale;
  lists.Rows = BuildResultRows(scheme, Model.CheckData, lists.Opinion.Figures, services_.Locale);
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
